// The passes over the pixels give the same bytes as the calls of cairo and gdk-pixbuf that they stand for.
#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/fragments/FragmentDrawerHelper.h>
#include <ZelCommonView/fragments/PixelPasses.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <algorithm>
#include <cstring>
#include <random>

namespace {

using namespace ZelView::Fragments;
using Context = Cairo::RefPtr<Cairo::Context>;
using Picture = Glib::RefPtr<Gdk::Pixbuf>;

/// The sequence of calls of which the helper's passes are the short form.
struct Sequence {
    FragmentDrawerHelper& helper; ///< for its size and colour; its picture is left alone
    Picture background;

    void start(const Context& context) {
        helper._clearBackground(context);
        background = helper._getDrawed(context);
    }

    Picture image(const Context& context, const DrawFunction& function) {
        helper._clearBackground(context);
        helper.draw(context, function);
        return helper._addAlpha(helper._getDrawed(context));
    }

    void attach(const Picture& picture) {
        if (picture && background)
            picture->composite(background, 0, 0, background->get_width(), background->get_height(), 0, 0, 1,
                               1, Gdk::INTERP_NEAREST, 255);
    }

    void end(const Context& context) {
        Gdk::Cairo::set_source_pixbuf(context, background, 0, 0);
        context->paint();
    }
};

/// Equal in size, layout and in every byte of every row.
testing::AssertionResult isSame(const Picture& one, const Picture& other) {
    if (!one || !other)
        return one || other ? testing::AssertionFailure() << "one is missing" : testing::AssertionSuccess();
    if (one->get_width() != other->get_width() || one->get_height() != other->get_height() ||
        one->get_n_channels() != other->get_n_channels() || one->get_rowstride() != other->get_rowstride())
        return testing::AssertionFailure() << "of another layout";
    const auto length = static_cast<std::size_t>(one->get_width() * one->get_n_channels());
    for (int y = 0; y < one->get_height(); ++y) {
        const guint8* const own = one->get_pixels() + std::ptrdiff_t(y) * one->get_rowstride();
        const guint8* const others = other->get_pixels() + std::ptrdiff_t(y) * other->get_rowstride();
        if (std::memcmp(own, others, length) != 0)
            return testing::AssertionFailure()
                   << "byte " << std::mismatch(own, own + length, others).first - own << " of row " << y
                   << " differs";
    }
    return testing::AssertionSuccess();
}

testing::AssertionResult isSame(const Cairo::RefPtr<Cairo::ImageSurface>& one,
                                const Cairo::RefPtr<Cairo::ImageSurface>& other) {
    const int width = one->get_width();
    const int height = one->get_height();
    return isSame(Gdk::Pixbuf::create(one, 0, 0, width, height),
                  Gdk::Pixbuf::create(other, 0, 0, width, height));
}

/// A drawing of the numbers that a seed gives: lines, boxes and texts of opaque, translucent and background
/// colours, some erased again.
DrawFunction drawing(unsigned seed, int width, int height, Zel::Color background) {
    return [=](const Context& context) {
        std::mt19937 random(seed);
        const auto upTo = [&random](double limit) {
            return std::uniform_real_distribution<double>(0, limit)(random);
        };
        const int count = static_cast<int>(random() % 12);
        for (int i = 0; i < count; ++i) {
            const double alpha = random() % 2 ? 1 : upTo(1);
            if (random() % 4 == 0)
                context->set_source_rgba(background.r / 255.0, background.g / 255.0, background.b / 255.0,
                                         alpha);
            else
                context->set_source_rgba(upTo(1), upTo(1), upTo(1), alpha);
            static const Cairo::Operator operators[] = {Cairo::OPERATOR_OVER, Cairo::OPERATOR_OVER,
                                                        Cairo::OPERATOR_OVER, Cairo::OPERATOR_SOURCE,
                                                        Cairo::OPERATOR_DEST_OUT};
            context->set_operator(operators[random() % 5]);
            context->set_antialias(random() % 2 ? Cairo::ANTIALIAS_DEFAULT : Cairo::ANTIALIAS_NONE);
            if (random() % 2) {
                context->move_to(upTo(width), upTo(height));
                context->line_to(upTo(width), upTo(height));
                context->set_line_width(upTo(5));
                context->stroke();
            } else {
                context->rectangle(upTo(width), upTo(height), upTo(width), upTo(height));
                context->fill();
            }
        }
    };
}

/// An image whose rows have bytes beyond their pixels, as those of a library that lays out its own memory.
class WideSurface {
public:
    WideSurface(Cairo::Format format, int width, int height, int excess)
        : bytes(static_cast<std::size_t>(width * 4 + excess) * static_cast<std::size_t>(height), 0x5a),
          surface(Cairo::ImageSurface::create(bytes.data(), format, width, height, width * 4 + excess)) {}

    ~WideSurface() { surface->finish(); }

private:
    std::vector<unsigned char> bytes;

public:
    Cairo::RefPtr<Cairo::ImageSurface> surface;
};

class PixelPasses : public testing::Test {
protected:
    /// Draws a picture of a background, two layers and two fragments both ways and compares all that comes of
    /// it.
    void compareAt(int width, int height, unsigned seed, Cairo::Format format, int excess, int offset = 0,
                   Zel::Color color = {255, 255, 255, 255}) {
        SCOPED_TRACE(testing::Message() << width << " by " << height << ", seed " << seed << ", format "
                                        << format << ", excess " << excess << ", offset " << offset);
        test::allocate(widget, width, height);
        helper.setBackgroundColor(color);
        WideSurface ownTarget(format, width + 2 * offset, height + 2 * offset, excess);
        WideSurface otherTarget(format, width + 2 * offset, height + 2 * offset, excess);
        const Context own = Cairo::Context::create(ownTarget.surface);
        const Context other = Cairo::Context::create(otherTarget.surface);
        own->translate(offset, offset);
        other->translate(offset, offset);

        EXPECT_EQ(helper._getPixels(own).has_value(), color.a == 255);
        Sequence sequence{helper, {}};
        helper.startFragmentsDraw(own);
        sequence.start(other);
        EXPECT_TRUE(isSame(helper.getBackground(), sequence.background));
        for (unsigned layer = 0; layer < 2; ++layer) {
            const DrawFunction function = drawing(seed * 8 + layer, width, height, color);
            helper.drawAsFragment(own, function);
            sequence.attach(sequence.image(other, function));
            EXPECT_TRUE(isSame(helper.getBackground(), sequence.background)) << "after layer " << layer;
        }
        for (unsigned index = 2; index < 4; ++index) {
            Fragment fragment{true, drawing(seed * 8 + index, width, height, color), {}};
            helper.drawFragment(own, fragment);
            const Picture image = sequence.image(other, fragment.drawer);
            EXPECT_TRUE(isSame(fragment.image, image)) << "the image of fragment " << index;
            sequence.attach(image);
            EXPECT_TRUE(isSame(helper.getBackground(), sequence.background)) << "after fragment " << index;
        }
        helper.endFragmentsDraw(own);
        sequence.end(other);
        EXPECT_TRUE(isSame(ownTarget.surface, otherTarget.surface));
    }

    Gtk::DrawingArea widget;
    FragmentDrawerHelper helper{widget};
};

/// A surface of one row with these words as its pixels.
Cairo::RefPtr<Cairo::ImageSurface> rowOf(const std::vector<std::uint32_t>& words) {
    const auto surface = Cairo::ImageSurface::create(Cairo::FORMAT_ARGB32, static_cast<int>(words.size()), 1);
    surface->flush();
    std::memcpy(surface->get_data(), words.data(), words.size() * 4);
    surface->mark_dirty();
    return surface;
}

} // namespace

TEST_F(PixelPasses, RandomDrawingsOfAllSmallSizesAreTheSameToTheByte) {
    unsigned seed = 0;
    for (int width = 1; width <= 37; ++width)
        for (const int height : {1, 2, 7}) {
            ++seed;
            compareAt(width, height, seed, seed % 2 ? Cairo::FORMAT_ARGB32 : Cairo::FORMAT_RGB24, 0);
        }
}

TEST_F(PixelPasses, RandomDrawingsAreTheSameOnRowsOfAnyLength) {
    for (unsigned seed = 0; seed <= 60; ++seed)
        compareAt(1 + static_cast<int>(seed * 37 % 211), 1 + static_cast<int>(seed * 53 % 97), seed,
                  seed % 2 ? Cairo::FORMAT_ARGB32 : Cairo::FORMAT_RGB24, static_cast<int>(seed % 7) * 4,
                  static_cast<int>(seed % 3) * 5,
                  {static_cast<unsigned char>(seed * 40), static_cast<unsigned char>(seed * 3), 0, 255});
}

TEST_F(PixelPasses, LargePicturesAreTheSame) {
    compareAt(1920, 1080, 5, Cairo::FORMAT_RGB24, 0);
    compareAt(4096, 2160, 6, Cairo::FORMAT_ARGB32, 4);
}

TEST_F(PixelPasses, ATranslucentBackgroundTakesTheStepsOneByOne) {
    for (unsigned seed = 0; seed <= 10; ++seed)
        compareAt(61, 33, seed, Cairo::FORMAT_ARGB32, 0, 0,
                  {200, 100, 50, static_cast<unsigned char>(seed * 20)});
}

TEST_F(PixelPasses, EveryAlphaWithEveryChannelIsTakenFromASurfaceAsByGdk) {
    for (std::uint32_t alpha = 0; alpha < 256; ++alpha) {
        std::vector<std::uint32_t> words;
        for (std::uint32_t value = 0; value <= alpha; ++value)
            words.push_back(alpha << 24 | value << 16 | (alpha - value) << 8 | value / 2);
        const auto surface = rowOf(words);
        const int width = static_cast<int>(words.size());
        const Context context = Cairo::Context::create(surface);
        const auto pixels = readableTarget(context, width, 1);
        ASSERT_TRUE(pixels);
        const Picture gdk = Gdk::Pixbuf::create(surface, 0, 0, width, 1);
        ASSERT_TRUE(isSame(makePicture(*pixels), gdk)) << "alpha " << alpha;
        ASSERT_TRUE(isSame(makePicture(*pixels, {0, 128, 0, 255}), gdk->add_alpha(true, 0, 128, 0)));
        const Context painted =
            Cairo::Context::create(Cairo::ImageSurface::create(Cairo::FORMAT_ARGB32, width, 1));
        Gdk::Cairo::set_source_pixbuf(painted, gdk, 0, 0);
        painted->paint();
        ASSERT_TRUE(isSame(makeSurface(*gdk.operator->()),
                           Cairo::RefPtr<Cairo::ImageSurface>::cast_dynamic(painted->get_target())))
            << "alpha " << alpha;
    }
}

TEST_F(PixelPasses, EveryPairOfAlphasIsComposedAsByGdk) {
    const Picture below = Gdk::Pixbuf::create(Gdk::COLORSPACE_RGB, true, 8, 256, 256);
    const Picture above = Gdk::Pixbuf::create(Gdk::COLORSPACE_RGB, true, 8, 256, 256);
    std::mt19937 random(7);
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x) {
            guint8* const lower = below->get_pixels() + y * below->get_rowstride() + x * 4;
            guint8* const upper = above->get_pixels() + y * above->get_rowstride() + x * 4;
            for (int channel = 0; channel < 3; ++channel) {
                lower[channel] = static_cast<guint8>(random());
                upper[channel] = static_cast<guint8>(random());
            }
            lower[3] = static_cast<guint8>(x);
            // Long runs of nothing and of opaque pixels are among them.
            upper[3] = static_cast<guint8>(y % 4 == 0 ? (x / 40 % 2 ? 0 : 255) : y);
        }
    const Picture own = below->copy();
    above->composite(below, 0, 0, 256, 256, 0, 0, 1, 1, Gdk::INTERP_NEAREST, 255);
    compose(*above.operator->(), 256, 256, *own.operator->());
    EXPECT_TRUE(isSame(own, below));
}

TEST_F(PixelPasses, TargetsThatCantBeReadInPlaceAreLeftToCairo) {
    const auto surface = test::makeSurface(20, 10);
    const Context context = Cairo::Context::create(surface);
    EXPECT_TRUE(readableTarget(context, 20, 10));
    EXPECT_FALSE(readableTarget(context, 21, 10)) << "reaches beyond the right edge";
    EXPECT_FALSE(readableTarget(context, 20, 11)) << "reaches beyond the lower edge";
    context->translate(0.5, 0);
    EXPECT_FALSE(readableTarget(context, 10, 10)) << "lies between pixels";
    context->translate(-1.5, 0);
    EXPECT_FALSE(readableTarget(context, 10, 10)) << "begins left of the image";
    context->set_identity_matrix();
    cairo_surface_set_device_scale(surface->cobj(), 2, 2);
    EXPECT_FALSE(readableTarget(Cairo::Context::create(surface), 5, 5)) << "is scaled";
    EXPECT_FALSE(readableTarget(Cairo::Context::create(Cairo::ImageSurface::create(Cairo::FORMAT_A8, 20, 10)),
                                20, 10));
    const auto part = Cairo::Surface::create(test::makeSurface(20, 10), 5, 5, 10, 5);
    EXPECT_FALSE(readableTarget(Cairo::Context::create(part), 10, 5));
}

TEST_F(PixelPasses, APictureOnATargetThatCantBeReadIsTheSame) {
    test::allocate(widget, 30, 20);
    const auto whole = test::makeSurface(40, 30);
    const auto part = Cairo::Surface::create(whole, 5, 5, 30, 20);
    const Context inPlace = Cairo::Context::create(test::makeSurface(30, 20));
    const DrawFunction function = drawing(3, 30, 20, {255, 255, 255, 255});
    helper.startFragmentsDraw(inPlace);
    helper.drawAsFragment(inPlace, function);
    const Picture expected = helper.getBackground();
    const Context context = Cairo::Context::create(part);
    helper.startFragmentsDraw(context);
    helper.drawAsFragment(context, function);
    EXPECT_NE(helper.getBackground(), expected);
    EXPECT_TRUE(isSame(helper.getBackground(), expected));
}

TEST_F(PixelPasses, AnOffsetOfTheDeviceIsTakenIntoAccount) {
    test::allocate(widget, 12, 8);
    const auto surface = test::makeSurface(30, 20);
    surface->set_device_offset(7, 6);
    const Context context = Cairo::Context::create(surface);
    const auto pixels = readableTarget(context, 12, 8);
    ASSERT_TRUE(pixels);
    EXPECT_EQ(pixels->data, surface->get_data() + 6 * surface->get_stride() + 7 * 4);
    Sequence sequence{helper, {}};
    helper.startFragmentsDraw(context);
    const DrawFunction function = drawing(9, 12, 8, {255, 255, 255, 255});
    helper.drawAsFragment(context, function);
    const Picture own = helper.getBackground();
    sequence.start(context);
    sequence.attach(sequence.image(context, function));
    EXPECT_TRUE(isSame(own, sequence.background));
}

TEST_F(PixelPasses, OnePictureOfManyIsComposedAsTheyAreOneByOne) {
    for (const int width : {1, 3, 4, 5, 15, 16, 17, 61}) {
        test::allocate(widget, width, 9);
        std::vector<Picture> pictures;
        const auto surface = test::makeSurface(width, 9);
        const Context context = Cairo::Context::create(surface);
        const Picture oneByOne = Gdk::Pixbuf::create(Gdk::COLORSPACE_RGB, true, 8, width, 9);
        oneByOne->fill(0x406080ff);
        const Picture atOnce = oneByOne->copy();
        for (unsigned seed = 1; seed <= 5; ++seed) {
            // Opaque pixels and nothing, as on an opaque target.
            const auto opaque = Cairo::ImageSurface::create(Cairo::FORMAT_RGB24, width, 9);
            pictures.push_back(helper._getImage(Cairo::Context::create(opaque),
                                                drawing(seed * 7, width, 9, {255, 255, 255, 255})));
            compose(*pictures.back().operator->(), width, 9, *oneByOne.operator->());
        }
        const Picture merged = merge(pictures);
        ASSERT_TRUE(merged);
        compose(*merged.operator->(), width, 9, *atOnce.operator->());
        EXPECT_TRUE(isSame(atOnce, oneByOne)) << "width " << width;
    }
}

TEST_F(PixelPasses, PicturesThatWouldNotBeExactAreNotMerged) {
    const Picture picture = Gdk::Pixbuf::create(Gdk::COLORSPACE_RGB, true, 8, 20, 3);
    picture->fill(0x11223344);
    EXPECT_FALSE(merge({picture})) << "translucent";
    picture->fill(0x112233ff);
    EXPECT_TRUE(merge({picture, picture}));
    picture->get_pixels()[19 * 4 + 3] = 7;
    EXPECT_FALSE(merge({picture})) << "one translucent pixel";
    EXPECT_FALSE(merge({}));
    EXPECT_FALSE(merge({Picture()}));
    const Picture large = Gdk::Pixbuf::create(Gdk::COLORSPACE_RGB, true, 8, 21, 3);
    large->fill(0);
    EXPECT_FALSE(merge({large, large->copy(), Gdk::Pixbuf::create(Gdk::COLORSPACE_RGB, true, 8, 20, 3)}));
}
