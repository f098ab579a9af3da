#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/notebook.h>

#include <string>

namespace Zel {

/// Pages behind tabs, counted from 0. The contents stay their presenters'.
class ZEL_API IPagedContentView : public IView {
public:
    ~IPagedContentView() override;

    /// Fires with the page that is open now, by a person or because of a change of the pages.
    sigc::signal<void, int>& signalPageSwitched();

    /// Adds an empty page at the end.
    virtual void addPage(const std::string& title) = 0;
    /// Puts a content in the place of the page's one before; null, or what is no widget, leaves the page
    /// empty. No such page is ignored.
    virtual void setPageContent(int page, IView* content) = 0;
    /// Hides a page with its tab or shows it. No such page is ignored.
    virtual void setIsPageVisible(int page, bool isVisible) = 0;

private:
    sigc::signal<void, int> pageSwitched;
};

/// A notebook whose pages are boxes. The theme reaches it by "PagedContentView", "standartSmallContentMargin"
/// and "panelTabs".
class ZEL_API PagedContentView : public Gtk::Notebook, public IPagedContentView {
public:
    PagedContentView();
    ~PagedContentView() override;

    void addPage(const std::string& title) override;
    void setPageContent(int page, IView* content) override;
    void setIsPageVisible(int page, bool isVisible) override;

private:
    void _onSwitchPage(Gtk::Widget* content, unsigned int page);

    sigc::connection switchConnection;
};

} // namespace Zel
