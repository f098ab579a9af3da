#pragma once

#include <ZelCommonView/common/Export.h>

#include <memory>
#include <string>

namespace Zel {

/// How an application describes itself.
class ZEL_API IZelShellDescriptor {
public:
    virtual ~IZelShellDescriptor();

    /// The name for people, UTF-8.
    virtual const std::string& name() const = 0;
    /// The file of the icon; empty for none.
    virtual const std::string& iconPath() const = 0;
    /// Whether the application has hardware built in.
    virtual bool hasEmbededHardware() const = 0;
};

/// A fixed description.
class ZEL_API ShellDescriptor : public IZelShellDescriptor {
public:
    /// Keeps what it is given; the name is UTF-8, and no file is looked for.
    ShellDescriptor(const std::string& name, const std::string& iconPath, bool hasEmbededHardware);
    ~ShellDescriptor() override;

    const std::string& name() const override { return givenName; }

    const std::string& iconPath() const override { return givenIconPath; }

    bool hasEmbededHardware() const override { return embededHardware; }

    /// Stands for an application that hasn't described itself: "?", no icon and no hardware. Always the same
    /// object, made at the first use.
    static std::shared_ptr<ShellDescriptor> unknown();

private:
    std::string givenName;
    std::string givenIconPath;
    bool embededHardware;
};

} // namespace Zel
