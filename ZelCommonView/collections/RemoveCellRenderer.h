/// The column of a list that removes its row.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/cellrendererpixbuf.h>

#include <memory>

namespace Zel {

class IRowPresenter;

/// What a person presses to remove a row.
class ZEL_API IRemoveCellRendererView : public IView {
public:
    ~IRemoveCellRendererView() override;

    /// Fires with the row that was pressed. A listener may remove the row and delete the view.
    sigc::signal<void, IRowPresenter*>& signalRemoveRow();

private:
    sigc::signal<void, IRowPresenter*> removeRow;
};

/// Paints a cross in each row of a column. It works only inside a `VirtualizationListView`, as the renderer
/// of one of its columns.
class ZEL_API RemoveCellRenderer : public Gtk::CellRendererPixbuf, public virtual IRemoveCellRendererView {
public:
    /// Loads "Icons/Button/Remove.png" of the theme's folder; throws what Gdk::Pixbuf::create_from_file
    /// throws when that can't be read.
    RemoveCellRenderer();
    ~RemoveCellRenderer() override;

protected:
    /// Reports the row at the path and returns true; false, without a report, outside such a list and where
    /// there is no row or none with a presenter.
    bool activate_vfunc(GdkEvent* event, Gtk::Widget& widget, const Glib::ustring& path,
                        const Gdk::Rectangle& backgroundArea, const Gdk::Rectangle& cellArea,
                        Gtk::CellRendererState flags) override;
};

/// The presenter of the column that removes its row; its view is the column's renderer. The application
/// removes the row when it hears the signal: nothing is removed here.
class ZEL_API RemoveCellRendererPresenter : public IPresenter {
public:
    /// Makes its view, a `RemoveCellRenderer`, at once.
    RemoveCellRendererPresenter();
    ~RemoveCellRendererPresenter() override;

    IView* getView() override;

    /// Fires with the row that was pressed. A listener may delete the presenter.
    sigc::signal<void, IRowPresenter*>& signalRemoveRow();

private:
    void _onRemoveRow(IRowPresenter* row);

    sigc::signal<void, IRowPresenter*> removeRow;
    std::unique_ptr<IRemoveCellRendererView> view;
};

} // namespace Zel
