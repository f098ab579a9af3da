#include "Look.h"

#include <gdkmm/screen.h>
#include <gtkmm/cssprovider.h>
#include <gtkmm/stylecontext.h>

namespace examples {

namespace {

constexpr const char* sheet = R"css(
.windowTitlebar {
    padding: 2px 6px;
    background: @theme_bg_color;
    border-bottom: 1px solid @borders;
}
.windowTitlebar .title { font-weight: bold; }
button.btnClose, button.btnMin, button.btnMax, button.btnUnMax, button.btnToWindow,
button.ToolAddButtonTransparent, button.ToolRemoveButtonTransparent {
    min-width: 16px;
    min-height: 16px;
    padding: 3px;
    margin: 0 1px;
    background-position: center;
    background-repeat: no-repeat;
    background-size: 16px 16px;
}
.windowTitlebar button.btnClose, .windowTitlebar button.btnMin, .windowTitlebar button.btnMax,
.windowTitlebar button.btnUnMax { padding: 5px; }
button.btnClose { background-image: -gtk-icontheme("window-close-symbolic"); }
button.btnMin { background-image: -gtk-icontheme("window-minimize-symbolic"); }
button.btnMax { background-image: -gtk-icontheme("window-maximize-symbolic"); }
button.btnUnMax, button.btnToWindow { background-image: -gtk-icontheme("window-restore-symbolic"); }
button.ToolAddButtonTransparent { background-image: -gtk-icontheme("list-add-symbolic"); }
button.ToolRemoveButtonTransparent { background-image: -gtk-icontheme("list-remove-symbolic"); }

.panel > overlay > * > box > box:first-child { background-color: alpha(@borders, 0.35); }
.panelTabs > stack { background-color: @theme_bg_color; }
.panel { border: 1px solid @borders; }
.headerButtons button { min-width: 14px; min-height: 14px; padding: 2px 3px; }
.demoboxPanel { background-color: @theme_selected_bg_color; }

.aboutView > border { border: none; }
.standartContentMargin { padding: 16px; }
.aboutView .icon { margin-right: 12px; }
.aboutView button.link { padding: 2px 0; }
.recordValueMargin { margin-right: 6px; }
.dialogButton { min-width: 72px; }

.leftMarginM1 { margin-left: -1px; }
.topMarginM1 { margin-top: -1px; }
label.standartSmallContentMargin { padding: 4px 8px; }
.tableScrolledCell > border { background-color: @theme_base_color; }
.TableHeaderCellView > border { background-color: mix(@theme_bg_color, @borders, 0.4); }
.TableHeaderCellView label { font-weight: bold; }
.SelectionFrame > border { background-color: @theme_base_color; }
.Selected .SelectionFrame > border { background-color: @theme_selected_bg_color; }
.Selected .SelectionContent { color: @theme_selected_fg_color; }
.ArrowDownImage, .ArrowRightImage {
    min-width: 16px;
    min-height: 16px;
    padding: 3px;
    background-position: center;
    background-repeat: no-repeat;
    background-size: 16px 16px;
}
.ArrowDownImage { background-image: -gtk-icontheme("pan-down-symbolic"); }
.ArrowRightImage { background-image: -gtk-icontheme("pan-end-symbolic"); }
.ExpandAreaContainer { padding: 4px 0 8px 22px; }
.ExpandAreaContainer > border { border: none; }
.stateOkContainer { background-color: alpha(@success_color, 0.3); }
.stateErrorContainer { background-color: alpha(@error_color, 0.3); }
.stateUndefinedContainer { background-color: alpha(@borders, 0.5); }
.stateOkContainer, .stateErrorContainer, .stateUndefinedContainer { padding: 4px; border-radius: 4px; }
.RoundFrame { padding: 2px; }
.RoundFrame > border { border-radius: 12px; border-color: alpha(currentColor, 0.6); }
.RoundFrame label { min-width: 18px; font-weight: bold; }
frame.empty > border { border-style: dashed; }
.EmptyView { min-height: 16px; }
)css";

} // namespace

void installLook() {
    static const Glib::RefPtr<Gtk::CssProvider> provider = [] {
        const auto made = Gtk::CssProvider::create();
        made->load_from_data(sheet);
        Gtk::StyleContext::add_provider_for_screen(Gdk::Screen::get_default(), made,
                                                   GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
        return made;
    }();
}

} // namespace examples
