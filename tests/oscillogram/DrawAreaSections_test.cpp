#include "oscillogram/Sections.h"
#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/oscillogram/DrawAreaSections.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using namespace ZelView;
using Areas = std::vector<SeriesGroupDrawArea*>;

/// Accepts binaries and writes down what it is asked.
struct Shelf : DrawAreaSections {
    Shelf() {
        signalDrawAreaCreated.connect([this](SeriesGroupDrawArea& area) {
            calls.push_back("signal");
            told.push_back(&area);
        });
    }

    float _getDrawAreaMinHeight() const override { return 33.9f; }

    bool _isCorrectSeries(const Zel::Series* series) const override {
        return series->type == Zel::SeriesType::Binary;
    }

    void _onDrawAreaCreate(SeriesGroupDrawArea& area) override {
        calls.push_back("create");
        created.push_back(&area);
        isVisible = area.get_visible();
        area.get_size_request(width, height);
    }

    void _onToolbarGroupChange() override {
        calls.push_back("group");
        group = getToolbarGroup().getGroup();
    }

    std::vector<std::string> calls;
    Areas created, told;
    bool isVisible = false;
    int width = 0;
    int height = 0;
    Glib::RefPtr<Gtk::SizeGroup> group;
};

struct DrawAreaSectionsTest : testing::Test {
    SeriesGroupDrawArea& area(std::size_t index) { return *shelf.getDrawAreas().at(index); }

    Zel::Series first = test::makeBinary(0), second = test::makeBinary(0), far = test::makeBinary(2),
                foreign = test::makeAnalog();
    Shelf shelf;
};

} // namespace

TEST_F(DrawAreaSectionsTest, StartsWithoutPlotsAndWithAHorizontalGroupOfItsOwn) {
    EXPECT_TRUE(shelf.getDrawAreas().empty());
    EXPECT_EQ(shelf.getToolbarGroup().getGroup()->get_mode(), Gtk::SIZE_GROUP_HORIZONTAL);
    EXPECT_TRUE(shelf.getToolbarGroup().getGroup()->get_widgets().empty());
    const void* const fields[] = {&shelf.signalDrawAreaCreated, &shelf.drawAreas, &shelf.toolbarGroup};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST_F(DrawAreaSectionsTest, APlotIsShownAndSizedBeforeItIsFittedOutAndOnlyThenTold) {
    shelf.addSeries(&first);
    EXPECT_EQ(shelf.calls, (std::vector<std::string>{"create", "signal"}));
    EXPECT_TRUE(shelf.isVisible);
    EXPECT_EQ(shelf.width, -1);
    EXPECT_EQ(shelf.height, 33);
    EXPECT_EQ(shelf.created, shelf.getDrawAreas());
    EXPECT_EQ(shelf.told, shelf.getDrawAreas());
}

TEST_F(DrawAreaSectionsTest, EachPlotRetainsItsPictures) {
    for (SeriesGroupDrawArea* area : {&shelf._getSeriesGroupDrawArea(0), &shelf._getSeriesGroupDrawArea(2)})
        EXPECT_TRUE(area->getFragmensDrawArea().isRetaining);
    SeriesGroupDrawArea bare;
    EXPECT_FALSE(bare.getFragmensDrawArea().isRetaining);
}

TEST_F(DrawAreaSectionsTest, ADrawerThatComesLaterIsInTheNextPicture) {
    SeriesGroupDrawArea& area = shelf._getSeriesGroupDrawArea(0);
    FragmentsDrawArea& canvas = area.getFragmensDrawArea();
    test::allocate(canvas, 50, 30);
    area.addFragmentable(first);
    canvas.redraw();
    const auto paint = [&canvas] {
        return test::paint(
            50, 30, [&canvas](const Cairo::RefPtr<Cairo::Context>& context) { canvas.on_draw(context); });
    };
    const auto before = paint();

    class Filling : public BaseFragmentableDrawer {
        void drawFragmentable(const Cairo::RefPtr<Cairo::Context>& context,
                              const Zel::IFragmentable&) override {
            context->set_source_rgb(1, 0, 0);
            context->paint();
        }
    };

    area.addDrawer(std::make_unique<Filling>());
    EXPECT_FALSE(paint() == before);
}

TEST_F(DrawAreaSectionsTest, AskingForAPlotMakesAllBeforeIt) {
    SeriesGroupDrawArea& sixth = shelf._getSeriesGroupDrawArea(5);
    ASSERT_EQ(shelf.getDrawAreas().size(), 6u);
    EXPECT_EQ(&sixth, &area(5));
    EXPECT_EQ(shelf.told, shelf.getDrawAreas());
    EXPECT_EQ(&shelf._getSeriesGroupDrawArea(2), &area(2));
    EXPECT_EQ(shelf.getDrawAreas().size(), 6u);
}

TEST_F(DrawAreaSectionsTest, ASeriesGoesToThePlotOfItsNumberAndTheGapsStayEmpty) {
    shelf.addSeries(&far);
    ASSERT_EQ(shelf.getDrawAreas().size(), 3u);
    EXPECT_EQ(test::countSeries(area(0)), 0u);
    EXPECT_EQ(test::countSeries(area(1)), 0u);
    EXPECT_EQ(test::countSeries(area(2)), 1u);
    shelf.addSeries(&first);
    EXPECT_EQ(shelf.getDrawAreas().size(), 3u);
    EXPECT_EQ(test::countSeries(area(0)), 1u);
}

TEST_F(DrawAreaSectionsTest, ASeriesGivesItsPlotLimitsAndAFragment) {
    shelf.addSeries(&first);
    EXPECT_EQ(area(0).converterProxy.borders.size(), 1u);
    EXPECT_EQ(area(0).getFragmensDrawArea().fragments.size(), 1u);
    EXPECT_FALSE(first.rangeChanged.empty());
    EXPECT_FALSE(first.changed.empty());
    shelf.deleteSeries(&first);
    EXPECT_TRUE(area(0).converterProxy.borders.empty());
    EXPECT_TRUE(area(0).getFragmensDrawArea().fragments.empty());
    EXPECT_TRUE(first.rangeChanged.empty());
    EXPECT_TRUE(first.changed.empty());
}

TEST_F(DrawAreaSectionsTest, TheLimitsAreKnownBeforeTheFragmentIs) {
    first.points[7].y = 50; // beyond the limits of an empty plot
    shelf._createDrawArea();
    SeriesGroupDrawArea& plot = area(0);
    std::size_t fragments = 99;
    plot.converterProxy.yBordersChanged.connect(
        [&] { fragments = plot.getFragmensDrawArea().fragments.size(); });
    shelf.addSeries(&first);
    EXPECT_EQ(fragments, 0u);
    shelf.deleteSeries(&first);
    EXPECT_EQ(fragments, 1u);
    shelf.addSeries(&first);
    shelf.clearSeries();
    EXPECT_EQ(fragments, 0u);
}

TEST_F(DrawAreaSectionsTest, AForeignSeriesIsIgnored) {
    shelf.addSeries(&foreign);
    shelf.deleteSeries(&foreign);
    EXPECT_TRUE(shelf.getDrawAreas().empty());
    EXPECT_TRUE(shelf.calls.empty());
    EXPECT_TRUE(foreign.changed.empty());
}

TEST_F(DrawAreaSectionsTest, DeletingASeriesThatWasNeverAddedMakesThePlotsAndIsOutOfRange) {
    EXPECT_EQ(test::thrownBy([this] { shelf.deleteSeries(&far); }), "out of range: map::at");
    EXPECT_EQ(shelf.getDrawAreas().size(), 3u);
    shelf.addSeries(&far);
    shelf.deleteSeries(&far);
    EXPECT_EQ(test::countSeries(area(2)), 0u);
}

TEST_F(DrawAreaSectionsTest, ClearingLeavesThePlotsForLaterSeries) {
    shelf.addSeries(&first);
    shelf.addSeries(&second);
    shelf.addSeries(&far);
    const Areas before = shelf.getDrawAreas();
    shelf.clearSeries();
    EXPECT_EQ(shelf.getDrawAreas(), before);
    for (const Zel::Series* series : {&first, &second, &far}) {
        EXPECT_TRUE(series->changed.empty());
        EXPECT_TRUE(series->rangeChanged.empty());
    }
    shelf.addSeries(&far);
    EXPECT_EQ(shelf.getDrawAreas(), before);
    EXPECT_EQ(test::countSeries(*before[2]), 1u);
}

TEST_F(DrawAreaSectionsTest, RedrawingMarksAllSignalsOfAllPlots) {
    shelf.addSeries(&first);
    shelf.addSeries(&far);
    for (SeriesGroupDrawArea* plot : shelf.getDrawAreas())
        plot->getFragmensDrawArea().redrawAll = false;
    shelf.redrawSeries();
    for (SeriesGroupDrawArea* plot : shelf.getDrawAreas())
        EXPECT_TRUE(plot->getFragmensDrawArea().redrawAll);
}

TEST_F(DrawAreaSectionsTest, AToolbarGroupIsAssignedBeforeItIsTold) {
    SizeGroupAdapter outer;
    Gtk::Label own;
    shelf.getToolbarGroup().addWidget(own);
    shelf.setToolbarGroup(outer);
    EXPECT_EQ(shelf.calls, (std::vector<std::string>{"group"}));
    EXPECT_EQ(shelf.group, outer.getGroup());
    EXPECT_EQ(shelf.getToolbarGroup().getGroup(), outer.getGroup());
    EXPECT_EQ(outer.getGroup()->get_widgets(), (std::vector<Gtk::Widget*>{&own}));
}

TEST_F(DrawAreaSectionsTest, TheListOfPlotsIsACopy) {
    shelf.addSeries(&first);
    const Areas before = shelf.getDrawAreas();
    shelf.addSeries(&far);
    EXPECT_EQ(before.size(), 1u);
    EXPECT_EQ(before[0], shelf.getDrawAreas()[0]);
}

TEST_F(DrawAreaSectionsTest, SeriesMayOutliveTheSection) {
    auto shortLived = std::make_unique<Shelf>();
    shortLived->addSeries(&first);
    shortLived->addSeries(&far);
    shortLived.reset();
    EXPECT_TRUE(first.changed.empty());
    EXPECT_TRUE(far.rangeChanged.empty());
}
