#include <ZelCommonView/collections/RemoveCellRenderer.h>

#include <ZelCommonView/collections/VirtualizationListView.h>
#include <ZelCommonView/common/Directories.h>
#include <ZelCommonView/common/EmitKept.h>

namespace Zel {

IRemoveCellRendererView::~IRemoveCellRendererView() = default;

sigc::signal<void, IRowPresenter*>& IRemoveCellRendererView::signalRemoveRow() {
    return removeRow;
}

RemoveCellRenderer::RemoveCellRenderer() {
    property_mode() = Gtk::CELL_RENDERER_MODE_ACTIVATABLE;
    property_xpad() = 5;
    property_pixbuf() = Gdk::Pixbuf::create_from_file(getThemesDir() + "Icons/Button/Remove.png");
}

RemoveCellRenderer::~RemoveCellRenderer() = default;

bool RemoveCellRenderer::activate_vfunc(GdkEvent*, Gtk::Widget& widget, const Glib::ustring& path,
                                        const Gdk::Rectangle&, const Gdk::Rectangle&,
                                        Gtk::CellRendererState) {
    auto* const list = dynamic_cast<VirtualizationListView*>(&widget);
    if (!list || !list->get_model())
        return false;
    const Gtk::TreeModel::iterator row = list->get_model()->get_iter(path);
    if (!row)
        return false;
    IRowPresenter* const presenter = (*row)[list->getColumns().rowPresenter];
    if (!presenter)
        return false;
    emitKept(signalRemoveRow(), presenter);
    return true;
}

RemoveCellRendererPresenter::RemoveCellRendererPresenter() : view(std::make_unique<RemoveCellRenderer>()) {
    view->signalRemoveRow().connect(sigc::mem_fun(*this, &RemoveCellRendererPresenter::_onRemoveRow));
}

RemoveCellRendererPresenter::~RemoveCellRendererPresenter() = default;

IView* RemoveCellRendererPresenter::getView() {
    return view.get();
}

sigc::signal<void, IRowPresenter*>& RemoveCellRendererPresenter::signalRemoveRow() {
    return removeRow;
}

void RemoveCellRendererPresenter::_onRemoveRow(IRowPresenter* row) {
    emitKept(removeRow, row);
}

} // namespace Zel
