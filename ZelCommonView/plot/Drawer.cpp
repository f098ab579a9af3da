#include <ZelCommonView/plot/Drawer.h>

namespace ZelView {

Drawer::~Drawer() = default;

void Drawer::initDrawArea() {}

InfoDrawer::~InfoDrawer() = default;

BaseFragmentableDrawer::~BaseFragmentableDrawer() = default;

} // namespace ZelView
