#include <ZelCommonView/collections/PagedContentView.h>

#include <gtkmm/box.h>

namespace Zel {

IPagedContentView::~IPagedContentView() = default;

sigc::signal<void, int>& IPagedContentView::signalPageSwitched() {
    return pageSwitched;
}

PagedContentView::PagedContentView() {
    for (const char* const styleClass : {"PagedContentView", "standartSmallContentMargin", "panelTabs"})
        get_style_context()->add_class(styleClass);
    set_hexpand(true);
    set_vexpand(true);
    switchConnection = signal_switch_page().connect(sigc::mem_fun(*this, &PagedContentView::_onSwitchPage));
    show_all();
}

PagedContentView::~PagedContentView() {
    // Gtk switches pages once more while the notebook takes them out.
    switchConnection.disconnect();
}

void PagedContentView::addPage(const std::string& title) {
    auto* const box = Gtk::make_managed<Gtk::VBox>(false, 0);
    box->set_hexpand(true);
    box->set_vexpand(true);
    // First: Gtk opens every page that is hidden when it comes, and hides its tab.
    box->show();
    append_page(*box, title, false);
}

void PagedContentView::setPageContent(int page, IView* content) {
    auto* const widget = dynamic_cast<Gtk::Widget*>(content);
    auto* const container = dynamic_cast<Gtk::Container*>(get_nth_page(page));
    if (!container)
        return;
    container->foreach ([container](Gtk::Widget& child) { container->remove(child); });
    if (!widget)
        return;
    container->add(*widget);
    container->show_all();
}

void PagedContentView::setIsPageVisible(int page, bool isVisible) {
    Gtk::Widget* const content = get_nth_page(page);
    if (!content)
        return;
    if (isVisible) {
        content->set_no_show_all(false);
        content->show_all();
    } else {
        // A later show_all of the notebook shall not bring it back.
        content->set_no_show_all(true);
        content->hide();
    }
}

void PagedContentView::_onSwitchPage(Gtk::Widget*, unsigned int page) {
    signalPageSwitched().emit(static_cast<int>(page));
}

} // namespace Zel
