// The road of pixels of the canvas against the same sequence made by bare calls of cairo and gdk-pixbuf.
#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/fragments/FragmentsDrawArea.h>

#include <gdk/gdk.h>
#include <gtest/gtest.h>
#include <gtkmm.h>

#include <functional>
#include <map>
#include <random>
#include <vector>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;
using Function = std::function<void(const Context&)>;

/// A picture of random strokes, boxes and letters, some of them in the background colour.
Function randomDrawing(unsigned int seed, int width, int height, Zel::Color background) {
    return [=](const Context& context) {
        cairo_t* cr = context->cobj();
        std::mt19937 random(seed);
        const auto unit = [&] { return static_cast<double>(random() % 1000) / 999; };
        for (int i = 0; i < 6; ++i) {
            if (random() % 4 == 0)
                cairo_set_source_rgba(cr, background.r / 255.0, background.g / 255.0, background.b / 255.0,
                                      1);
            else
                cairo_set_source_rgba(cr, unit(), unit(), unit(), random() % 2 ? 1 : unit());
            cairo_set_line_width(cr, 1 + 4 * unit());
            switch (random() % 3) {
            case 0:
                cairo_move_to(cr, width * unit(), height * unit());
                cairo_line_to(cr, width * unit(), height * unit());
                cairo_stroke(cr);
                break;
            case 1:
                cairo_rectangle(cr, width * unit(), height * unit(), width * unit() / 2, height * unit() / 2);
                cairo_fill(cr);
                break;
            default:
                cairo_move_to(cr, width * unit(), height * unit());
                cairo_show_text(cr, "Zel");
            }
        }
    };
}

/// The described sequence, step by step.
class Reference {
public:
    Reference(int w, int h, Zel::Color color) : width(w), height(h), background(color) {}

    ~Reference() {
        for (auto& [key, image] : images)
            g_object_unref(image);
        if (composed)
            g_object_unref(composed);
    }

    void paint(const Context& context, const std::vector<Function>& start,
               const std::vector<Function>& before, const std::map<int, Function>& fragments,
               const std::vector<bool>& marked, bool inOneImage, const std::vector<Function>& after,
               const std::vector<Function>& end) {
        cairo_t* cr = context->cobj();
        for (const Function& function : start)
            draw(context, function);
        clear(cr);
        if (composed)
            g_object_unref(composed);
        composed = snapshot(cr);
        for (const Function& function : before)
            attachLayer(context, {function});
        if (inOneImage) {
            std::vector<Function> all;
            for (const auto& [key, function] : fragments)
                all.push_back(function);
            attachLayer(context, all);
        } else {
            for (const auto& [key, function] : fragments) {
                if (marked[static_cast<std::size_t>(key)]) {
                    if (images.count(key))
                        g_object_unref(images[key]);
                    images[key] = layer(context, {function});
                }
                attach(images[key]);
            }
        }
        for (const Function& function : after)
            attachLayer(context, {function});
        gdk_cairo_set_source_pixbuf(cr, composed, 0, 0);
        cairo_paint(cr);
        for (const Function& function : end)
            draw(context, function);
    }

    test::Picture getComposed() const { return test::pictureOf(Glib::wrap(composed, true)); }

    test::Picture getImage(int key) const { return test::pictureOf(Glib::wrap(images.at(key), true)); }

private:
    static void draw(const Context& context, const Function& function) {
        cairo_save(context->cobj());
        function(context);
        cairo_restore(context->cobj());
    }

    void clear(cairo_t* cr) const {
        cairo_set_source_rgba(cr, background.r / 255.0, background.g / 255.0, background.b / 255.0,
                              background.a / 255.0);
        cairo_paint(cr);
    }

    GdkPixbuf* snapshot(cairo_t* cr) const {
        cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height);
        cairo_t* own = cairo_create(surface);
        double x = 0;
        double y = 0;
        cairo_user_to_device(cr, &x, &y);
        cairo_set_source_surface(own, cairo_get_target(cr), -x, -y);
        cairo_paint(own);
        cairo_surface_flush(surface);
        GdkPixbuf* pixbuf = gdk_pixbuf_get_from_surface(surface, 0, 0, width, height);
        cairo_destroy(own);
        cairo_surface_destroy(surface);
        return pixbuf;
    }

    GdkPixbuf* layer(const Context& context, const std::vector<Function>& functions) const {
        clear(context->cobj());
        for (const Function& function : functions)
            draw(context, function);
        GdkPixbuf* opaque = snapshot(context->cobj());
        GdkPixbuf* keyed = gdk_pixbuf_add_alpha(opaque, TRUE, background.r, background.g, background.b);
        g_object_unref(opaque);
        return keyed;
    }

    void attach(GdkPixbuf* sticker) {
        gdk_pixbuf_composite(sticker, composed, 0, 0, width, height, 0, 0, 1, 1, GDK_INTERP_NEAREST, 255);
    }

    void attachLayer(const Context& context, const std::vector<Function>& functions) {
        GdkPixbuf* sticker = layer(context, functions);
        attach(sticker);
        g_object_unref(sticker);
    }

    int width;
    int height;
    Zel::Color background;
    GdkPixbuf* composed = nullptr;
    std::map<int, GdkPixbuf*> images;
};

/// Paints the same random layers both ways three times: all marked, one marked, all in one image.
void expectSameRoad(unsigned int seed, int width, int height, Zel::Color background, int offset) {
    std::mt19937 random(seed);
    const auto make = [&] {
        return randomDrawing(static_cast<unsigned int>(random()), width, height, background);
    };
    const std::vector<Function> start{make()};
    const std::vector<Function> before{make(), make()};
    const std::vector<Function> after{make()};
    const std::vector<Function> end{make()};

    FragmentsDrawArea area;
    test::allocate(area, width, height);
    area.setBackgroundColor(background);
    area.addPositionDrawer(start[0], DrawerPosition::Start);
    area.addPositionDrawer(before[0], DrawerPosition::BeforeFragments);
    area.addPositionDrawer(before[1], DrawerPosition::BeforeFragments);
    area.addPositionDrawer(after[0], DrawerPosition::AfterFragments);
    area.addPositionDrawer(end[0], DrawerPosition::End);
    char keys[3] = {};
    std::map<int, Function> fragments;
    for (int i = 0; i < 3; ++i) {
        fragments[i] = make();
        area.addFragment(keys + i, fragments[i]);
    }

    Reference reference(width, height, background);
    for (int round = 0; round < 3; ++round) {
        const std::vector<bool> marked{round == 0, round <= 1, round == 0};
        if (round == 1)
            area.redraw(keys + 1);
        if (round == 2)
            area.redraw();
        const auto paintOn = [&](const std::function<void(const Context&)>& painter) {
            return test::paint(width + 2 * offset, height + 2 * offset, [&](const Context& context) {
                context->translate(offset, offset);
                painter(context);
            });
        };
        const auto actual = paintOn([&](const Context& context) { area.on_draw(context); });
        const auto expected = paintOn([&](const Context& context) {
            reference.paint(context, start, before, fragments, marked, round == 2, after, end);
        });
        SCOPED_TRACE(testing::Message()
                     << "seed " << seed << " size " << width << "x" << height << " round " << round);
        test::expectSame(actual, expected);
        test::expectSame(test::pictureOf(area.helper.getBackground()), reference.getComposed());
        for (int i = 0; i < 3; ++i)
            test::expectSame(test::pictureOf(area.fragments[keys + i].image), reference.getImage(i));
    }
}

} // namespace

TEST(RoadOfPixels, IsTheDescribedSequenceToTheByte) {
    unsigned int seed = 1;
    for (const auto& [width, height] :
         std::vector<std::pair<int, int>>{{1, 1}, {7, 3}, {33, 21}, {160, 90}, {401, 301}})
        for (Zel::Color background : {Zel::Color{255, 255, 255, 255}, Zel::Color{0, 0, 0, 255},
                                      Zel::Color{240, 245, 250, 255}, Zel::Color{255, 255, 255, 128}})
            for (int offset : {0, 11})
                expectSameRoad(seed++, width, height, background, offset);
}

TEST(RoadOfPixels, TheReferencePaintsSomething) {
    // The comparison above would hold for empty pictures too.
    const auto picture = test::paint(100, 80, randomDrawing(3, 100, 80, {255, 255, 255, 255}));
    EXPECT_GT(picture.countPainted(), 100);
}
