#include "support/Hands.h"
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <ZelCommonView/diagrams/FiguresCoordsDrawer.h>
#include <ZelCommonView/diagrams/FiguresDrawManager.h>
#include <ZelCommonView/diagrams/ZDiagram.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>

namespace {

using namespace ZelView;
using Figures = std::map<std::string, std::unique_ptr<Zel::Figure>>;

std::unique_ptr<Zel::Circle> makeCircle(float x, float radius, Zel::Color color) {
    auto circle = std::make_unique<Zel::Circle>();
    circle->x = x;
    circle->radius = radius;
    circle->color = color;
    circle->filled = true;
    return circle;
}

class FiguresDrawManagerTest : public testing::Test {
protected:
    test::Picture save(Figures& figures, const std::string& horizontal = "R",
                       const std::string& vertical = "X") {
        const std::string path = (folder.path / "figures.png").string();
        Zel::FiguresDrawManager::getInstance().saveToImage(path, figures, horizontal, vertical);
        return test::pictureOfFile(path);
    }

    test::TemporaryFolder folder;
};

} // namespace

TEST_F(FiguresDrawManagerTest, ThereIsOneForTheProcess) {
    EXPECT_EQ(&Zel::FiguresDrawManager::getInstance(), &Zel::FiguresDrawManager::getInstance());
    EXPECT_NE(dynamic_cast<FiguresDrawEngine*>(Zel::FiguresDrawManager::getInstance().engine.get()), nullptr);
}

TEST_F(FiguresDrawManagerTest, WritesWhatADiagramOfThatSizeShows) {
    Figures figures;
    figures["a"] = makeCircle(0, 10, {0, 0, 255, 255});
    const test::Picture picture = save(figures);
    EXPECT_EQ(picture.height, 400);

    ZDiagram diagram;
    diagram.getCoordsDrawer()->setHorizontalHeader("R");
    diagram.getCoordsDrawer()->setVerticalHeader("X");
    diagram.addFigure(makeCircle(0, 10, {0, 0, 255, 255}));
    Gtk::OffscreenWindow window;
    window.set_default_size(500, 400);
    window.add(diagram);
    window.show_all();
    test::settle();
    const std::string path = (folder.path / "shown.png").string();
    diagram.exportToPng(path);
    test::expectSame(picture, test::pictureOfFile(path));
}

TEST_F(FiguresDrawManagerTest, MovesTheFiguresOutAndKeepsTheKeys) {
    Figures figures;
    figures["a"] = makeCircle(0, 10, {0, 0, 255, 255});
    figures["b"] = makeCircle(0, 5, {255, 0, 0, 255});
    save(figures);
    ASSERT_EQ(figures.size(), 2u);
    EXPECT_EQ(figures.at("a"), nullptr);
    EXPECT_EQ(figures.at("b"), nullptr);
}

TEST_F(FiguresDrawManagerTest, PaintsInTheOrderOfTheKeys) {
    // The smaller one is seen only if it is painted later.
    const auto middle = [this](const std::string& small, const std::string& large) {
        Figures figures;
        figures[small] = makeCircle(0, 9, {255, 0, 0, 255});
        figures[large] = makeCircle(0, 10, {0, 0, 255, 255});
        const test::Picture picture = save(figures);
        return picture.at(picture.width / 2 + 30, picture.height / 2 + 35);
    };
    EXPECT_EQ(middle("b", "a"), (std::vector<int>{255, 0, 0, 255}));
    EXPECT_EQ(middle("a", "b"), (std::vector<int>{0, 0, 255, 255}));
}

TEST_F(FiguresDrawManagerTest, TheSameMapASecondTimeGivesAnEmptyPlane) {
    Figures figures;
    figures["a"] = makeCircle(0, 10, {0, 0, 255, 255});
    save(figures);
    Figures none;
    test::expectSame(save(figures), save(none));
}

TEST_F(FiguresDrawManagerTest, HeadersNameTheAxes) {
    Figures none;
    EXPECT_FALSE(save(none, "R, Ом", "X, Ом") == save(none, "", ""));
}

TEST_F(FiguresDrawManagerTest, AFileThatCannotBeWrittenIsReportedAndTheNextOneSucceeds) {
    Figures figures;
    figures["a"] = makeCircle(0, 10, {0, 0, 255, 255});
    EXPECT_THROW(Zel::FiguresDrawManager::getInstance().saveToImage("/no/such/folder/a.png", figures, "", ""),
                 Glib::Error);
    Figures none;
    EXPECT_GT(save(none).countPainted(), 0);
}

TEST_F(FiguresDrawManagerTest, AHandlerThatIsAlwaysReadyHoldsItUpOnlyForAWhile) {
    sigc::connection busy = Glib::signal_idle().connect([] { return true; });
    Figures figures;
    figures["a"] = makeCircle(0, 10, {0, 0, 255, 255});
    const gint64 start = g_get_monotonic_time();
    EXPECT_GT(save(figures).countPainted(), 10000);
    EXPECT_LT(g_get_monotonic_time() - start, 10000000);
    busy.disconnect();
}

TEST_F(FiguresDrawManagerTest, OtherHandlersOfTheApplicationRunMeanwhile) {
    bool hasRun = false;
    Glib::signal_idle().connect_once([&hasRun] { hasRun = true; });
    Figures none;
    save(none);
    EXPECT_TRUE(hasRun);
}
