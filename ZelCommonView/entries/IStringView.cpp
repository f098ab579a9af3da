#include <ZelCommonView/entries/IStringView.h>

namespace ZelTree {

IStringView::~IStringView() = default;

} // namespace ZelTree
