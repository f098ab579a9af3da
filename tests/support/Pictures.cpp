#include "support/Pictures.h"

#include <gtest/gtest.h>

#include <gdkmm/general.h>

#include <algorithm>
#include <cstdlib>

namespace test {

std::vector<int> Picture::at(int x, int y) const {
    const auto begin = bytes.begin() + (static_cast<std::ptrdiff_t>(y) * width + x) * channels;
    return {begin, begin + channels};
}

int Picture::countPainted() const {
    int count = 0;
    for (std::size_t i = 0; i < bytes.size(); i += static_cast<std::size_t>(channels))
        count += !std::equal(bytes.begin(), bytes.begin() + channels,
                             bytes.begin() + static_cast<std::ptrdiff_t>(i));
    return count;
}

bool Picture::operator==(const Picture& other) const {
    return width == other.width && height == other.height && channels == other.channels &&
           bytes == other.bytes;
}

Picture pictureOf(const Glib::RefPtr<Gdk::Pixbuf>& pixbuf) {
    Picture picture;
    if (!pixbuf)
        return picture;
    picture.width = pixbuf->get_width();
    picture.height = pixbuf->get_height();
    picture.channels = pixbuf->get_n_channels();
    for (int y = 0; y < picture.height; ++y) {
        const guint8* row = pixbuf->get_pixels() + static_cast<std::ptrdiff_t>(y) * pixbuf->get_rowstride();
        picture.bytes.insert(picture.bytes.end(), row, row + picture.width * picture.channels);
    }
    return picture;
}

Picture pictureOf(const Cairo::RefPtr<Cairo::ImageSurface>& surface) {
    surface->flush();
    return pictureOf(Gdk::Pixbuf::create(surface, 0, 0, surface->get_width(), surface->get_height()));
}

Picture pictureOfFile(const std::string& path) {
    return pictureOf(Gdk::Pixbuf::create_from_file(path));
}

Cairo::RefPtr<Cairo::ImageSurface> makeSurface(int width, int height) {
    const auto surface = Cairo::ImageSurface::create(Cairo::FORMAT_ARGB32, width, height);
    const auto context = Cairo::Context::create(surface);
    context->set_source_rgb(1, 1, 1);
    context->paint();
    return surface;
}

Picture paint(int width, int height,
              const std::function<void(const Cairo::RefPtr<Cairo::Context>&)>& function) {
    const auto surface = makeSurface(width, height);
    function(Cairo::Context::create(surface));
    return pictureOf(surface);
}

namespace {

Glib::RefPtr<Gdk::Pixbuf> toPixbuf(const Picture& picture) {
    const auto pixbuf =
        Gdk::Pixbuf::create(Gdk::COLORSPACE_RGB, picture.channels == 4, 8, picture.width, picture.height);
    for (int y = 0; y < picture.height; ++y)
        std::copy_n(picture.bytes.begin() + static_cast<std::ptrdiff_t>(y) * picture.width * picture.channels,
                    picture.width * picture.channels,
                    pixbuf->get_pixels() + static_cast<std::ptrdiff_t>(y) * pixbuf->get_rowstride());
    return pixbuf;
}

} // namespace

void expectSame(const Picture& actual, const Picture& expected) {
    ASSERT_EQ(actual.width, expected.width);
    ASSERT_EQ(actual.height, expected.height);
    ASSERT_EQ(actual.channels, expected.channels);
    if (actual.bytes == expected.bytes)
        return;

    Picture difference = actual;
    int count = 0;
    for (std::size_t i = 0; i < actual.bytes.size(); ++i) {
        difference.bytes[i] = static_cast<unsigned char>(std::abs(actual.bytes[i] - expected.bytes[i]));
        count += difference.bytes[i] != 0;
        if (actual.channels == 4 && i % 4 == 3)
            difference.bytes[i] = 255;
    }
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    std::string stem = std::string(test.test_suite_name()) + "." + test.name();
    std::replace(stem.begin(), stem.end(), '/', '_'); // in the names of parametrised tests
    toPixbuf(actual)->save(stem + ".actual.png", "png");
    toPixbuf(expected)->save(stem + ".expected.png", "png");
    toPixbuf(difference)->save(stem + ".difference.png", "png");
    ADD_FAILURE() << count << " bytes differ; see " << stem << ".*.png beside the test program";
}

} // namespace test
