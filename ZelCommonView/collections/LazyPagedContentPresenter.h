#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <functional>
#include <memory>
#include <string>

namespace Zel {

/// Pages behind tabs that are built when a person opens them for the first time. A page that was built is
/// kept until the whole presenter goes: only its view leaves the screen while another page is open.
///
/// The view, a `PagedContentView`, is made when it is first asked for. Of the pages that were added before
/// that none is open yet: the first one stays empty until a person switches. The first page that is added
/// afterwards is built at once.
class ZEL_API LazyPagedContentPresenter : public IPresenter {
public:
    LazyPagedContentPresenter();
    ~LazyPagedContentPresenter() override;

    IView* getView() override;

    /// Adds a page at the end and returns its index, counted from 0. `factory` makes the page's presenter; it
    /// runs while Gtk switches pages and must not switch them itself. An empty one throws
    /// std::bad_function_call when the page is opened; one that gives null leaves the page empty and is asked
    /// again the next time.
    int addPage(const std::string& title, const std::function<std::unique_ptr<IPresenter>()>& factory);

    /// Hides a page with its tab or shows it. Throws std::out_of_range if there is no such page.
    void setIsPageVisible(int page, bool isVisible);

private:
    class Impl;

    std::unique_ptr<Impl> impl;
};

} // namespace Zel
