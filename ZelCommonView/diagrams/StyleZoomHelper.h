#pragma once

#include <ZelCommonView/common/Export.h>

#include <glibmm/refptr.h>

#include <cstdint>

namespace Gtk {
class CssProvider;
}

namespace ZelView {

/// Sets the font size of all text of the application, in pixels. For the GTK thread.
class ZEL_API StyleZoomHelper {
public:
    StyleZoomHelper() = delete;

    /// The size that the zoom operations have reached; initially 14. Until one of them is called, the text
    /// has the size of the theme.
    static std::int32_t getFontSize() { return _fontSize; }

    /// Shows any size, but doesn't remember it: the next zoom goes on from `getFontSize()`. That is meant.
    /// A negative size throws a `Gtk::CssProviderError` and leaves the text with the size of the theme.
    static void setFontSize(int size);

    /// One pixel less, but not below 10.
    static void zoomOut();
    /// One pixel more, but not above 24.
    static void zoomIn();
    /// Back to 14.
    static void zoomDefault();

private:
    static Glib::RefPtr<Gtk::CssProvider>& _getFontProvider();

    static std::int32_t _fontSize;
};

} // namespace ZelView
