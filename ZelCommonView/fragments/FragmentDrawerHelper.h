#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/Series.h>

#include <cairomm/context.h>
#include <gdkmm/pixbuf.h>

#include <functional>
#include <optional>
#include <vector>

namespace Gtk {
class Widget;
}

namespace ZelView::Fragments {

struct SurfacePixels;

using DrawFunction = std::function<void(const Cairo::RefPtr<Cairo::Context>&)>;

/// One signal of a canvas and the picture that is kept of it.
struct Fragment {
    bool needRedraw = false;         ///< the image is out of date
    DrawFunction drawer;             ///< paints the fragment
    Glib::RefPtr<Gdk::Pixbuf> image; ///< cached picture with alpha, or null
};

/// Does the image work of a canvas: it composes a picture of the widget's size from layers.
///
/// A layer is painted on the background colour, and that colour is then made transparent. What a layer paints
/// in exactly the background colour thus disappears. A widget without a size gets no picture, and nothing is
/// composed.
///
/// Where the background colour is opaque and the context paints on an image of 32 bits, a layer is read from
/// there and composed in one pass over the pixels; everywhere else a snapshot, the colour key and the
/// composition are steps of their own. Both make the same picture to the byte.
class ZEL_API FragmentDrawerHelper {
public:
    /// The widget gives the size, and must outlive the helper.
    explicit FragmentDrawerHelper(const Gtk::Widget& widget);
    FragmentDrawerHelper(const FragmentDrawerHelper&) = delete;
    FragmentDrawerHelper& operator=(const FragmentDrawerHelper&) = delete;

    /// The picture composed so far; null before the first paint.
    Glib::RefPtr<Gdk::Pixbuf> getBackground() const;
    /// Initially opaque white. Images that are cached already keep the colour they were made with.
    void setBackgroundColor(Zel::Color color);

    /// Whether the background colour lets nothing through.
    bool isOpaque() const { return backgroundColor.a == 255; }

    /// Clears to the background colour and starts a new picture.
    void startFragmentsDraw(const Cairo::RefPtr<Cairo::Context>& context);
    /// Paints the composed picture in place of the working marks on the context.
    void endFragmentsDraw(const Cairo::RefPtr<Cairo::Context>& context);

    /// Calls the function and leaves the state of the context as it was.
    void draw(const Cairo::RefPtr<Cairo::Context>& context, const DrawFunction& function);
    /// Makes a layer of what the function paints and composes it.
    void drawAsFragment(const Cairo::RefPtr<Cairo::Context>& context, const DrawFunction& function);
    /// Makes one layer of what all functions paint and composes it.
    void drawAsFragment(const Cairo::RefPtr<Cairo::Context>& context,
                        const std::vector<DrawFunction>& functions);
    /// Composes the fragment's image, which is painted anew only if it is out of date.
    void drawFragment(const Cairo::RefPtr<Cairo::Context>& context, Fragment& fragment);

private:
    void _clearBackground(const Cairo::RefPtr<Cairo::Context>& context);
    void _saveBackground(const Cairo::RefPtr<Cairo::Context>& context);
    bool _copyBackground(const Cairo::RefPtr<Cairo::Context>& context);
    void _drawLayer(const Cairo::RefPtr<Cairo::Context>& context, const std::vector<DrawFunction>& functions);
    std::optional<SurfacePixels> _getPixels(const Cairo::RefPtr<Cairo::Context>& context) const;
    Glib::RefPtr<Gdk::Pixbuf> _getDrawed(const Cairo::RefPtr<Cairo::Context>& context) const;
    Glib::RefPtr<Gdk::Pixbuf> _getImage(const Cairo::RefPtr<Cairo::Context>& context,
                                        const DrawFunction& function);
    Glib::RefPtr<Gdk::Pixbuf> _getImage(const Cairo::RefPtr<Cairo::Context>& context,
                                        const std::vector<DrawFunction>& functions);
    Glib::RefPtr<Gdk::Pixbuf> _getFragmentImage(const Cairo::RefPtr<Cairo::Context>& context,
                                                Fragment& fragment);
    Glib::RefPtr<Gdk::Pixbuf> _addAlpha(const Glib::RefPtr<Gdk::Pixbuf>& picture) const;
    void _attachSticker(const Glib::RefPtr<Gdk::Pixbuf>& picture);

    const Gtk::Widget& widget;
    Zel::Color backgroundColor{255, 255, 255, 255};
    Glib::RefPtr<Gdk::Pixbuf> background; ///< the picture being composed
};

} // namespace ZelView::Fragments
