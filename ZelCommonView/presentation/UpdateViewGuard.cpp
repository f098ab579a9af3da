#include <ZelCommonView/presentation/UpdateViewGuard.h>

namespace Zel {

UpdateViewGuard::UpdateViewGuard() : token(std::make_shared<LifetimeToken>()) {}

UpdateViewGuard::~UpdateViewGuard() = default;

} // namespace Zel
