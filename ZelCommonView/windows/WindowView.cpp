#include <ZelCommonView/windows/WindowView.h>

#include <ZelCommonView/common/EmitKept.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

namespace Zel {

IWindowView::~IWindowView() = default;

WindowControl::~WindowControl() = default;

WindowView::WindowView() = default;

WindowView::~WindowView() {
    if (window)
        window->remove();
}

void WindowView::setContentView(IView* view) {
    setContentWidget(GtkWidgetHelper::getWidget(view));
}

void WindowView::setContentWidget(Gtk::Widget* widget) {
    content = widget;
    if (window)
        _setActiveWindowContent(content);
}

void WindowView::setTitle(const std::string& givenTitle) {
    title = givenTitle;
    if (window)
        window->set_title(title);
}

void WindowView::setModal(bool givenModal) {
    modal = givenModal;
    if (window)
        window->set_modal(modal);
}

void WindowView::setDefaultSize(int width, int height) {
    defaultWidth = width;
    defaultHeight = height;
}

IView* WindowView::show(IView* parent) {
    if (window)
        return window.get();
    window = std::make_unique<WindowControl>(Gtk::WINDOW_TOPLEVEL);
    _onWindowCreated(window.get());
    parentWindow = GtkWidgetHelper::getParentWindow(parent);
    if (parentWindow)
        window->set_transient_for(*parentWindow);
    window->set_title(title);
    window->set_modal(modal);
    window->set_default_size(defaultWidth, defaultHeight);
    window->set_type_hint(Gdk::WINDOW_TYPE_HINT_UTILITY);
    _setActiveWindowContent(content);
    window->signal_show().connect(sigc::mem_fun(*this, &WindowView::_onSignalShow), true);
    deleteConnection =
        window->signal_delete_event().connect(sigc::mem_fun(*this, &WindowView::_onSignalDeleteEvent), true);
    window->set_position(Gtk::WIN_POS_CENTER_ON_PARENT);
    window->show_all();
    return window.get();
}

void WindowView::close() {
    if (window)
        window->close();
}

IView* WindowView::getWindowObject() {
    return window.get();
}

void WindowView::_onWindowCreated(Gtk::Window*) {}

void WindowView::_setActiveWindowContent(Gtk::Widget* widget) {
    window->remove();
    if (!widget)
        return;
    widget->get_style_context()->add_class("StandartContent");
    window->add(*widget);
}

void WindowView::_onSignalShow() {
    emitKept(signalOpened);
}

bool WindowView::_onSignalDeleteEvent(GdkEventAny*) {
    deleteConnection.disconnect();
    // The content only leaves the window, since it is owned elsewhere.
    window->remove();
    // Out of the field first: listeners that the window's end calls shall find none.
    std::unique_ptr<WindowControl>(std::move(window)).reset();
    _onSignalClosed();
    // A listener may have deleted this view.
    return false;
}

void WindowView::_onSignalClosed() {
    emitKept(signalClosed);
}

} // namespace Zel
