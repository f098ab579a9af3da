#pragma once

#include <ZelCommonView/common/Export.h>

#include <memory>
#include <string>

namespace Zel {

class IAboutView;
class IView;
class WindowPresenter;

/// Opens the about window of an application, one at a time, and tidies up when it is closed. When this dies
/// the window goes with it.
class ZEL_API AboutWindowActivatorPresenter {
public:
    AboutWindowActivatorPresenter();
    ~AboutWindowActivatorPresenter();
    AboutWindowActivatorPresenter(const AboutWindowActivatorPresenter&) = delete;
    AboutWindowActivatorPresenter& operator=(const AboutWindowActivatorPresenter&) = delete;

    /// Opens the window over that of `parent`, which may be null. While it is open nothing happens, not even
    /// to the texts. An empty version shows no line for it. Throws what `AboutView` throws.
    void show(IView* parent, const std::string& programName, const std::string& version);

private:
    void _onClosed();

    std::unique_ptr<WindowPresenter> window; ///< null unless it is open
    std::unique_ptr<IAboutView> about;       ///< null unless it is open
};

} // namespace Zel
