/// The whole library in one include.
#pragma once

#include <ZelCommonView/common/ApproximateLogic.h>
#include <ZelCommonView/common/ApproximateTolerance.h>
#include <ZelCommonView/common/AutoResetEvent.h>
#include <ZelCommonView/common/Cross.h>
#include <ZelCommonView/common/DialogLocalization.h>
#include <ZelCommonView/common/Directories.h>
#include <ZelCommonView/common/ErrBuf.h>
#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/common/Nullable.h>
#include <ZelCommonView/common/NumericHelper.h>
#include <ZelCommonView/common/NumericRange.h>
#include <ZelCommonView/common/Object.h>
#include <ZelCommonView/common/PointerConnectionsDispatcher.h>
#include <ZelCommonView/common/PointerNamedConnectionsDispatcher.h>
#include <ZelCommonView/common/RectangleF.h>
#include <ZelCommonView/common/StringHelper.h>
