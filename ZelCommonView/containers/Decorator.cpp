#include <ZelCommonView/containers/Decorator.h>

namespace Zel {

Decorator::Decorator() = default;

Decorator::~Decorator() = default;

} // namespace Zel
