// Not installed: the pixel work of a canvas as single passes, for the sources of the library only.
#pragma once

#include <ZelCommonView/plot/Series.h>

#include <cairomm/context.h>
#include <cairomm/surface.h>
#include <gdkmm/pixbuf.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace ZelView::Fragments {

/// A rectangle of a cairo image's pixels: 32 bits each, premultiplied, alpha, red, green, blue from the high
/// byte down.
struct SurfacePixels {
    const unsigned char* data = nullptr; ///< the top left pixel
    std::ptrdiff_t stride = 0;           ///< bytes from a row to the next
    int width = 0;
    int height = 0;
    bool hasAlpha = false; ///< otherwise the high byte means nothing and every pixel is opaque
};

/// The pixels of the context's target from its user origin on, where they can be read in place: an image of
/// 32 bits, not scaled, that covers the whole rectangle from a pixel's edge on. Empty for every other target.
/// They stay as they are until something is painted.
std::optional<SurfacePixels> readableTarget(const Cairo::RefPtr<Cairo::Context>& context, int width,
                                            int height);

/// Whether what is painted within the first `width` by `height` units from the user origin reaches the
/// target.
bool isWholeExposed(const Cairo::RefPtr<Cairo::Context>& context, int width, int height);

/// A new picture of the pixels, with alpha and not premultiplied; null where there is no memory. Equal to the
/// byte to a copy on an ARGB32 surface that `Gdk::Pixbuf::create` reads.
Glib::RefPtr<Gdk::Pixbuf> makePicture(const SurfacePixels& pixels);
/// The same, and pixels of exactly the colour's three channels become transparent as by
/// `Gdk::Pixbuf::add_alpha`.
Glib::RefPtr<Gdk::Pixbuf> makePicture(const SurfacePixels& pixels, Zel::Color transparent);

/// Composes `makePicture(pixels, transparent)` onto the top left corner of a picture with alpha, without
/// making it.
void compose(const SurfacePixels& pixels, Zel::Color transparent, Gdk::Pixbuf& onto);
/// Composes the top left corner of a picture onto that of another, as `Gdk::Pixbuf::composite` does at scale
/// 1 and offset 0 with full opacity. Both have alpha and are at least of this size.
void compose(const Gdk::Pixbuf& picture, int width, int height, Gdk::Pixbuf& onto);

/// One picture that shows all of them, the later ones above the earlier. Composing it gives the same bytes as
/// composing one after the other. Null where that can't be, since they differ in size or hold translucent
/// pixels, and where there is no memory or nothing to merge.
Glib::RefPtr<Gdk::Pixbuf> merge(const std::vector<Glib::RefPtr<Gdk::Pixbuf>>& pictures);

/// Copies the opaque pixels of a picture with alpha to those of an image, and tells whether all are.
bool copyOpaque(const Gdk::Pixbuf& picture, const SurfacePixels& pixels);
/// The picture, which has alpha, on a new surface. Equal to the byte to the one that
/// `Gdk::Cairo::set_source_pixbuf` makes. Throws what cairomm throws where there is no memory.
Cairo::RefPtr<Cairo::ImageSurface> makeSurface(const Gdk::Pixbuf& picture);

} // namespace ZelView::Fragments
