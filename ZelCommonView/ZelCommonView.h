/// The whole library in one include.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/common/PointerConnectionsDispatcher.h>
#include <ZelCommonView/fragments/FragmentDrawerHelper.h>
#include <ZelCommonView/fragments/FragmentsDrawArea.h>
#include <ZelCommonView/plot/ConverterProxy.h>
#include <ZelCommonView/plot/CoordsBordersCalc.h>
#include <ZelCommonView/plot/CoordsConverter.h>
#include <ZelCommonView/plot/CoordsDrawer.h>
#include <ZelCommonView/plot/CoordsStepsCalc.h>
#include <ZelCommonView/plot/Drawer.h>
#include <ZelCommonView/plot/DrawersManager.h>
#include <ZelCommonView/plot/ImageDrawer.h>
#include <ZelCommonView/plot/Series.h>
#include <ZelCommonView/plot/SeriesDrawer.h>
