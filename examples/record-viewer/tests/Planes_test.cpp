// The pages of the hodograph and of the Z plane, used as a person uses them.
#include "Circuit.h"
#include "Panels.h"
#include "Wheel.h"
#include "reader/Reader.h"
#include "support/Answer.h"
#include "support/Finalised.h"
#include "support/Hands.h"
#include "support/Keyboard.h"
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"
#include "view/FindWidget.h"
#include "view/MainWindow.h"
#include "view/Pictures.h"

#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/diagrams/FiguresCoordsDrawer.h>
#include <ZelCommonView/diagrams/StyleZoomHelper.h>
#include <ZelCommonView/plot/SeriesTimeCounter.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using impedance::Loop;
using testing::HasSubstr;
using viewer::Impedances;

std::shared_ptr<const Impedances> demoImpedances(const impedance::LineSettings& line = {}) {
    return std::make_shared<const Impedances>(viewer::computeImpedances(record::open(DEMO_RECORD), line));
}

class PlanesTest : public testing::Test {
protected:
    PlanesTest() { _make(); }

    ~PlanesTest() override {
        lng::language = 0;
        window.reset();
        ZelView::StyleZoomHelper::zoomDefault();
    }

    void showDemo() {
        record::Record record = record::open(DEMO_RECORD);
        Impedances impedances = viewer::computeImpedances(record);
        window->setRecord(std::move(record), std::move(impedances));
        test::settle();
    }

    /// At rest, unless a test is about the replay: its pictures are slow to paint in sanitized programs.
    void present() {
        window->hodograph.hodograph.getCounter().setIsPaused(true);
        test::present(*window);
    }

    void makeAnew(unsigned char language) {
        lng::language = language;
        _make();
    }

    void clickTab(const std::string& title) { test::clickTab(*window, title); }

    Gtk::Scale& timeSlider() { return window->hodograph.hodograph.counterControls->getTimeSlider(); }

    Gtk::Button& runButton() { return *findRunButton(); }

    Gtk::Button* findRunButton() {
        for (Gtk::Button* const button : test::findAll<Gtk::Button>(window->hodograph.hodograph))
            if (button->get_label() == "Старт" || button->get_label() == "Пауза")
                return button;
        return nullptr;
    }

    /// Opens the choice and goes down by real keys.
    static void chooseNext(viewer::ImpedancePage& page, int steps) {
        test::click(page.loops);
        EXPECT_TRUE(test::waitFor([&page] { return page.loops.property_popup_shown().get_value(); }));
        test::wait(300);
        for (int i = 0; i < steps; ++i)
            test::pressKey(GDK_KEY_Down);
        test::pressKey(GDK_KEY_Return);
        test::wait(200);
    }

    /// What the widget shows, on the screen or off it.
    static test::Picture pictureOf(Gtk::Widget& widget) {
        const auto surface = test::makeSurface(widget.get_allocated_width(), widget.get_allocated_height());
        const auto context = Cairo::Context::create(surface);
        gtk_widget_draw(widget.gobj(), context->cobj());
        return test::pictureOf(surface);
    }

    std::unique_ptr<viewer::MainWindow> window;

private:
    void _make() {
        window.reset();
        window = std::make_unique<viewer::MainWindow>("test");
    }
};

} // namespace

TEST_F(PlanesTest, ShowTheLoopOfTheFaultFirst) {
    showDemo();
    EXPECT_EQ(window->hodograph.getLoop(), Loop::AE);
    EXPECT_EQ(window->plane.getLoop(), Loop::AE);
    EXPECT_EQ(window->hodograph.loops.get_active_text(), "AE");
    ASSERT_EQ(window->hodograph.hodograph.series.size(), 1u);
    const auto& points = window->hodograph.hodograph.series.front()->points;
    EXPECT_EQ(points.size(), window->hodograph.view.points.size());
    // In milliseconds from the trajectory's first point, which is that of the load and out of view.
    EXPECT_GT(points.front().time, 0u);
    EXPECT_EQ(points.front().time,
              window->hodograph.view.points.front().time -
                  window->hodograph._getImpedances().trajectories.of(Loop::AE).front().time);
}

TEST_F(PlanesTest, APersonGoesThroughTheTabsBesideTheOscillogram) {
    showDemo();
    present();
    EXPECT_TRUE(window->hodograph.get_mapped());
    clickTab("Z plane");
    EXPECT_TRUE(test::waitFor([&] { return window->plane.get_mapped() && !window->hodograph.get_mapped(); }));
    clickTab("Hodograph");
    EXPECT_TRUE(test::waitFor([&] { return window->hodograph.get_mapped() && !window->plane.get_mapped(); }));
    EXPECT_TRUE(window->page.get_mapped());
    EXPECT_TRUE(window->channels.get_mapped());
}

TEST_F(PlanesTest, ChoosingAnotherLoopChangesBothPages) {
    showDemo();
    present();
    clickTab("Hodograph");
    std::vector<Loop> told;
    window->plane.signalLoopChosen.connect([&](Loop loop) { told.push_back(loop); });
    chooseNext(window->hodograph, 3);
    EXPECT_TRUE(test::waitFor([&] { return window->hodograph.getLoop() == Loop::AB; }));
    EXPECT_EQ(window->plane.getLoop(), Loop::AB);
    EXPECT_EQ(window->plane.loops.get_active_text(), "AB");
    EXPECT_EQ(told, (std::vector<Loop>{Loop::AB}));
    EXPECT_THAT(window->hodograph.status.get_text().raw(), HasSubstr("Loop AB"));
    EXPECT_THAT(window->plane.status.get_text().raw(), HasSubstr("Loop AB"));

    clickTab("Z plane");
    const test::Picture before = pictureOf(window->plane.diagram);
    chooseNext(window->plane, 1);
    EXPECT_TRUE(test::waitFor([&] { return window->hodograph.getLoop() == Loop::BC; }));
    EXPECT_FALSE(pictureOf(window->plane.diagram) == before);
    window->plane.chooseLoop(Loop::BC);
    EXPECT_EQ(told.size(), 2u);
}

TEST_F(PlanesTest, AnotherRecordBeginsWithItsOwnLoop) {
    showDemo();
    window->plane.chooseLoop(Loop::CA);
    int told = 0;
    window->plane.signalLoopChosen.connect([&](Loop) { ++told; });
    showDemo();
    EXPECT_EQ(window->plane.getLoop(), Loop::AE);
    EXPECT_EQ(window->hodograph.getLoop(), Loop::AE);
    EXPECT_EQ(told, 0);
}

TEST_F(PlanesTest, TheReplayMovesTheDotInTheZPlane) {
    showDemo();
    present();
    clickTab("Hodograph");
    // It runs over and over again.
    window->hodograph.hodograph.getCounter().setIsPaused(false);
    const double value = timeSlider().get_value();
    EXPECT_TRUE(test::waitFor([&] { return timeSlider().get_value() != value; }));
    // A person stops it near the middle; where the slider stands is where the dot is.
    test::click(timeSlider(), timeSlider().get_allocated_width() * 95 / 100,
                timeSlider().get_allocated_height() - 8);
    EXPECT_TRUE(test::waitFor([&] { return runButton().get_label() == "Старт"; }));
    const auto expectDotAtTime = [&] {
        const auto time = static_cast<std::uint64_t>(timeSlider().get_value());
        const impedance::Point* const point = window->plane.view.at(time);
        ASSERT_NE(point, nullptr);
        EXPECT_EQ(window->plane.dot->x, static_cast<float>(point->r));
        EXPECT_EQ(window->plane.dot->y, static_cast<float>(point->x));
        EXPECT_EQ(window->plane.dot->color.a, 255);
    };
    expectDotAtTime();
    clickTab("Z plane");
    const test::Picture middle = pictureOf(window->plane.diagram);
    window->hodograph.stopAtEnd();
    expectDotAtTime();
    EXPECT_EQ(window->plane.dot->x, static_cast<float>(window->plane.view.points.back().r));
    test::settle();
    EXPECT_FALSE(pictureOf(window->plane.diagram) == middle);
    // Before the first point in view there is none.
    timeSlider().set_value(0);
    EXPECT_EQ(window->plane.dot->color.a, 0);
}

TEST_F(PlanesTest, TheHodographIsCompleteAtItsEnd) {
    showDemo();
    window->hodograph.stopAtEnd();
    EXPECT_EQ(timeSlider().get_value(), timeSlider().get_adjustment()->get_upper());
    EXPECT_EQ(runButton().get_label(), "Старт");
    // Also from the end itself, after the clock has gone on.
    runButton().clicked();
    window->hodograph.stopAtEnd();
    EXPECT_EQ(runButton().get_label(), "Старт");
    EXPECT_EQ(timeSlider().get_value(), timeSlider().get_adjustment()->get_upper());
}

TEST_F(PlanesTest, TheAxesFitSmallImpedances) {
    auto small = std::make_shared<Impedances>(*demoImpedances());
    for (auto& points : small->trajectories.loops)
        for (impedance::Point& point : points) {
            point.r /= 1000;
            point.x /= 1000;
        }
    small->line /= 1000;
    small->view /= 1000;
    window->plane.setImpedances(small);
    window->hodograph.setImpedances(small);
    present();
    for (viewer::ImpedancePage* page : {static_cast<viewer::ImpedancePage*>(&window->hodograph),
                                        static_cast<viewer::ImpedancePage*>(&window->plane)}) {
        clickTab(page == &window->plane ? "Z plane" : "Hodograph");
        auto* const area = viewer::findWidget<ZelView::SeriesGroupDrawArea>(*page);
        const ZelView::CoordsConverter& converter = *area->converterProxy.getConverter();
        const auto& points = page->view.points;
        double least = 1e9;
        double most = -1e9;
        for (const impedance::Point& point : points) {
            least = std::min<double>(least, converter.getVisualY(static_cast<float>(point.x)));
            most = std::max<double>(most, converter.getVisualY(static_cast<float>(point.x)));
        }
        EXPECT_GE(least, 0);
        EXPECT_LE(most, area->get_allocated_height());
        EXPECT_GT(most - least, area->get_allocated_height() / 2);
    }
}

TEST_F(PlanesTest, TheZonesAreCirclesOrQuadrilateralsWithTheirNames) {
    showDemo();
    const auto count = [&](auto* type) {
        int result = 0;
        for (const auto& figure : window->plane.diagram.figures)
            result += dynamic_cast<decltype(type)>(figure.get()) != nullptr;
        return result;
    };
    // Three circles and three names, which are circles without a size.
    EXPECT_EQ(count(static_cast<Zel::Circle*>(nullptr)), 6);
    EXPECT_EQ(count(static_cast<Zel::PointsSequence*>(nullptr)), 1);
    std::vector<std::string> names;
    for (const auto& figure : window->plane.diagram.figures)
        if (const auto* const circle = dynamic_cast<Zel::Circle*>(figure.get());
            circle && circle->radius == 0)
            names.push_back(circle->text);
    EXPECT_EQ(names, (std::vector<std::string>{"Zone 1", "Zone 2", "Zone 3"}));

    window->plane.shapes.set_active(1);
    EXPECT_EQ(count(static_cast<Zel::Circle*>(nullptr)), 3);
    EXPECT_EQ(count(static_cast<Zel::PointsSequence*>(nullptr)), 4);
    for (const auto& figure : window->plane.diagram.figures) {
        const auto* const sequence = dynamic_cast<Zel::PointsSequence*>(figure.get());
        EXPECT_TRUE(!sequence || sequence->text.empty());
    }
    // The dot is painted last.
    EXPECT_EQ(window->plane.diagram.figures.back().get(), window->plane.dot);
}

TEST_F(PlanesTest, WithoutAFaultThereAreNoZones) {
    auto impedances = std::make_shared<Impedances>(*demoImpedances());
    impedances->line = 0;
    window->plane.setImpedances(impedances);
    for (const auto& figure : window->plane.diagram.figures)
        EXPECT_EQ(dynamic_cast<Zel::Circle*>(figure.get()), nullptr);
    EXPECT_THAT(window->plane.status.get_text().raw(), HasSubstr("no zones"));
}

TEST_F(PlanesTest, SpeakTheLanguage) {
    EXPECT_EQ(window->plane.diagram.getCoordsDrawer()->getHorizontalHeader(), "R, ohm");
    EXPECT_EQ(window->plane.diagram.getCoordsDrawer()->getVerticalHeader(), "X, ohm");
    makeAnew(1);
    showDemo();
    EXPECT_EQ(window->plane.diagram.getCoordsDrawer()->getHorizontalHeader(), "R, Ом");
    EXPECT_EQ(window->plane.diagram.getCoordsDrawer()->getVerticalHeader(), "X, Ом");
    EXPECT_EQ(window->plane.loopLabel.get_text(), "Контур");
    EXPECT_EQ(window->plane.shapes.get_active_text(), "Окружности");
    EXPECT_THAT(window->plane.status.get_text().raw(), HasSubstr("вторичные омы"));
    EXPECT_THAT(window->hodograph.status.get_text().raw(), HasSubstr("Контур AE"));
    present();
    clickTab("Годограф");
    EXPECT_TRUE(test::waitFor([&] { return window->hodograph.get_mapped(); }));
    clickTab("Плоскость Z");
    EXPECT_TRUE(test::waitFor([&] { return window->plane.get_mapped(); }));
    clickTab("Осциллограмма");
    EXPECT_TRUE(test::waitFor([&] { return window->page.get_mapped(); }));
}

TEST_F(PlanesTest, ARecordWithoutTheSignalsShowsASentenceInPlaceOfThePlanes) {
    showDemo();
    record::Record record = record::open(DEMO_RECORD);
    record.analogs.resize(3);
    Impedances impedances = viewer::computeImpedances(record);
    ASSERT_NE(impedances.problem, "");
    const std::string sentence = impedances.problem;
    window->setRecord(std::move(record), std::move(impedances));
    present();
    for (viewer::ImpedancePage* page : {static_cast<viewer::ImpedancePage*>(&window->hodograph),
                                        static_cast<viewer::ImpedancePage*>(&window->plane)}) {
        EXPECT_EQ(page->stack.get_visible_child(), &page->problem);
        EXPECT_EQ(page->problem.get_text(), sentence);
        EXPECT_EQ(page->status.get_text(), "");
        EXPECT_FALSE(page->loops.get_sensitive());
    }
    clickTab("Hodograph");
    EXPECT_TRUE(window->hodograph.problem.get_mapped());
    window->plane.shapes.set_active(1);
    // The next record shows its plane again.
    showDemo();
    EXPECT_NE(window->hodograph.stack.get_visible_child(), &window->hodograph.problem);
    EXPECT_TRUE(window->hodograph.loops.get_sensitive());
}

TEST_F(PlanesTest, CanBeOnTheScreenBeforeThereIsARecord) {
    present();
    clickTab("Z plane");
    EXPECT_FALSE(window->plane.loops.get_sensitive());
    window->plane.shapes.set_active(1);
    window->plane.showTime(5);
    EXPECT_TRUE(window->plane.diagram.figures.empty());
    showDemo();
    EXPECT_TRUE(window->plane.diagram.get_mapped());
}

TEST_F(PlanesTest, TheWheelZoomsThePlaneAndWithControlTheText) {
    showDemo();
    window->hodograph.stopAtEnd(); // a replay at this size leaves no quiet moment to wait for
    present();
    clickTab("Z plane");
    ZelView::ZoomableScrolledWindow& scrolled = window->plane.diagram.scrolled;
    for (int i = 0; i < 20; ++i)
        test::turnWheelSmoothly(scrolled, -1);
    EXPECT_TRUE(test::waitFor([&] {
        return window->plane.diagram.drawArea.get_allocated_width() == 3 * scrolled.get_allocated_width();
    }));
    EXPECT_EQ(scrolled.scale, 300u);
    EXPECT_EQ(ZelView::StyleZoomHelper::getFontSize(), 14);
    test::turnWheelSmoothly(scrolled, -1, GDK_CONTROL_MASK);
    EXPECT_TRUE(test::waitFor([&] { return ZelView::StyleZoomHelper::getFontSize() == 15; }));
    EXPECT_EQ(scrolled.scale, 300u);

    clickTab("Hodograph");
    for (int i = 0; i < 20; ++i)
        test::turnWheelSmoothly(window->hodograph.hodograph.scrolled, -1);
    EXPECT_TRUE(test::waitFor([&] { return window->hodograph.hodograph.scrolled.scale == 300; }));
}

TEST_F(PlanesTest, ThePicturesShowBothPagesAndAreTheSameEachTime) {
    const test::TemporaryFolder folder;
    const auto write = [&](const std::string& name, const std::shared_ptr<const Impedances>& impedances) {
        return viewer::writeImpedances(impedances, folder.path / name, "record");
    };
    const auto first = write("a", demoImpedances());
    EXPECT_EQ(first, (std::vector<std::string>{folder.path / "a" / "record-hodograph.png",
                                               folder.path / "a" / "record-zplane.png"}));
    const auto second = write("b", demoImpedances());
    for (std::size_t i = 0; i < 2; ++i) {
        const test::Picture picture = test::pictureOfFile(first[i]);
        EXPECT_EQ(picture.width, 1400);
        EXPECT_EQ(picture.height, 900);
        int red = 0;
        for (int x = 0; x < picture.width; ++x)
            for (int y = 0; y < picture.height; ++y) {
                const auto pixel = picture.at(x, y);
                red += pixel[0] > pixel[1] + 100;
            }
        EXPECT_GT(red, 500) << first[i]; // the whole trajectory, and not only its beginning
        EXPECT_EQ(test::readFile(first[i]), test::readFile(second[i]));
    }
    impedance::LineSettings line;
    line.z1 = {0.6, 2.2};
    EXPECT_NE(test::readFile(write("c", demoImpedances(line))[1]), test::readFile(first[1]));
}

TEST(Planes, DieInAnyOrder) {
    for (const bool isHodographFirst : {false, true}) {
        test::Finalised finalised;
        auto hodograph = std::make_unique<viewer::HodographPage>();
        auto plane = std::make_unique<viewer::ZPlanePage>();
        finalised.watch(*hodograph);
        finalised.watch(*plane);
        hodograph->signalLoopChosen.connect(sigc::mem_fun(*plane, &viewer::ZPlanePage::chooseLoop));
        plane->signalLoopChosen.connect(sigc::mem_fun(*hodograph, &viewer::HodographPage::chooseLoop));
        hodograph->signalTimeChanged.connect(sigc::mem_fun(*plane, &viewer::ZPlanePage::showTime));
        auto impedances = demoImpedances();
        hodograph->setImpedances(impedances);
        plane->setImpedances(impedances);
        impedances.reset();
        if (isHodographFirst) {
            hodograph.reset();
            plane->chooseLoop(Loop::CA);
            EXPECT_EQ(plane->getLoop(), Loop::CA);
        } else {
            plane.reset();
            hodograph->chooseLoop(Loop::CA);
            test::wait(250); // the replay runs on
        }
        hodograph.reset();
        plane.reset();
        EXPECT_TRUE(finalised.all());
    }
}

TEST(Planes, AWindowThatIsClosedTakesItsPagesAlong) {
    test::Finalised finalised;
    {
        viewer::MainWindow window("test");
        record::Record record = record::open(DEMO_RECORD);
        Impedances impedances = viewer::computeImpedances(record);
        window.setRecord(std::move(record), std::move(impedances));
        finalised.watch(window.page);
        finalised.watch(window.hodograph);
        finalised.watch(window.plane);
        test::present(window);
    }
    test::settle();
    EXPECT_TRUE(finalised.all());
}
