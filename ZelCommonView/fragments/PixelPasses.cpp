#include <ZelCommonView/fragments/PixelPasses.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace ZelView::Fragments {

namespace {

using Word = std::uint32_t;
using Byte = unsigned char;

constexpr Word opaque = 0xff000000;
/// So many pixels are dealt with at once.
constexpr int block = 4;
constexpr std::ptrdiff_t bytes = sizeof(Word);

/// One pixel of a picture, not premultiplied.
struct Rgba {
    Byte r, g, b, a;
};

Word load(const Byte* pixel) {
    Word word;
    std::memcpy(&word, pixel, sizeof word);
    return word;
}

template <typename Pixel>
void store(Byte* to, Pixel pixel) {
    static_assert(sizeof(Pixel) == sizeof(Word));
    std::memcpy(to, &pixel, sizeof pixel);
}

Rgba plain(Word pixel) {
    const Word a = pixel >> 24;
    const auto part = [pixel, a](int shift) {
        const Word value = (pixel >> shift) & 0xff;
        return static_cast<Byte>(a == 0xff ? value : a == 0 ? 0 : (value * 255 + a / 2) / a);
    };
    return {part(16), part(8), part(0), static_cast<Byte>(a)};
}

/// Rounded as Gdk does.
Word premultiplied(Rgba pixel) {
    const auto part = [a = Word(pixel.a)](Word value) {
        const Word product = value * a + 0x80;
        return (product + (product >> 8)) >> 8;
    };
    return Word(pixel.a) << 24 | part(pixel.r) << 16 | part(pixel.g) << 8 | part(pixel.b);
}

/// The colour's three channels as an opaque pixel of a surface.
Word wordOf(Zel::Color color) {
    return opaque | Word(color.r) << 16 | Word(color.g) << 8 | Word(color.b);
}

/// Translucent pixels may come to the key colour, too.
Rgba keyed(Word pixel, Word key) {
    Rgba made = plain(pixel);
    if ((opaque | Word(made.r) << 16 | Word(made.g) << 8 | Word(made.b)) == key)
        made.a = 0;
    return made;
}

void layOver(Byte* to, Rgba pixel) {
    if (pixel.a == 0)
        return;
    if (pixel.a == 0xff) {
        store(to, pixel);
        return;
    }
    const Word own = 0xff * Word(pixel.a);
    const Word other = (0xff - Word(pixel.a)) * to[3];
    const Word sum = own + other;
    store(to, Rgba{static_cast<Byte>((own * pixel.r + other * to[0]) / sum),
                   static_cast<Byte>((own * pixel.g + other * to[1]) / sum),
                   static_cast<Byte>((own * pixel.b + other * to[2]) / sum), static_cast<Byte>(sum / 0xff)});
}

/// The pixels of a block, and all bits of a pixel where a comparison holds.
typedef Word Words __attribute__((vector_size(block * sizeof(Word))));

Words loadBlock(const Byte* pixels) {
    Words words;
    std::memcpy(&words, pixels, sizeof words);
    return words;
}

void storeBlock(Byte* to, Words words) {
    std::memcpy(to, &words, sizeof words);
}

bool isAny(Words words) {
    std::uint64_t pairs[block / 2];
    std::memcpy(pairs, &words, sizeof pairs);
    std::uint64_t any = 0;
    for (const std::uint64_t pair : pairs)
        any |= pair;
    return any != 0;
}

constexpr bool isLittleEndian = __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__;
/// The alpha of a picture's pixel, taken as a word.
constexpr Word pictureAlpha = isLittleEndian ? 0xff000000 : 0x000000ff;

/// Opaque pixels of a surface as words of a picture.
Words plainBlock(Words pixels) {
    return isLittleEndian ? (pixels & 0xff00ff00) | ((pixels >> 16) & 0xff) | ((pixels & 0xff) << 16)
                          : (pixels << 8) | (pixels >> 24);
}

/// Opaque pixels of a picture as those of a surface.
Words surfaceBlock(Words words) {
    return isLittleEndian ? plainBlock(words) : (words >> 8) | (words << 24);
}

bool isOpaque(Words pixels) {
    return !isAny(~pixels & opaque);
}

/// Goes over `count` pixels block by block: `whole(from, to)` may deal with a block and tells whether it did;
/// otherwise `one(from, to)` deals with each pixel.
template <typename Whole, typename One>
void passRow(const Byte* from, Byte* to, int count, Whole whole, One one) {
    for (int x = 0; x < count; x += block, from += block * bytes, to += block * bytes) {
        if (x + block <= count && whole(from, to))
            continue;
        for (int i = 0; i < std::min(block, count - x); ++i)
            one(from + i * bytes, to + i * bytes);
    }
}

template <typename Whole, typename One>
void pass(const SurfacePixels& pixels, Gdk::Pixbuf& onto, Whole whole, One one) {
    for (int y = 0; y < pixels.height; ++y)
        passRow(pixels.data + y * pixels.stride, onto.get_pixels() + std::ptrdiff_t(y) * onto.get_rowstride(),
                pixels.width, whole, one);
}

/// The same for what is mostly nothing: four blocks in a row are left out at once where `something(words)` is
/// 0 in all of them.
template <typename Something, typename Whole, typename One>
void passOfLittle(const Byte* from, std::ptrdiff_t stride, int width, int height, Gdk::Pixbuf& onto,
                  Something something, Whole whole, One one) {
    constexpr int wide = 4 * block;
    Byte* to = onto.get_pixels();
    for (int y = 0; y < height; ++y, from += stride, to += onto.get_rowstride()) {
        int x = 0;
        for (; x + wide <= width; x += wide) {
            const Byte* const four = from + x * bytes;
            constexpr std::ptrdiff_t next = block * bytes;
            if (isAny(something(loadBlock(four)) | something(loadBlock(four + next)) |
                      something(loadBlock(four + 2 * next)) | something(loadBlock(four + 3 * next))))
                passRow(four, to + x * bytes, wide, whole, one);
        }
        passRow(from + x * bytes, to + x * bytes, width - x, whole, one);
    }
}

/// Lays a picture over another; `one(from, to)` deals with each pixel of a block that holds translucent ones.
template <typename One>
void layOver(const Gdk::Pixbuf& picture, int width, int height, Gdk::Pixbuf& onto, One one) {
    passOfLittle(
        picture.get_pixels(), picture.get_rowstride(), width, height, onto,
        [](Words words) { return words & pictureAlpha; },
        [](const Byte* from, Byte* to) {
            const Words words = loadBlock(from);
            const Words alpha = words & pictureAlpha;
            const Words isSolid = Words(alpha == pictureAlpha);
            if (isAny(alpha & ~isSolid))
                return false;
            storeBlock(to, (words & isSolid) | (loadBlock(to) & ~isSolid));
            return true;
        },
        one);
}

/// Copies a picture to the memory of a surface; `one(from, to)` deals with each pixel of a block that isn't
/// opaque.
template <typename One>
void toSurface(const Gdk::Pixbuf& picture, int width, int height, Byte* data, std::ptrdiff_t stride,
               One one) {
    for (int y = 0; y < height; ++y)
        passRow(
            picture.get_pixels() + std::ptrdiff_t(y) * picture.get_rowstride(), data + y * stride, width,
            [](const Byte* from, Byte* to) {
                const Words words = loadBlock(from);
                if (isAny(~words & pictureAlpha))
                    return false;
                storeBlock(to, surfaceBlock(words));
                return true;
            },
            one);
}

Glib::RefPtr<Gdk::Pixbuf> emptyPicture(const SurfacePixels& pixels) {
    return Glib::wrap(gdk_pixbuf_new(GDK_COLORSPACE_RGB, true, 8, pixels.width, pixels.height));
}

/// What is missing in pixels of a surface without alpha.
Word fillOf(const SurfacePixels& pixels) {
    return pixels.hasAlpha ? 0 : opaque;
}

} // namespace

std::optional<SurfacePixels> readableTarget(const Cairo::RefPtr<Cairo::Context>& context, int width,
                                            int height) {
    cairo_surface_t* const target = cairo_get_target(context->cobj());
    if (cairo_surface_status(target) != CAIRO_STATUS_SUCCESS ||
        cairo_surface_get_type(target) != CAIRO_SURFACE_TYPE_IMAGE)
        return {};
    const cairo_format_t format = cairo_image_surface_get_format(target);
    if (format != CAIRO_FORMAT_ARGB32 && format != CAIRO_FORMAT_RGB24)
        return {};
    double scaleX = 0;
    double scaleY = 0;
    cairo_surface_get_device_scale(target, &scaleX, &scaleY);
    double offsetX = 0;
    double offsetY = 0;
    cairo_surface_get_device_offset(target, &offsetX, &offsetY);
    double x = 0;
    double y = 0;
    context->user_to_device(x, y);
    x += offsetX;
    y += offsetY;
    if (scaleX != 1 || scaleY != 1 || x != std::floor(x) || y != std::floor(y))
        return {};
    if (x < 0 || y < 0 || x + width > cairo_image_surface_get_width(target) ||
        y + height > cairo_image_surface_get_height(target))
        return {};
    cairo_surface_flush(target);
    const Byte* const data = cairo_image_surface_get_data(target);
    if (!data)
        return {}; // a part of another surface
    const std::ptrdiff_t stride = cairo_image_surface_get_stride(target);
    const Byte* const first =
        data + static_cast<std::ptrdiff_t>(y) * stride + static_cast<std::ptrdiff_t>(x) * bytes;
    return SurfacePixels{first, stride, width, height, format == CAIRO_FORMAT_ARGB32};
}

bool isWholeExposed(const Cairo::RefPtr<Cairo::Context>& context, int width, int height) {
    // The extents alone would not do: they also cover the holes of a clip that is made of several rectangles.
    std::vector<Cairo::Rectangle> clip;
    try {
        context->copy_clip_rectangle_list(clip);
    } catch (const std::exception&) {
        return false; // not made of rectangles
    }
    return clip.size() == 1 && clip[0].x <= 0 && clip[0].y <= 0 && clip[0].x + clip[0].width >= width &&
           clip[0].y + clip[0].height >= height;
}

Glib::RefPtr<Gdk::Pixbuf> makePicture(const SurfacePixels& pixels) {
    Glib::RefPtr<Gdk::Pixbuf> picture = emptyPicture(pixels);
    if (!picture)
        return picture;
    const Word fill = fillOf(pixels);
    pass(
        pixels, *picture.operator->(),
        [fill](const Byte* from, Byte* to) {
            const Words words = loadBlock(from) | fill;
            if (!isOpaque(words))
                return false;
            storeBlock(to, plainBlock(words));
            return true;
        },
        [fill](const Byte* from, Byte* to) { store(to, plain(load(from) | fill)); });
    return picture;
}

Glib::RefPtr<Gdk::Pixbuf> makePicture(const SurfacePixels& pixels, Zel::Color transparent) {
    Glib::RefPtr<Gdk::Pixbuf> picture = emptyPicture(pixels);
    if (!picture)
        return picture;
    const Word fill = fillOf(pixels);
    const Word key = wordOf(transparent);
    pass(
        pixels, *picture.operator->(),
        [fill, key](const Byte* from, Byte* to) {
            const Words words = loadBlock(from) | fill;
            if (!isOpaque(words))
                return false;
            storeBlock(to, plainBlock(words) & ~(Words(words == key) & pictureAlpha));
            return true;
        },
        [fill, key](const Byte* from, Byte* to) { store(to, keyed(load(from) | fill, key)); });
    return picture;
}

void compose(const SurfacePixels& pixels, Zel::Color transparent, Gdk::Pixbuf& onto) {
    const Word fill = fillOf(pixels);
    const Word key = wordOf(transparent);
    passOfLittle(
        pixels.data, pixels.stride, std::min(pixels.width, onto.get_width()),
        std::min(pixels.height, onto.get_height()), onto,
        [fill, key](Words words) { return (words | fill) ^ key; },
        [fill, key](const Byte* from, Byte* to) {
            const Words words = loadBlock(from) | fill;
            if (!isOpaque(words))
                return false;
            const Words isNothing = Words(words == key);
            storeBlock(to, (plainBlock(words) & ~isNothing) | (loadBlock(to) & isNothing));
            return true;
        },
        [fill, key](const Byte* from, Byte* to) { layOver(to, keyed(load(from) | fill, key)); });
}

void compose(const Gdk::Pixbuf& picture, int width, int height, Gdk::Pixbuf& onto) {
    layOver(picture, width, height, onto, [](const Byte* from, Byte* to) {
        layOver(to, {from[0], from[1], from[2], from[3]});
    });
}

Glib::RefPtr<Gdk::Pixbuf> merge(const std::vector<Glib::RefPtr<Gdk::Pixbuf>>& pictures) {
    Glib::RefPtr<Gdk::Pixbuf> merged;
    bool isExact = true;
    for (const Glib::RefPtr<Gdk::Pixbuf>& picture : pictures) {
        if (!picture || !picture->get_has_alpha())
            return {};
        if (!merged) {
            merged = Glib::wrap(
                gdk_pixbuf_new(GDK_COLORSPACE_RGB, true, 8, picture->get_width(), picture->get_height()));
            if (!merged)
                return {};
            merged->fill(0);
        }
        if (picture->get_width() != merged->get_width() || picture->get_height() != merged->get_height())
            return {};
        layOver(*picture.operator->(), picture->get_width(), picture->get_height(), *merged.operator->(),
                [&isExact](const Byte* from, Byte* to) {
                    isExact = isExact && (from[3] == 0 || from[3] == 0xff);
                    layOver(to, {from[0], from[1], from[2], from[3]});
                });
        if (!isExact)
            return {};
    }
    return merged;
}

Cairo::RefPtr<Cairo::ImageSurface> makeSurface(const Gdk::Pixbuf& picture) {
    const int width = picture.get_width();
    const int height = picture.get_height();
    const Cairo::RefPtr<Cairo::ImageSurface> surface =
        Cairo::ImageSurface::create(Cairo::FORMAT_ARGB32, width, height);
    toSurface(picture, width, height, surface->get_data(), surface->get_stride(),
              [](const Byte* from, Byte* to) {
                  store(to, premultiplied({from[0], from[1], from[2], from[3]}));
              });
    surface->mark_dirty();
    return surface;
}

bool copyOpaque(const Gdk::Pixbuf& picture, const SurfacePixels& pixels) {
    bool isOpaque = true;
    // What is readable here is an image's own memory.
    toSurface(picture, std::min(pixels.width, picture.get_width()),
              std::min(pixels.height, picture.get_height()), const_cast<Byte*>(pixels.data), pixels.stride,
              [&isOpaque](const Byte* from, Byte* to) {
                  if (from[3] == 0xff)
                      store(to, premultiplied({from[0], from[1], from[2], from[3]}));
                  else
                      isOpaque = false;
              });
    return isOpaque;
}

} // namespace ZelView::Fragments
