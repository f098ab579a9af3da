#pragma once

#include <ZelCommonView/common/Export.h>

#include <cairomm/context.h>
#include <gdkmm/pixbuf.h>

namespace ZelView {

/// Keeps one picture and paints it.
class ZEL_API ImageDrawer {
public:
    /// Keeps this picture in place of the former one; null is allowed.
    void save(Glib::RefPtr<Gdk::Pixbuf> picture);
    /// Paints the picture with its top left corner at the origin; does nothing without one.
    void draw(const Cairo::RefPtr<Cairo::Context>& context) const;

private:
    Glib::RefPtr<Gdk::Pixbuf> image;
};

} // namespace ZelView
