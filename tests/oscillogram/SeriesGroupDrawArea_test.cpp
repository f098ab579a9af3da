#include "support/Hands.h"
#include "support/LogWatch.h"

#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>
#include <ZelCommonView/plot/Series.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;
using Widgets = std::vector<Gtk::Widget*>;

std::string thrownBy(const std::function<void()>& action) {
    try {
        action();
    } catch (const char* text) {
        return text;
    } catch (const std::out_of_range& error) {
        return std::string("out of range: ") + error.what();
    }
    return "nothing";
}

/// What a drawer finds when it is set up.
struct Seen {
    const CoordsConverter* converter = nullptr;
    Gtk::Widget* drawArea = nullptr;
    const std::list<const Zel::IFragmentable*>* fragmentables = nullptr;
    std::size_t drawers = 0;
};

struct Layer : InfoDrawer {
    explicit Layer(std::function<void(Layer&)> action = {}) : onInit(std::move(action)) {}

    void initDrawArea() override {
        if (onInit)
            onInit(*this);
    }

    void draw(const Context&) override {}

    std::function<void(Layer&)> onInit;
};

struct Pen : BaseFragmentableDrawer {
    explicit Pen(std::function<void(Pen&)> action = {}) : onInit(std::move(action)) {}

    void initDrawArea() override {
        if (onInit)
            onInit(*this);
    }

    void drawFragmentable(const Context&, const Zel::IFragmentable& fragmentable) override {
        painted.push_back(&fragmentable);
    }

    std::function<void(Pen&)> onInit;
    std::vector<const Zel::IFragmentable*> painted;
};

struct SeriesGroupDrawAreaTest : testing::Test {
    SeriesGroupDrawAreaTest() {
        for (Zel::Series* each : {&first, &second}) {
            each->name = "name";
            each->points = {{0, 0}, {100, 50}};
        }
    }

    static const void* key(const Zel::IFragmentable& fragmentable) { return &fragmentable; }

    FragmentsDrawArea& canvas() { return plot.getFragmensDrawArea(); }

    bool isOutOfDate(const Zel::IFragmentable& fragmentable) {
        return canvas().fragments.at(key(fragmentable)).needRedraw;
    }

    void markAllAsFresh() {
        canvas().redrawAll = false;
        for (auto& [address, fragment] : canvas().fragments)
            fragment.needRedraw = false;
    }

    /// Whether the action marks all fragments as out of date.
    bool marksAll(const std::function<void()>& action) {
        markAllAsFresh();
        action();
        return canvas().redrawAll && isOutOfDate(first) && isOutOfDate(second);
    }

    Zel::Series first, second;
    SeriesGroupDrawArea plot;
};

} // namespace

TEST_F(SeriesGroupDrawAreaTest, StandsWithTheLegendLeftOfTheCanvas) {
    EXPECT_EQ(plot.get_child(), &plot.grid);
    EXPECT_EQ(plot.fragmentableCollection.get_parent(), &plot.grid);
    EXPECT_EQ(plot.fragmentsDrawArea.get_parent(), &plot.grid);
    EXPECT_EQ(plot.grid.get_child_at(0, 0), &plot.fragmentableCollection);
    EXPECT_EQ(plot.grid.get_child_at(1, 0), &plot.fragmentsDrawArea);
    EXPECT_EQ(&plot.getFragmensDrawArea(), &plot.fragmentsDrawArea);
    for (Gtk::Widget* widget :
         Widgets{&plot, &plot.grid, &plot.fragmentsDrawArea, &plot.fragmentableCollection})
        EXPECT_TRUE(widget->get_visible());
    EXPECT_TRUE(plot.getDrawers().empty());
}

TEST_F(SeriesGroupDrawAreaTest, KeepsTheOrderOfConstruction) {
    const void* const fields[] = {
        &plot.signalDrawerAdded,       &plot.grid,           &plot.fragmentsDrawArea,
        &plot.converterProxy,          &plot.drawersManager, &plot.fragmentableCollection,
        &plot.fragmentableConnections, &plot.drawAreaGroup,  &plot.fragmentableCollectionGroup};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST_F(SeriesGroupDrawAreaTest, EachHalfStartsInAHorizontalGroupOfItsOwn) {
    EXPECT_EQ(plot.drawAreaGroup.getGroup()->get_widgets(), (Widgets{&plot.fragmentsDrawArea}));
    EXPECT_EQ(plot.fragmentableCollectionGroup.getGroup()->get_widgets(),
              (Widgets{&plot.fragmentableCollection}));
    EXPECT_EQ(plot.drawAreaGroup.getGroup()->get_mode(), Gtk::SIZE_GROUP_HORIZONTAL);
    EXPECT_EQ(plot.fragmentableCollectionGroup.getGroup()->get_mode(), Gtk::SIZE_GROUP_HORIZONTAL);
}

TEST_F(SeriesGroupDrawAreaTest, AnotherGroupTakesTheHalfOver) {
    SizeGroupAdapter one, two, legends, rows;
    plot.addFragmentable(first);
    plot.setDrawAreaGroup(one);
    plot.setDrawAreaGroup(two);
    EXPECT_TRUE(one.getGroup()->get_widgets().empty());
    EXPECT_EQ(two.getGroup()->get_widgets(), (Widgets{&plot.fragmentsDrawArea}));
    plot.setFragmentableCollectionGroup(legends);
    EXPECT_EQ(legends.getGroup()->get_widgets(), (Widgets{&plot.fragmentableCollection}));
    plot.setFragmentableGroup(rows);
    EXPECT_EQ(rows.getGroup()->get_widgets(), (Widgets{&plot.fragmentableCollection.widgets.at(&first)}));
}

TEST_F(SeriesGroupDrawAreaTest, ADrawerIsSetUpBeforeItIsAdded) {
    Seen seen;
    std::vector<std::string> calls;
    plot.signalDrawerAdded.connect([&](Drawer&) { calls.push_back("added"); });
    auto layer = std::make_unique<Layer>([&](Layer& self) {
        seen = {self.converter, self.drawArea, nullptr, plot.getDrawers().size()};
        calls.push_back("init");
    });
    layer->drawerConverterChanged.connect([&, drawer = layer.get()] {
        calls.push_back(drawer->converter && !drawer->drawArea ? "converter" : "late converter");
    });
    plot.addDrawer(std::move(layer), DrawerPosition::End);
    EXPECT_EQ(calls, (std::vector<std::string>{"converter", "init", "added"}));
    EXPECT_EQ(seen.converter, plot.converterProxy.getConverter());
    EXPECT_EQ(seen.drawArea, &canvas());
    EXPECT_EQ(seen.drawers, 0u);
    EXPECT_EQ(plot.getDrawers().size(), 1u);
}

TEST_F(SeriesGroupDrawAreaTest, ADrawerOfFragmentsIsGivenTheListOfTheLegendFirst) {
    Seen seen;
    plot.addDrawer(std::make_unique<Pen>([&](Pen& self) {
        seen = {self.converter, self.drawArea, self.fragmentables, plot.getDrawers().size()};
    }));
    EXPECT_EQ(seen.converter, plot.converterProxy.getConverter());
    EXPECT_EQ(seen.drawArea, &canvas());
    EXPECT_EQ(seen.fragmentables, &plot.fragmentableCollection.getFragmentableCollection());
    EXPECT_EQ(seen.drawers, 0u);
    EXPECT_EQ(plot.getDrawers().size(), 1u);
}

TEST_F(SeriesGroupDrawAreaTest, ANewDrawerIsToldOfBeforeItIsAmongTheDrawers) {
    std::vector<Drawer*> told;
    std::vector<std::size_t> counts;
    plot.signalDrawerAdded.connect([&](Drawer& drawer) {
        told.push_back(&drawer);
        counts.push_back(plot.getDrawers().size());
    });
    auto pen = std::make_unique<Pen>();
    auto layer = std::make_unique<Layer>();
    Drawer* const penAddress = pen.get();
    Drawer* const layerAddress = layer.get();
    plot.addDrawer(std::move(pen));
    plot.addDrawer(std::move(layer), DrawerPosition::Start);
    EXPECT_EQ(told, (std::vector<Drawer*>{penAddress, layerAddress}));
    EXPECT_EQ(counts, (std::vector<std::size_t>{0, 1}));
    EXPECT_EQ(plot.getDrawers(), (std::vector<Drawer*>{layerAddress, penAddress}));
}

TEST_F(SeriesGroupDrawAreaTest, ALayerIsPaintedAtItsPosition) {
    plot.addDrawer(std::make_unique<Layer>(), DrawerPosition::AfterFragments);
    EXPECT_EQ(canvas().afterDrawers.size(), 1u);
    plot.addDrawer(std::make_unique<Layer>(), DrawerPosition::End);
    EXPECT_EQ(canvas().endDrawers.size(), 1u);
}

TEST_F(SeriesGroupDrawAreaTest, DrawersFollowTheConverter) {
    plot.setCoordsConvertMode(CoordsConvertMode::Proportional);
    plot.addDrawer(std::make_unique<Layer>(), DrawerPosition::End);
    plot.addDrawer(std::make_unique<Pen>());
    int told = 0;
    for (Drawer* drawer : plot.getDrawers()) {
        EXPECT_EQ(drawer->converter, plot.converterProxy.getConverter());
        drawer->drawerConverterChanged.connect([&told, drawer, this] {
            ++told;
            EXPECT_EQ(drawer->converter, plot.converterProxy.getConverter());
        });
    }
    plot.setCoordsConvertMode(CoordsConvertMode::Stretchable);
    EXPECT_EQ(told, 2);
    for (Drawer* drawer : plot.getDrawers()) {
        EXPECT_EQ(drawer->converter, plot.converterProxy.getConverter());
        EXPECT_TRUE(dynamic_cast<const StretchableCoordsConverter*>(drawer->converter));
    }
}

TEST_F(SeriesGroupDrawAreaTest, AnUnknownModeThrowsAndLeavesTheDrawersTheirConverter) {
    plot.addDrawer(std::make_unique<Layer>(), DrawerPosition::End);
    const CoordsConverter* const converter = plot.converterProxy.getConverter();
    EXPECT_EQ(thrownBy([this] { plot.setCoordsConvertMode(static_cast<CoordsConvertMode>(2)); }),
              "_createConverter");
    EXPECT_EQ(plot.converterProxy.getConverter(), converter);
    EXPECT_EQ(plot.getDrawers()[0]->converter, converter);
}

TEST_F(SeriesGroupDrawAreaTest, ADrawerThatFailsToSetUpIsForgotten) {
    auto failing = std::make_unique<Layer>([](Layer&) { throw "initDrawArea"; });
    EXPECT_EQ(thrownBy([&] { plot.addDrawer(std::move(failing), DrawerPosition::End); }), "initDrawArea");
    failing.reset();
    EXPECT_TRUE(plot.getDrawers().empty());
    plot.setCoordsConvertMode(CoordsConvertMode::Proportional);
}

TEST_F(SeriesGroupDrawAreaTest, AFragmentableGetsALegendRowAndAFragment) {
    plot.addFragmentable(first);
    EXPECT_EQ(plot.fragmentableCollection.getFragmentableCollection().size(), 1u);
    EXPECT_EQ(canvas().fragments.count(key(first)), 1u);
    EXPECT_TRUE(isOutOfDate(first));
}

TEST_F(SeriesGroupDrawAreaTest, AChangePaintsOnlyItsOwnFragmentAgain) {
    plot.addFragmentable(first);
    plot.addFragmentable(second);
    markAllAsFresh();
    second.changed.emit();
    EXPECT_FALSE(canvas().redrawAll);
    EXPECT_FALSE(isOutOfDate(first));
    EXPECT_TRUE(isOutOfDate(second));
}

TEST_F(SeriesGroupDrawAreaTest, AddingOneAgainThrowsAndKeepsWhatIsThere) {
    plot.addFragmentable(first);
    {
        const test::ExpectedLog already("but the widget is already inside a container");
        EXPECT_EQ(thrownBy([this] { plot.addFragmentable(first); }), "addWidget");
    }
    markAllAsFresh();
    first.changed.emit();
    EXPECT_TRUE(isOutOfDate(first));
    plot.clearFragmentable();
    EXPECT_TRUE(canvas().fragments.empty());
    EXPECT_TRUE(plot.fragmentableCollection.getFragmentableCollection().empty());
    EXPECT_TRUE(plot.fragmentableCollection.widgets.empty());
}

TEST_F(SeriesGroupDrawAreaTest, ADeletedOnePaintsNothingMore) {
    plot.addFragmentable(first);
    plot.addFragmentable(second);
    plot.deleteFragmentable(first);
    EXPECT_TRUE(first.changed.empty());
    first.changed.emit();
    EXPECT_EQ(canvas().fragments.size(), 1u);
    EXPECT_EQ(canvas().fragments.count(key(second)), 1u);
    EXPECT_EQ(plot.fragmentableCollection.getFragmentableCollection(),
              (std::list<const Zel::IFragmentable*>{&second}));
    plot.addFragmentable(first);
    EXPECT_EQ(canvas().fragments.size(), 2u);
}

TEST_F(SeriesGroupDrawAreaTest, DeletingAnUnknownOneIsOutOfRange) {
    plot.addFragmentable(first);
    EXPECT_EQ(thrownBy([this] { plot.deleteFragmentable(second); }), "out of range: map::at");
    EXPECT_EQ(canvas().fragments.size(), 1u);
}

TEST_F(SeriesGroupDrawAreaTest, ClearedOnesPaintNothingMore) {
    plot.addFragmentable(first);
    plot.addFragmentable(second);
    plot.clearFragmentable();
    first.changed.emit();
    second.changed.emit();
    EXPECT_TRUE(canvas().fragments.empty());
    EXPECT_TRUE(plot.fragmentableCollection.getFragmentableCollection().empty());
    EXPECT_TRUE(plot.fragmentableCollection.widgets.empty());
    plot.clearFragmentable();
}

TEST_F(SeriesGroupDrawAreaTest, EveryChangeOfTheScaleMarksAllFragments) {
    plot.addFragmentable(first);
    plot.addFragmentable(second);
    EXPECT_TRUE(marksAll([this] { plot.redrawFragmentable(); }));
    EXPECT_TRUE(marksAll([this] { plot.addBorderable(first); }));
    EXPECT_TRUE(marksAll([this] { plot.setOffset({1, 2, 3, 4}); }));
    EXPECT_TRUE(marksAll([this] { plot.setCoordsConvertMode(CoordsConvertMode::Proportional); }));
    plot.setXBordersMode(BordersMode::Manual);
    EXPECT_TRUE(marksAll([this] { plot.setXBorders(3, 4); }));
    plot.setYBordersMode(BordersMode::Manual);
    EXPECT_TRUE(marksAll([this] { plot.setYBorders(5, 6); }));
}

TEST_F(SeriesGroupDrawAreaTest, EachAxisOfItsOwnMarksAllFragments) {
    plot.addFragmentable(first);
    plot.addFragmentable(second);
    plot.setYBordersMode(BordersMode::Manual);
    EXPECT_TRUE(marksAll([this] { plot.addBorderable(first); }));
    plot.setXBordersMode(BordersMode::Manual);
    plot.setYBordersMode(BordersMode::Auto);
    EXPECT_TRUE(marksAll([this] { plot.addBorderable(first); }));
    EXPECT_FALSE(marksAll([this] { plot.addBorderable(second); })); // the same limits once more
}

TEST_F(SeriesGroupDrawAreaTest, LimitsThatAreRefusedMarkNothing) {
    plot.addFragmentable(first);
    plot.addFragmentable(second);
    EXPECT_FALSE(marksAll([this] {
        EXPECT_EQ(thrownBy([this] { plot.setXBorders(0, 1); }), "setXBorders");
        EXPECT_EQ(thrownBy([this] { plot.setYBorders(0, 1); }), "setYBorders");
        plot.setXBordersMode(BordersMode::Manual);
        plot.setYBordersMode(BordersMode::Manual);
        EXPECT_EQ(thrownBy([this] { plot.setXBorders(2, 1); }), "setXBorders");
        EXPECT_EQ(thrownBy([this] { plot.setYBorders(2, 1); }), "setYBorders");
    }));
}

TEST_F(SeriesGroupDrawAreaTest, LimitsModeMarginsAndDataReachTheConverter) {
    const auto& proxy = plot.converterProxy;
    plot.addBorderable(first);
    EXPECT_EQ(proxy.getConverter()->xMax, 110);
    EXPECT_EQ(proxy.getConverter()->yMax, 55);
    plot.deleteBorderable(first);
    EXPECT_EQ(proxy.getConverter()->xMax, 10);
    plot.addBorderable(second);
    plot.clearBorderable();
    EXPECT_EQ(proxy.getConverter()->xMax, 10);
    plot.setXBordersMode(BordersMode::Manual);
    plot.setYBordersMode(BordersMode::Manual);
    plot.setXBorders(3, 4);
    plot.setYBorders(5, 6);
    plot.setOffset({1, 2, 7, 8});
    plot.setCoordsConvertMode(CoordsConvertMode::Proportional);
    const CoordsConverter& converter = *proxy.getConverter();
    EXPECT_TRUE(dynamic_cast<const ProportionalCoordsConverter*>(&converter));
    EXPECT_EQ(converter.xMin, 3);
    EXPECT_EQ(converter.xMax, 4);
    EXPECT_EQ(converter.yMin, 5);
    EXPECT_EQ(converter.yMax, 6);
    EXPECT_EQ(converter.offset.left, 1);
    EXPECT_EQ(converter.offset.right, 2);
    EXPECT_EQ(converter.offset.top, 7);
    EXPECT_EQ(converter.offset.bottom, 8);
}

TEST_F(SeriesGroupDrawAreaTest, TheBackgroundColourIsTheCanvass) {
    plot.setBackgroundColor({1, 2, 3, 4});
    const Zel::Color color = canvas().helper.backgroundColor;
    EXPECT_EQ(color.r, 1);
    EXPECT_EQ(color.g, 2);
    EXPECT_EQ(color.b, 3);
    EXPECT_EQ(color.a, 4);
}

TEST_F(SeriesGroupDrawAreaTest, TheConverterHasTheSizeOfTheCanvas) {
    EXPECT_EQ(plot.converterProxy.getConverter()->widgetWidth, 0);
    test::OffscreenHost host(plot, 300, 120);
    const CoordsConverter& converter = *plot.converterProxy.getConverter();
    EXPECT_EQ(converter.widgetWidth, 300);
    EXPECT_EQ(converter.widgetHeight, 120);
    plot.addFragmentable(first);
    test::settle();
    const int legend = plot.fragmentableCollection.get_allocated_width();
    EXPECT_GT(legend, 10);
    EXPECT_EQ(converter.widgetWidth, static_cast<float>(300 - legend));
    plot.set_size_request(310, 130);
    test::settle();
    EXPECT_EQ(converter.widgetWidth, static_cast<float>(310 - legend));
    EXPECT_EQ(converter.widgetHeight, 130);
}

TEST_F(SeriesGroupDrawAreaTest, TheDefaultHandlerAndTheCanvasHearOfTheSizeToo) {
    GdkEventConfigure event{};
    event.width = 70;
    event.height = 30;
    EXPECT_FALSE(plot._onConfigure(&event));
    EXPECT_EQ(plot.converterProxy.getConverter()->widgetWidth, 70);
    EXPECT_EQ(plot.converterProxy.getConverter()->widgetHeight, 30);
}

TEST_F(SeriesGroupDrawAreaTest, AFragmentMayOutliveThePlot) {
    auto shortLived = std::make_unique<SeriesGroupDrawArea>();
    shortLived->addBorderable(first);
    shortLived->addFragmentable(first);
    shortLived.reset();
    EXPECT_TRUE(first.changed.empty());
    EXPECT_TRUE(first.rangeChanged.empty());
}

TEST_F(SeriesGroupDrawAreaTest, AThousandLivesLeaveNoWidgetBehind) {
    int finalised = 0;
    const auto count = [](gpointer counter, GObject*) { ++*static_cast<int*>(counter); };
    for (int i = 0; i < 1000; ++i) {
        SeriesGroupDrawArea shortLived;
        shortLived.addDrawer(std::make_unique<Layer>(), DrawerPosition::End);
        shortLived.addDrawer(std::make_unique<Pen>());
        shortLived.addBorderable(first);
        shortLived.addFragmentable(first);
        g_object_weak_ref(G_OBJECT(shortLived.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(shortLived.grid.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(shortLived.fragmentsDrawArea.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(shortLived.fragmentableCollection.gobj()), count, &finalised);
    }
    EXPECT_EQ(finalised, 4000);
}
