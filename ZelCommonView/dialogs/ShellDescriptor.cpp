#include <ZelCommonView/dialogs/ShellDescriptor.h>

namespace Zel {

IZelShellDescriptor::~IZelShellDescriptor() = default;

ShellDescriptor::ShellDescriptor(const std::string& name, const std::string& iconPath,
                                 bool hasEmbededHardware)
    : givenName(name), givenIconPath(iconPath), embededHardware(hasEmbededHardware) {}

ShellDescriptor::~ShellDescriptor() = default;

std::shared_ptr<ShellDescriptor> ShellDescriptor::unknown() {
    static const auto shared = std::make_shared<ShellDescriptor>("?", "", false);
    return shared;
}

} // namespace Zel
