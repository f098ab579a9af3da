#include <ZelCommonView/windows/DemoBoxView.h>

namespace Zel {

namespace {

constexpr const char* panelStyle = "demoboxPanel";
constexpr double shade = 0.2;

} // namespace

DemoBoxView::DemoBoxView() : Gtk::Box(Gtk::ORIENTATION_HORIZONTAL) {
    set_no_show_all(true);
    for (Gtk::Box* const half : {&first, &second}) {
        pack_start(*half, true, true, 0);
        half->get_style_context()->add_class(panelStyle);
    }
    show_all_children(true);
}

DemoBoxView::~DemoBoxView() = default;

void DemoBoxView::set(Positions position, bool visible) {
    get_style_context()->remove_class(panelStyle);
    set_opacity(1.0);
    switch (position) {
    case Positions::Left:
        setPanelParams(shade, 0.0, Gtk::ORIENTATION_HORIZONTAL);
        break;
    case Positions::Right:
        setPanelParams(0.0, shade, Gtk::ORIENTATION_HORIZONTAL);
        break;
    case Positions::Top:
        setPanelParams(shade, 0.0, Gtk::ORIENTATION_VERTICAL);
        break;
    case Positions::Bottom:
        setPanelParams(0.0, shade, Gtk::ORIENTATION_VERTICAL);
        break;
    case Positions::Center:
        setPanelParams(shade);
        break;
    default:
        setPanelParams(0.0, 0.0, Gtk::ORIENTATION_HORIZONTAL);
        break;
    }
    set_visible(visible);
}

void DemoBoxView::setPanelParams(double firstOpacity, double secondOpacity, Gtk::Orientation orientation) {
    first.set_opacity(firstOpacity);
    second.set_opacity(secondOpacity);
    set_orientation(orientation);
}

void DemoBoxView::setPanelParams(double opacity) {
    get_style_context()->add_class(panelStyle);
    set_opacity(opacity);
}

} // namespace Zel
