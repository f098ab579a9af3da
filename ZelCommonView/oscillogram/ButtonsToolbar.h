#pragma once

#include <ZelCommonView/common/Export.h>

#include <gtkmm/bin.h>
#include <gtkmm/toolbar.h>
#include <gtkmm/toolbutton.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ZelView {

/// A toolbar of text buttons. Each button has the style class "oscButton", which a theme defines.
class ZEL_API ButtonsToolbar : public Gtk::Bin {
public:
    /// A row of buttons, or a column if `horizontal` is false; empty at first.
    explicit ButtonsToolbar(bool horizontal);
    ~ButtonsToolbar() override;

    /// Appends a button and shows it. `action` is copied and called at each click.
    void addButton(const std::string& label, std::function<void()> action);

private:
    Gtk::Toolbar toolbar;
    std::vector<std::unique_ptr<Gtk::ToolButton>> buttons;
    std::uint64_t buttonCount = 0; ///< position of the next button
};

} // namespace ZelView
