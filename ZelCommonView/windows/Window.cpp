#include <ZelCommonView/windows/Window.h>

namespace Zel {

namespace {

constexpr int logoWidth = 95;   // pixels
constexpr int logoMargin = 10;  // pixels
constexpr int titleHeight = 20; // pixels

} // namespace

Window::Window() : Gtk::Window(Gtk::WINDOW_TOPLEVEL) {
    _compose();
    _composeWindowButtons();
    signal_show().connect(sigc::mem_fun(*this, &Window::_onShow), true);
}

Window::~Window() = default;

void Window::_compose() {
    set_titlebar(titleBar);
    titleBar.set_valign(Gtk::ALIGN_CENTER);
    titleBar.set_vexpand(false);
    titleBar.property_margin() = 0;
    titleBar.get_style_context()->add_class("windowTitlebar");
    titleBar.set_orientation(Gtk::ORIENTATION_HORIZONTAL);

    logo.get_style_context()->add_class("logo");
    logo.property_width_request() = logoWidth;
    logo.set_margin_start(logoMargin);
    titleBar.add(logo);

    titleBar.add(title);
    title.set_hexpand(true);
    title.set_vexpand(true);
    title.set_halign(Gtk::ALIGN_CENTER);
    title.set_size_request(-1, titleHeight);

    for (Gtk::Grid* const buttons : {&userButtons, &windowButtons}) {
        titleBar.add(*buttons);
        buttons->set_vexpand(true);
        buttons->set_hexpand(false);
        buttons->set_valign(Gtk::ALIGN_CENTER);
        buttons->set_orientation(Gtk::ORIENTATION_HORIZONTAL);
    }
}

void Window::_composeWindowButtons() {
    // Each lands left of those before: minimize, maximize, close.
    windowButtons.attach_next_to(btnClose, Gtk::POS_LEFT, 1, 1);
    windowButtons.attach_next_to(btnMax, Gtk::POS_LEFT, 1, 1);
    windowButtons.attach_next_to(btnMin, Gtk::POS_LEFT, 1, 1);

    btnClose.signal_clicked().connect(sigc::mem_fun(*this, &Window::_onBtnCloseClicked));
    btnMax.signal_toggled().connect(sigc::mem_fun(*this, &Window::_onBtnMaxToggled));
    btnMin.signal_clicked().connect(sigc::mem_fun(*this, &Window::_onBtnMinClicked));

    title.get_style_context()->add_class("title");
    btnClose.get_style_context()->add_class("btnClose");
    btnMin.get_style_context()->add_class("btnMin");
    btnMax.get_style_context()->add_class(is_maximized() ? "btnUnMax" : "btnMax");
}

void Window::set_title(const std::string& value) {
    title.set_label(value);
    Gtk::Window::set_title(value);
}

void Window::setUserButtons(Gtk::Widget* widget) {
    if (!widget)
        return;
    userButtons.add(*widget);
    show_all();
}

void Window::removeUserButtons() {
    for (Gtk::Widget* const child : userButtons.get_children())
        userButtons.remove(*child);
}

void Window::_onShow() {
    get_window()->set_decorations(Gdk::WMDecoration(0));
}

void Window::_onBtnCloseClicked() {
    close();
}

void Window::_onBtnMinClicked() {
    iconify();
}

void Window::_onBtnMaxToggled() {
    // The button leads: a change of the state by the window manager doesn't reach it, and that is meant.
    const auto style = btnMax.get_style_context();
    style->remove_class("btnUnMax");
    style->remove_class("btnMax");
    if (btnMax.get_active()) {
        maximize();
        style->add_class("btnUnMax");
    } else {
        unmaximize();
        style->add_class("btnMax");
    }
}

} // namespace Zel
