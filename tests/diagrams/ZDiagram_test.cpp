#include "diagrams/Scrolling.h"
#include "support/Finalised.h"
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <ZelCommonView/diagrams/CircleDrawer.h>
#include <ZelCommonView/diagrams/FiguresCoordsDrawer.h>
#include <ZelCommonView/diagrams/FiguresDrawer.h>
#include <ZelCommonView/diagrams/FixedDotDrawer.h>
#include <ZelCommonView/diagrams/PointsSequenceDrawer.h>
#include <ZelCommonView/diagrams/ZDiagram.h>
#include <ZelCommonView/markers/CursorPosDrawer.h>
#include <ZelCommonView/markers/MarkerDrawer.h>

#include <memory>

namespace {

using namespace ZelView;

std::unique_ptr<Zel::Circle> makeCircle(float x, float y, float radius) {
    auto circle = std::make_unique<Zel::Circle>();
    circle->x = x;
    circle->y = y;
    circle->radius = radius;
    circle->color = {0, 0, 255, 255};
    circle->filled = true;
    return circle;
}

template <typename T>
bool is(const Drawer* drawer) {
    return dynamic_cast<const T*>(drawer) != nullptr;
}

class ZDiagramTest : public testing::Test {
protected:
    const CoordsConverter& converter() { return *diagram->drawArea.converterProxy.getConverter(); }

    FragmentsDrawArea& canvas() { return diagram->getDrawArea().getFragmensDrawArea(); }

    void present(int width = 400, int height = 300) {
        window.set_default_size(width, height);
        window.add(*diagram);
        test::present(window);
    }

    void zoomTo(unsigned int scale) {
        for (unsigned int i = diagram->scrolled.scale; i < scale; i += 10)
            test::turnWheel(diagram->scrolled, 200, 150, -1);
        ASSERT_TRUE(test::waitFor([&] {
            return diagram->drawArea.get_allocated_width() ==
                   static_cast<int>(scale / 100.0 * diagram->scrolled.get_allocated_width());
        }));
        test::settle();
    }

    test::Picture exported() {
        const test::TemporaryFolder folder;
        const std::string path = (folder.path / "plane.png").string();
        diagram->exportToPng(path);
        return test::pictureOfFile(path);
    }

    /// What the screen shows of the plane, without the edges where scrollbars may lie.
    test::Picture seen() {
        const auto pixbuf =
            Gdk::Pixbuf::create(window.get_window(), 0, 0, window.get_allocated_width() - edge,
                                window.get_allocated_height() - edge);
        return test::pictureOf(pixbuf);
    }

    /// The part of the export that the screen shows.
    test::Picture exportedPart() {
        const test::TemporaryFolder folder;
        const std::string path = (folder.path / "plane.png").string();
        diagram->exportToPng(path);
        const auto whole = Gdk::Pixbuf::create_from_file(path);
        const IScrollInfo& info = diagram->scrolled.getScrollInfo();
        const auto part =
            Gdk::Pixbuf::create(Gdk::COLORSPACE_RGB, false, 8, window.get_allocated_width() - edge,
                                window.get_allocated_height() - edge);
        part->fill(0);
        whole->composite(part, 0, 0, part->get_width(), part->get_height(), -info.getWidthBefore(),
                         -info.getHeightBefore(), 1, 1, Gdk::INTERP_NEAREST, 255);
        return test::pictureOf(part);
    }

    static constexpr int edge = 20; // pixels
    Gtk::Window window;
    std::unique_ptr<ZDiagram> diagram = std::make_unique<ZDiagram>();
};

} // namespace

TEST_F(ZDiagramTest, IsAScrolledPlotInAGrid) {
    EXPECT_EQ(diagram->get_child(), &diagram->grid);
    EXPECT_EQ(diagram->grid.get_child_at(0, 0), &diagram->scrolled);
    EXPECT_EQ(diagram->scrolled.currentWidget, &diagram->drawArea);
    EXPECT_EQ(&diagram->getDrawArea(), &diagram->drawArea);
    EXPECT_TRUE(diagram->get_visible());
    EXPECT_EQ(diagram->scrolled.minScale, 100u);
    EXPECT_EQ(diagram->scrolled.maxScale, 500u);
    EXPECT_EQ(diagram->scrolled.scaleStep, 10u);
    EXPECT_TRUE(is<FiguresCoordsDrawer>(diagram->getCoordsDrawer()));
    EXPECT_EQ(diagram->getCoordsDrawer()->scrollInfo, &diagram->scrolled.getScrollInfo());
    EXPECT_NE(dynamic_cast<const ProportionalCoordsConverter*>(&converter()), nullptr);
    EXPECT_EQ(diagram->drawArea.converterProxy.xBordersMode, BordersMode::Auto);
    EXPECT_EQ(diagram->drawArea.converterProxy.yBordersMode, BordersMode::Auto);
}

TEST_F(ZDiagramTest, HasFourDrawersInTheOrderOfAdding) {
    std::vector<std::string> added;
    const std::vector<Drawer*> drawers = diagram->drawArea.getDrawers();
    ASSERT_EQ(drawers.size(), 4u);
    int kinds = 0;
    for (const Drawer* const drawer : drawers)
        kinds += is<FiguresCoordsDrawer>(drawer) + 10 * is<FiguresDrawer>(drawer) +
                 100 * is<CursorPosDrawer>(drawer) + 1000 * is<MarkerDrawer>(drawer);
    EXPECT_EQ(kinds, 1111);
}

TEST_F(ZDiagramTest, TheGridLiesOverTheFiguresUnlikeOnTheHodograph) {
    diagram->addFigure(makeCircle(0, 0, 10));
    present();
    const test::Picture picture = exported();
    test::expectSame(exportedPart(), seen());
    // A line of the grid crosses the filled circle.
    const int y = static_cast<int>(converter().getVisualY(0));
    const int x = static_cast<int>(converter().getVisualX(3.3f));
    bool isCrossed = false;
    for (int row = y - 2; row <= y + 2; ++row)
        isCrossed = isCrossed || picture.at(x, row) != (std::vector<int>{0, 0, 255, 255});
    EXPECT_TRUE(isCrossed);
}

TEST_F(ZDiagramTest, AxesTakeInEachFigureAndFallBackWithoutThem) {
    present();
    const float before = converter().getVisualX(1);
    diagram->addFigure(makeCircle(1000, 500, 100));
    EXPECT_LE(converter().getVisualX(1100), canvas().get_allocated_width());
    EXPECT_GE(converter().getVisualY(600), 0);
    diagram->addFigure(makeCircle(-3000, 0, 10));
    EXPECT_GE(converter().getVisualX(-3010), 0);
    diagram->deleteFigures();
    EXPECT_EQ(converter().getVisualX(1), before);
    EXPECT_TRUE(diagram->figures.empty());
}

TEST_F(ZDiagramTest, DeletingNoFiguresChangesNothing) {
    present();
    const test::Picture before = exported();
    diagram->deleteFigures();
    test::settle();
    test::expectSame(exported(), before);
}

TEST_F(ZDiagramTest, ANullFigureIsRefused) {
    try {
        diagram->addFigure(nullptr);
        FAIL();
    } catch (const char* failure) {
        EXPECT_STREQ(failure, "addFigure");
    }
    EXPECT_TRUE(diagram->figures.empty());
}

TEST_F(ZDiagramTest, KnowsCirclesSequencesAndDots) {
    const BaseFigureDrawer* const root = diagram->figuresDrawer->rootFigureDrawer.get();
    ASSERT_NE(dynamic_cast<const CircleDrawer*>(root), nullptr);
    ASSERT_NE(dynamic_cast<const PointsSequenceDrawer*>(root->next.get()), nullptr);
    ASSERT_NE(dynamic_cast<const FixedDotDrawer*>(root->next->next.get()), nullptr);
    EXPECT_EQ(root->next->next->next, nullptr);
    EXPECT_EQ(root->converter, &converter());
}

TEST_F(ZDiagramTest, PaintersOfTheApplicationReplaceAllOthers) {
    diagram->addFigure(makeCircle(0, 0, 10));
    present();
    const int x = static_cast<int>(converter().getVisualX(3.3f));
    const int y = static_cast<int>(converter().getVisualY(3.3f));
    const std::vector<int> blue{0, 0, 255, 255};
    EXPECT_EQ(exported().at(x, y), blue);
    diagram->setRootFigureDrawer(std::make_unique<FixedDotDrawer>());
    test::settle();
    EXPECT_NE(exported().at(x, y), blue);
    diagram->setRootFigureDrawer(nullptr);
    test::settle();
    EXPECT_NE(exported().at(x, y), blue);
    diagram->setRootFigureDrawer(std::make_unique<CircleDrawer>());
    test::settle();
    EXPECT_EQ(exported().at(x, y), blue);
}

TEST_F(ZDiagramTest, AZoomedDiagramIsExportedWhole) {
    diagram->addFigure(makeCircle(0, 0, 10));
    present();
    zoomTo(300);
    canvas().redraw();
    test::settle();
    const test::Picture picture = exported();
    test::expectSame(exportedPart(), seen());
    EXPECT_EQ(picture.width, canvas().get_allocated_width());
    EXPECT_EQ(picture.height, canvas().get_allocated_height());
    EXPECT_GT(picture.width, 2 * diagram->scrolled.get_allocated_width());
    // Also where the screen doesn't show it: the circle reaches down to the last rows.
    const int left = static_cast<int>(converter().getVisualX(-9.5f));
    const int middle = static_cast<int>(converter().getVisualY(0.3f));
    EXPECT_EQ(picture.at(left, middle), (std::vector<int>{0, 0, 255, 255}));
    EXPECT_LT(left, diagram->scrolled.getScrollInfo().getWidthBefore());
}

TEST_F(ZDiagramTest, TheExportHasNeitherCursorNorMarkersAndTheScreenHas) {
    diagram->addFigure(makeCircle(0, 0, 10));
    present();
    const test::Picture before = exported();
    test::movePointer(canvas(), 100, 80);
    test::settle();
    test::movePointer(canvas(), 120, 90);
    test::settle();
    test::expectSame(exported(), before);
}

TEST_F(ZDiagramTest, IsExportedFromAWindowThatWasNeverOnTheScreen) {
    diagram->addFigure(makeCircle(0, 0, 10));
    Gtk::OffscreenWindow host;
    host.set_default_size(320, 240);
    host.add(*diagram);
    host.show_all();
    test::settle();
    const test::Picture picture = exported();
    EXPECT_EQ(picture.width, canvas().get_allocated_width());
    EXPECT_GT(picture.countPainted(), 1000);
    host.remove();
}

TEST_F(ZDiagramTest, HeadersAreSetByTheApplication) {
    present();
    const test::Picture before = exported();
    diagram->getCoordsDrawer()->setHorizontalHeader("R, Ом");
    diagram->getCoordsDrawer()->setVerticalHeader("X, Ом");
    canvas().redraw();
    test::settle();
    EXPECT_FALSE(exported() == before);
}

TEST_F(ZDiagramTest, ARealDragMovesTheViewByAsManyPixels) {
    diagram->addFigure(makeCircle(0, 0, 10));
    present();
    zoomTo(300);
    const auto adjustmentX = diagram->scrolled.get_hadjustment();
    const auto adjustmentY = diagram->scrolled.get_vadjustment();
    const double x = adjustmentX->get_value();
    const double y = adjustmentY->get_value();
    test::drag(diagram->scrolled, 200, 150, 140, 110);
    EXPECT_NEAR(adjustmentX->get_value(), x + 60, 0.1);
    EXPECT_NEAR(adjustmentY->get_value(), y + 40, 0.1);
    test::drag(diagram->scrolled, 140, 110, 170, 120);
    EXPECT_NEAR(adjustmentX->get_value(), x + 30, 0.1);
    EXPECT_NEAR(adjustmentY->get_value(), y + 30, 0.1);
}

TEST_F(ZDiagramTest, FillsTheWindowAtEveryScaleAfterAResize) {
    present();
    zoomTo(200);
    window.resize(500, 360);
    EXPECT_TRUE(test::waitFor([this] {
        return diagram->scrolled.get_allocated_width() == 500 &&
               diagram->drawArea.get_allocated_width() == 1000;
    }));
    EXPECT_EQ(diagram->drawArea.get_allocated_height(), 2 * diagram->scrolled.get_allocated_height());
}

TEST_F(ZDiagramTest, EndsCompletelyWithItsFigures) {
    test::Finalised finalised;
    for (int i = 0; i < 300; ++i) {
        diagram = std::make_unique<ZDiagram>();
        diagram->addFigure(makeCircle(0, 0, 10));
        diagram->addFigure(std::make_unique<Zel::PointsSequence>());
        finalised.watch(*diagram);
        finalised.watch(diagram->drawArea);
        finalised.watch(diagram->scrolled);
        if (i % 50 == 0)
            present();
    }
    diagram.reset();
    EXPECT_TRUE(finalised.all());
    test::settle();
}
