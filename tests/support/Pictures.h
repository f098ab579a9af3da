/// Pictures as bytes: painting on plain surfaces, and comparing without tolerance.
#pragma once

#include <cairomm/context.h>
#include <cairomm/surface.h>
#include <gdkmm/pixbuf.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace test {

/// The pixels of a picture, row by row without padding.
struct Picture {
    int width = 0;
    int height = 0;
    int channels = 0;
    std::vector<unsigned char> bytes;

    /// The channels of one pixel: red, green, blue and, if there is one, alpha.
    std::vector<int> at(int x, int y) const;
    /// How many pixels differ from the first one.
    int countPainted() const;

    bool operator==(const Picture& other) const;
};

Picture pictureOf(const Glib::RefPtr<Gdk::Pixbuf>& pixbuf);
Picture pictureOf(const Cairo::RefPtr<Cairo::ImageSurface>& surface);
Picture pictureOfFile(const std::string& path);

/// An opaque white surface.
Cairo::RefPtr<Cairo::ImageSurface> makeSurface(int width, int height);

/// What the function paints on an opaque white surface.
Picture paint(int width, int height,
              const std::function<void(const Cairo::RefPtr<Cairo::Context>&)>& function);

/// Fails unless both are equal to the byte; then both and their difference are written beside the test
/// program.
void expectSame(const Picture& actual, const Picture& expected);

} // namespace test
