/// The whole library in one include.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/Language.h>
