#include <ZelCommonView/windows/WindowPresenter.h>

namespace Zel {

WindowPresenter::~WindowPresenter() = default;

std::unique_ptr<IWindowView> WindowPresenter::_createDefaultView() {
    return std::make_unique<WindowView>();
}

} // namespace Zel
