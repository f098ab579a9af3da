#include "diagrams/Canvas.h"
#include "support/Hands.h"

#include <ZelCommonView/diagrams/CircleDrawer.h>
#include <ZelCommonView/diagrams/FiguresDrawer.h>
#include <ZelCommonView/diagrams/FixedDotDrawer.h>
#include <ZelCommonView/diagrams/PointsSequenceDrawer.h>
#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;

/// A figure that the library knows nothing of.
struct Cross : Zel::Figure {
    float size = 5;
};

using Visits = std::vector<std::pair<std::string, const Zel::Figure*>>;

/// A link that notes every figure that it is shown.
struct Witness : BaseFigureDrawer {
    Witness(std::string linkName, Visits& linkVisits, std::unique_ptr<BaseFigureDrawer> nextLink = nullptr)
        : BaseFigureDrawer(std::move(nextLink)), name(std::move(linkName)), visits(linkVisits) {}

    ~Witness() override {
        if (alive)
            --*alive;
    }

    void _onDrawBaseFigure(const Context& context, const Zel::Figure& figure) override {
        visits.push_back({name, &figure});
        EXPECT_FALSE(cairo_has_current_point(context->cobj()));
        EXPECT_EQ(context->get_line_width(), 2.0);
        context->set_line_width(40);
        context->move_to(1, 1);
        context->line_to(2, 2);
    }

    std::string name;
    Visits& visits;
    int* alive = nullptr;
};

struct CrossDrawer : FigureDrawer<Cross> {
    using FigureDrawer::FigureDrawer;

    void _onDraw(const Context&, const Cross& cross) override { seen = &cross; }

    const Cross* seen = nullptr;
};

class FiguresDrawerTest : public testing::Test {
protected:
    FiguresDrawerTest() {
        drawer.converter = &test::stretchable;
        drawer.drawArea = &widget;
    }

    test::Picture picture() {
        return test::paint(test::canvasWidth, test::canvasHeight,
                           [&](const Context& context) { drawer.draw(context); });
    }

    Zel::Circle makeCircle() {
        Zel::Circle result;
        result.x = 3;
        result.radius = 2;
        result.color = {200, 0, 0, 255};
        result.text = "zone";
        result.filled = true;
        return result;
    }

    Gtk::DrawingArea widget;
    FiguresDrawer drawer;
    Zel::Circle circle = makeCircle();
    Zel::FixedDot dot;
    Cross cross;
    Visits visits;
};

std::unique_ptr<BaseFigureDrawer> defaultChain() {
    return std::make_unique<CircleDrawer>(
        std::make_unique<PointsSequenceDrawer>(std::make_unique<FixedDotDrawer>()));
}

template <typename TAction>
void expectNoDrawArea(TAction action) {
    try {
        action();
        FAIL() << "a drawer without a widget must say so";
    } catch (const char* text) {
        EXPECT_STREQ(text, "getDrawArea");
    }
}

} // namespace

TEST(FigureDrawer, IsAloneAndWithoutAConverterAtFirst) {
    const CircleDrawer link;
    EXPECT_EQ(link.converter, nullptr);
    EXPECT_EQ(link.next, nullptr);
    static_assert(std::has_virtual_destructor_v<BaseFigureDrawer>);
    static_assert(!std::is_copy_constructible_v<BaseFigureDrawer>);
    EXPECT_LT(static_cast<const void*>(&link.converter), static_cast<const void*>(&link.next));
}

TEST(FigureDrawer, OwnsTheRestOfTheChain) {
    Visits visits;
    int alive = 2;
    auto second = std::make_unique<Witness>("second", visits);
    second->alive = &alive;
    auto first = std::make_unique<Witness>("first", visits, std::move(second));
    first->alive = &alive;
    first.reset();
    EXPECT_EQ(alive, 0);
}

TEST(FigureDrawer, PaintsItsOwnTypeAndLeavesOthersWithoutAWord) {
    const Context context = Cairo::Context::create(test::makeSurface(1, 1));
    CrossDrawer drawer;
    drawer._onDrawBaseFigure(context, Zel::Circle());
    EXPECT_EQ(drawer.seen, nullptr);
    const Cross cross;
    drawer._onDrawBaseFigure(context, cross);
    EXPECT_EQ(drawer.seen, &cross);
}

TEST(FigureDrawer, KnowsADescendantOfItsType) {
    struct SmallCross : Cross {
    } small;

    CrossDrawer drawer;
    drawer._onDrawBaseFigure(Cairo::Context::create(test::makeSurface(1, 1)), small);
    EXPECT_EQ(drawer.seen, &small);
}

TEST(FigureDrawer, OfTheLibraryKnowsADescendantThatAnApplicationDefines) {
    struct Zone : Zel::Circle {
    } zone;

    zone.x = 3;
    zone.radius = 2;
    Zel::Circle same;
    same.x = 3;
    same.radius = 2;
    const auto picture = test::paintFigure(CircleDrawer(), static_cast<const Zel::Circle&>(zone));
    EXPECT_GT(picture.countPainted(), 0);
    test::expectSame(picture, test::paintFigure(CircleDrawer(), same));
}

TEST_F(FiguresDrawerTest, AnApplicationsOwnPainterOfAKnownFigureReplacesThatOfTheLibrary) {
    struct Square : FigureDrawer<Zel::Circle> {
        using FigureDrawer::FigureDrawer;

        void _onDraw(const Context& context, const Zel::Circle& figure) override {
            context->rectangle(converter->getVisualX(figure.x), converter->getVisualY(figure.y), 6, 4);
            context->fill();
        }
    };

    drawer.setRootFigureDrawer(std::make_unique<Square>(std::make_unique<FixedDotDrawer>()));
    drawer.addFigure(circle);
    test::expectSame(picture(), test::paintBare([&](cairo_t* cr) {
                         cairo_rectangle(cr, test::stretchable.getVisualX(3), test::stretchable.getVisualY(0),
                                         6, 4);
                         cairo_fill(cr);
                     }));
}

TEST_F(FiguresDrawerTest, StartsWithoutFiguresAndWithoutAChain) {
    EXPECT_TRUE(drawer.figures.empty());
    EXPECT_EQ(drawer.rootFigureDrawer, nullptr);
    EXPECT_FALSE(drawer.converterConnection.connected());
    EXPECT_EQ(picture().countPainted(), 0);
}

TEST_F(FiguresDrawerTest, PaintsNothingWithoutAChainOrWithoutFigures) {
    drawer.addFigure(circle);
    EXPECT_EQ(picture().countPainted(), 0);
    drawer.setRootFigureDrawer(defaultChain());
    EXPECT_GT(picture().countPainted(), 0);
    drawer.deleteFigures();
    EXPECT_TRUE(drawer.figures.empty());
    EXPECT_EQ(picture().countPainted(), 0);
}

TEST_F(FiguresDrawerTest, ShowsEveryFigureToEveryLinkInOrder) {
    drawer.setRootFigureDrawer(
        std::make_unique<Witness>("first", visits, std::make_unique<Witness>("second", visits)));
    drawer.addFigure(circle);
    drawer.addFigure(dot);
    drawer.addFigure(circle);
    picture();
    EXPECT_EQ(visits, (Visits{{"first", &circle},
                              {"second", &circle},
                              {"first", &dot},
                              {"second", &dot},
                              {"first", &circle},
                              {"second", &circle}}));
}

TEST_F(FiguresDrawerTest, AFigureThatNoLinkKnowsIsNotDrawn) {
    drawer.setRootFigureDrawer(defaultChain());
    drawer.addFigure(cross);
    EXPECT_EQ(picture().countPainted(), 0);
    auto link = std::make_unique<CrossDrawer>(defaultChain());
    CrossDrawer* crossDrawer = link.get();
    drawer.setRootFigureDrawer(std::move(link));
    drawer.addFigure(circle);
    EXPECT_GT(picture().countPainted(), 0);
    EXPECT_EQ(crossDrawer->seen, &cross);
}

TEST_F(FiguresDrawerTest, PaintsEachFigureAsOnAFreshContextInTheOrderOfAdding) {
    Zel::Circle second = makeCircle();
    second.x = 6;
    second.filled = false;
    Zel::PointsSequence path;
    path.points = {{8, -3}, {12, 3}};
    path.text = "gjpqy";
    dot.x = 4;
    drawer.setRootFigureDrawer(defaultChain());
    for (const Zel::Figure* figure : std::vector<const Zel::Figure*>{&circle, &second, &path, &dot, &second})
        drawer.addFigure(*figure);

    const auto expected = test::paint(test::canvasWidth, test::canvasHeight, [&](const Context& context) {
        const auto one = [&](auto&& painter, const auto& figure) {
            painter.converter = &test::stretchable;
            cairo_save(context->cobj());
            cairo_new_path(context->cobj());
            painter._onDraw(context, figure);
            cairo_restore(context->cobj());
        };
        one(CircleDrawer(), circle);
        one(CircleDrawer(), second);
        one(PointsSequenceDrawer(), path);
        one(FixedDotDrawer(), dot);
        one(CircleDrawer(), second);
    });
    test::expectSame(picture(), expected);
}

TEST_F(FiguresDrawerTest, GivesTheStateOfTheContextBack) {
    drawer.setRootFigureDrawer(defaultChain());
    drawer.addFigure(circle);
    test::paint(10, 10, [&](const Context& context) {
        context->set_line_width(7);
        drawer.draw(context);
        EXPECT_EQ(context->get_line_width(), 7.0);
        double r = 1, g = 1, b = 1, a = 0;
        cairo_pattern_get_rgba(cairo_get_source(context->cobj()), &r, &g, &b, &a);
        EXPECT_EQ(r + g + b, 0.0);
    });
}

TEST_F(FiguresDrawerTest, ReplacingTheChainDeletesTheFormerOne) {
    int alive = 1;
    auto link = std::make_unique<Witness>("former", visits);
    link->alive = &alive;
    drawer.setRootFigureDrawer(std::move(link));
    EXPECT_EQ(alive, 1);
    drawer.setRootFigureDrawer(defaultChain());
    EXPECT_EQ(alive, 0);
    drawer.addFigure(circle);
    EXPECT_GT(picture().countPainted(), 0);
    EXPECT_TRUE(visits.empty());
}

TEST_F(FiguresDrawerTest, RemovingTheChainLeavesTheConnectionUndone) {
    drawer.setRootFigureDrawer(defaultChain());
    EXPECT_TRUE(drawer.converterConnection.connected());
    EXPECT_EQ(drawer.drawerConverterChanged.size(), 1u);
    drawer.setRootFigureDrawer(nullptr);
    EXPECT_EQ(drawer.rootFigureDrawer, nullptr);
    EXPECT_FALSE(drawer.converterConnection.connected());
    EXPECT_EQ(drawer.drawerConverterChanged.size(), 0u);
    drawer.addFigure(circle);
    EXPECT_EQ(picture().countPainted(), 0);
    drawer.drawerConverterChanged.emit();
}

TEST_F(FiguresDrawerTest, GivesTheConverterToAllLinksAtOnceAndAtEachChange) {
    drawer.setRootFigureDrawer(defaultChain());
    const auto expectConverter = [&](const CoordsConverter* expected) {
        int links = 0;
        for (BaseFigureDrawer* link = drawer.rootFigureDrawer.get(); link; link = link->next.get(), ++links)
            EXPECT_EQ(link->converter, expected);
        EXPECT_EQ(links, 3);
    };
    expectConverter(&test::stretchable);
    drawer.converter = &test::proportional;
    drawer.drawerConverterChanged.emit();
    expectConverter(&test::proportional);
    drawer.setRootFigureDrawer(defaultChain());
    expectConverter(&test::proportional);
    EXPECT_EQ(drawer.drawerConverterChanged.size(), 1u);
}

TEST(FiguresDrawer, WithoutADrawAreaSaysSoAfterTheChange) {
    FiguresDrawer drawer;
    const Zel::Circle circle;
    expectNoDrawArea([&] { drawer.addFigure(circle); });
    EXPECT_EQ(drawer.figures, std::vector<const Zel::Figure*>{&circle});
    expectNoDrawArea([&] { drawer.deleteFigures(); });
    EXPECT_TRUE(drawer.figures.empty());

    expectNoDrawArea([&] { drawer.setRootFigureDrawer(defaultChain()); });
    EXPECT_NE(drawer.rootFigureDrawer, nullptr);
    EXPECT_TRUE(drawer.converterConnection.connected());
    expectNoDrawArea([&] { drawer.setRootFigureDrawer(nullptr); });
    EXPECT_EQ(drawer.rootFigureDrawer, nullptr);
    EXPECT_FALSE(drawer.converterConnection.connected());
}

TEST(FiguresDrawer, ThatGotItsChainBeforeItsDrawAreaPaintsOnItLater) {
    auto owned = std::make_unique<FiguresDrawer>();
    FiguresDrawer& drawer = *owned;
    expectNoDrawArea([&] { drawer.setRootFigureDrawer(defaultChain()); });
    SeriesGroupDrawArea plot;
    plot.addDrawer(std::move(owned), DrawerPosition::BeforeFragments);
    EXPECT_EQ(drawer.rootFigureDrawer->converter, drawer.converter);
    EXPECT_NE(drawer.converter, nullptr);
}

TEST(FiguresDrawer, FollowsTheConverterOfItsPlotAndRepaintsAtEachChange) {
    SeriesGroupDrawArea plot;
    auto owned = std::make_unique<FiguresDrawer>();
    FiguresDrawer& drawer = *owned;
    plot.addDrawer(std::move(owned), DrawerPosition::BeforeFragments);
    test::OffscreenHost host(plot, 300, 150);
    const auto picture = [&] { return test::pictureOf(host.picture()); };
    const test::Picture empty = picture();

    Zel::Circle circle;
    circle.x = 5;
    circle.y = 5;
    circle.radius = 2;
    plot.addBorderable(circle);
    drawer.setRootFigureDrawer(defaultChain());
    drawer.addFigure(circle);
    const test::Picture stretched = picture();
    EXPECT_NE(stretched.bytes, empty.bytes);

    plot.setCoordsConvertMode(CoordsConvertMode::Proportional);
    for (BaseFigureDrawer* link = drawer.rootFigureDrawer.get(); link; link = link->next.get())
        EXPECT_EQ(link->converter, drawer.converter);
    EXPECT_NE(dynamic_cast<const ProportionalCoordsConverter*>(drawer.converter), nullptr);
    const test::Picture even = picture();
    EXPECT_NE(even.bytes, stretched.bytes);

    drawer.setRootFigureDrawer(nullptr);
    EXPECT_EQ(picture().bytes, empty.bytes);
    drawer.setRootFigureDrawer(defaultChain());
    EXPECT_EQ(picture().bytes, even.bytes);
    drawer.deleteFigures();
    EXPECT_EQ(picture().bytes, empty.bytes);
    plot.clearBorderable();
}
