#include <ZelCommonView/plot/ConverterProxy.h>

#include <ZelCommonView/plot/Series.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace {

using namespace ZelView;

struct Range : Zel::IBorderable {
    Range(float xMin, float xMax, float yMin, float yMax) : border{xMin, xMax, yMin, yMax} {}

    void getRangeX(float& min, float& max) const override {
        min = border.xMin;
        max = border.xMax;
    }

    void getRangeY(float& min, float& max) const override {
        min = border.yMin;
        max = border.yMax;
    }

    CoordsConverter::Border border;
};

void expectBorder(const ConverterProxy& proxy, float xMin, float xMax, float yMin, float yMax) {
    const CoordsConverter::Border border = proxy.getConverter()->getBorder();
    EXPECT_EQ(border.xMin, xMin);
    EXPECT_EQ(border.xMax, xMax);
    EXPECT_EQ(border.yMin, yMin);
    EXPECT_EQ(border.yMax, yMax);
}

template <typename F>
std::string thrownBy(F function) {
    try {
        function();
    } catch (const char* text) {
        return text;
    }
    return "";
}

const float notANumber = std::numeric_limits<float>::quiet_NaN();

} // namespace

TEST(ConverterProxy, StartsStretchableAndAutomaticWithTheLimitsOfAnEmptyPlot) {
    const ConverterProxy proxy;
    ASSERT_NE(dynamic_cast<StretchableCoordsConverter*>(proxy.getConverter()), nullptr);
    EXPECT_EQ(proxy.xBordersMode, BordersMode::Auto);
    EXPECT_EQ(proxy.yBordersMode, BordersMode::Auto);
    expectBorder(proxy, 0, 10, -1, 10);
    EXPECT_EQ(proxy.getConverter()->realWidth, 10); // recalculated once
    EXPECT_EQ(proxy.getConverter()->realHeight, 11);
}

TEST(ConverterProxy, MapsTheCornersOfANewPlot) {
    ConverterProxy proxy;
    proxy.setWidgetSize(100, 110);
    EXPECT_EQ(proxy.getConverter()->getVisualX(0), 0);
    EXPECT_EQ(proxy.getConverter()->getVisualY(-1), 110);
    EXPECT_EQ(proxy.getConverter()->getVisualX(10), 100);
    EXPECT_EQ(proxy.getConverter()->getVisualY(10), 0);
}

TEST(ConverterProxy, AMarginShiftsAndShrinks) {
    ConverterProxy proxy;
    proxy.setWidgetSize(100, 110);
    proxy.setOffset({10, 0, 0, 0});
    EXPECT_EQ(proxy.getConverter()->getVisualX(0), 10);
    EXPECT_EQ(proxy.getConverter()->visualWidth, 90);
}

TEST(ConverterProxy, RefusesASizeBelowZeroAndKeepsTheOldOne) {
    ConverterProxy proxy;
    proxy.setWidgetSize(100, 110);
    EXPECT_EQ(thrownBy([&] { proxy.setWidgetSize(-1, 5); }), "setWidgetSize");
    EXPECT_EQ(thrownBy([&] { proxy.setWidgetSize(5, -1); }), "setWidgetSize");
    EXPECT_EQ(proxy.getConverter()->widgetWidth, 100);
    EXPECT_EQ(proxy.getConverter()->widgetHeight, 110);
}

TEST(ConverterProxy, TakesASizeOfZeroAndOneThatIsNotANumber) {
    ConverterProxy proxy;
    proxy.setOffset({10, 5, 0, 0});
    proxy.setWidgetSize(0, 0);
    EXPECT_EQ(proxy.getConverter()->visualWidth, -15);
    EXPECT_EQ(proxy.getConverter()->visualHeight, 0);
    EXPECT_EQ(thrownBy([&] { proxy.setWidgetSize(notANumber, notANumber); }), "");
    EXPECT_TRUE(std::isnan(proxy.getConverter()->widgetWidth));
}

TEST(ConverterProxy, LimitsCanBeSetOnAManualAxisOnly) {
    ConverterProxy proxy;
    EXPECT_EQ(thrownBy([&] { proxy.setXBorders(1, 2); }), "setXBorders");
    EXPECT_EQ(thrownBy([&] { proxy.setYBorders(1, 2); }), "setYBorders");
    expectBorder(proxy, 0, 10, -1, 10);

    proxy.setXBordersMode(BordersMode::Manual);
    EXPECT_EQ(thrownBy([&] { proxy.setYBorders(1, 2); }), "setYBorders");
    proxy.setXBorders(1, 2);
    expectBorder(proxy, 1, 2, -1, 10);
    proxy.setYBordersMode(BordersMode::Manual);
    proxy.setYBorders(3, 4);
    expectBorder(proxy, 1, 2, 3, 4);
    EXPECT_EQ(proxy.getConverter()->realWidth, 1);
    EXPECT_EQ(proxy.getConverter()->realHeight, 1);
}

TEST(ConverterProxy, RefusesReversedLimitsAndTakesEqualOnes) {
    ConverterProxy proxy;
    proxy.setXBordersMode(BordersMode::Manual);
    proxy.setYBordersMode(BordersMode::Manual);
    EXPECT_EQ(thrownBy([&] { proxy.setXBorders(2, 1); }), "setXBorders");
    EXPECT_EQ(thrownBy([&] { proxy.setYBorders(2, 1); }), "setYBorders");
    expectBorder(proxy, 0, 10, -1, 10);
    proxy.setWidgetSize(100, 100);
    proxy.setXBorders(3, 3);
    EXPECT_EQ(proxy.getConverter()->scaleX, 0);
    EXPECT_TRUE(std::isnan(proxy.getConverter()->getVisualX(3)));
    EXPECT_EQ(thrownBy([&] { proxy.setYBorders(notANumber, 1); }), "");
    EXPECT_TRUE(std::isnan(proxy.getConverter()->yMin));
}

TEST(ConverterProxy, AChangeOfModeAloneRecalculatesNothing) {
    ConverterProxy proxy;
    const Range range(0, 100, 0, 100);
    proxy.addBorderable(range);
    const CoordsConverter::Border before = proxy.getConverter()->getBorder();
    proxy.setXBordersMode(BordersMode::Manual);
    proxy.setYBordersMode(BordersMode::Manual);
    expectBorder(proxy, before.xMin, before.xMax, before.yMin, before.yMax);
    proxy.setXBorders(5, 6);
    proxy.setXBordersMode(BordersMode::Auto);
    EXPECT_EQ(proxy.getConverter()->xMin, 5);
}

TEST(ConverterProxy, ANewModeKeepsSizeLimitsAndMarginsButNotTheRows) {
    ConverterProxy proxy;
    proxy.setWidgetSize(200, 300);
    proxy.setOffset({1, 2, 3, 4});
    proxy.setXBordersMode(BordersMode::Manual);
    proxy.setXBorders(10, 20);
    proxy.getConverter()->rowHeight = 99;
    proxy.getConverter()->onePulseHeight = 98;

    proxy.setCoordsConvertMode(CoordsConvertMode::Proportional);
    const auto* converter = dynamic_cast<ProportionalCoordsConverter*>(proxy.getConverter());
    ASSERT_NE(converter, nullptr);
    EXPECT_EQ(converter->widgetWidth, 200);
    EXPECT_EQ(converter->widgetHeight, 300);
    EXPECT_EQ(converter->offset.left, 1);
    EXPECT_EQ(converter->offset.bottom, 4);
    expectBorder(proxy, 10, 20, -1, 10);
    EXPECT_EQ(converter->scale, 197.0f / 10); // recalculated
    EXPECT_EQ(converter->rowHeight, 16);
    EXPECT_EQ(converter->onePulseHeight, 3);

    proxy.setCoordsConvertMode(CoordsConvertMode::Stretchable);
    EXPECT_NE(dynamic_cast<StretchableCoordsConverter*>(proxy.getConverter()), nullptr);
    expectBorder(proxy, 10, 20, -1, 10);
}

TEST(ConverterProxy, TheOldConverterLivesWhileTheChangeIsTold) {
    ConverterProxy proxy;
    proxy.setWidgetSize(50, 60);
    const CoordsConverter* const old = proxy.getConverter();
    int told = 0;
    proxy.converterChanged.connect([&] {
        ++told;
        EXPECT_NE(proxy.getConverter(), old);
        EXPECT_EQ(old->widgetWidth, 50); // an address sanitizer sees a read of a deleted one
        EXPECT_EQ(proxy.getConverter()->scaleX, 50.0f / 10); // recalculated already
    });
    proxy.setCoordsConvertMode(CoordsConvertMode::Proportional);
    EXPECT_EQ(told, 1);
}

TEST(ConverterProxy, SettingTheCurrentModeStillReplacesAndTells) {
    ConverterProxy proxy;
    CoordsConverter* seen = proxy.getConverter();
    int told = 0;
    proxy.converterChanged.connect([&] {
        ++told;
        EXPECT_NE(proxy.getConverter(), seen);
    });
    proxy.setCoordsConvertMode(CoordsConvertMode::Stretchable);
    EXPECT_EQ(told, 1);
}

TEST(ConverterProxy, AnUnknownModeThrowsAndLeavesNoConverterUntilAKnownOneIsSet) {
    ConverterProxy proxy;
    int told = 0;
    proxy.converterChanged.connect([&] { ++told; });
    EXPECT_EQ(thrownBy([&] { proxy.setCoordsConvertMode(static_cast<CoordsConvertMode>(2)); }),
              "_createConverter");
    EXPECT_EQ(proxy.getConverter(), nullptr);
    EXPECT_EQ(told, 0);

    // Without a converter nothing crashes: setters say their names, borderables are kept for later.
    EXPECT_EQ(thrownBy([&] { proxy.setWidgetSize(1, 1); }), "setWidgetSize");
    EXPECT_EQ(thrownBy([&] { proxy.setOffset({}); }), "setOffset");
    EXPECT_EQ(thrownBy([&] { proxy.setXBorders(1, 1); }), "setXBorders");
    EXPECT_EQ(thrownBy([&] { proxy.setYBorders(1, 1); }), "setYBorders");
    const Range range(0, 100, 0, 0);
    proxy.addBorderable(range);
    proxy.setCoordsConvertMode(CoordsConvertMode::Stretchable);
    EXPECT_EQ(told, 1);
    expectBorder(proxy, 0, 10, -1, 10);
    range.rangeChanged.emit();
    EXPECT_EQ(proxy.getConverter()->xMax, static_cast<float>(100 * 1.1));
}

TEST(ConverterProxy, AutomaticLimitsCoverAllBorderables) {
    ConverterProxy proxy;
    const Range a(0, 20, 0, 100);
    const Range b(-10, 5, -50, 0);
    proxy.addBorderable(a);
    expectBorder(proxy, 0, 22, static_cast<float>(static_cast<float>(100 * 1.1) * -0.1),
                 static_cast<float>(100 * 1.1));
    proxy.addBorderable(b);
    expectBorder(proxy, -11, 22, -55, static_cast<float>(100 * 1.1));
    EXPECT_EQ(proxy.getConverter()->realWidth, 33); // recalculated
    proxy.deleteBorderable(a);
    expectBorder(proxy, -11, 10, -55, 10);
    proxy.clearBorderable();
    expectBorder(proxy, 0, 10, -1, 10);
}

TEST(ConverterProxy, ARangeWithinTheLimitsChangesAndTellsNothing) {
    ConverterProxy proxy;
    const Range wide(0, 100, 0, 100);
    const Range narrow(10, 20, 10, 20);
    proxy.addBorderable(wide);
    const CoordsConverter::Border before = proxy.getConverter()->getBorder();
    int told = 0;
    proxy.xBordersChanged.connect([&] { ++told; });
    proxy.yBordersChanged.connect([&] { ++told; });
    proxy.addBorderable(narrow);
    EXPECT_EQ(told, 0);
    expectBorder(proxy, before.xMin, before.xMax, before.yMin, before.yMax);
}

TEST(ConverterProxy, ListenersReadTheOldLimitsOfTheirAxis) {
    ConverterProxy proxy;
    proxy.setWidgetSize(110, 110);
    const Range range(0, 100, 0, 100);
    std::vector<std::string> order;
    proxy.xBordersChanged.connect([&] {
        order.push_back("x");
        expectBorder(proxy, 0, 10, -1, 10);
        EXPECT_EQ(proxy.getConverter()->scaleX, 11);
    });
    proxy.yBordersChanged.connect([&] {
        order.push_back("y");
        // x is stored already, but nothing is recalculated yet.
        EXPECT_EQ(proxy.getConverter()->xMax, static_cast<float>(100 * 1.1));
        EXPECT_EQ(proxy.getConverter()->yMax, 10);
        EXPECT_EQ(proxy.getConverter()->scaleX, 11);
        EXPECT_EQ(proxy.getConverter()->scaleY, 10);
    });
    proxy.addBorderable(range);
    EXPECT_EQ(order, (std::vector<std::string>{"x", "y"}));
    EXPECT_NEAR(proxy.getConverter()->scaleX, 1, 1e-6);
}

TEST(ConverterProxy, AnAxisTellsOnlyOfItsOwnChange) {
    ConverterProxy proxy;
    int x = 0;
    int y = 0;
    proxy.xBordersChanged.connect([&] { ++x; });
    proxy.yBordersChanged.connect([&] { ++y; });
    const Range wide(0, 100, 0, 1);
    const Range high(0, 1, 0, 100);
    proxy.addBorderable(wide);
    EXPECT_EQ(x, 1);
    EXPECT_EQ(y, 0);
    proxy.addBorderable(high);
    EXPECT_EQ(x, 1);
    EXPECT_EQ(y, 1);
}

TEST(ConverterProxy, LimitsThatAreNotNumbersAlwaysCountAsAChange) {
    ConverterProxy proxy;
    proxy.setXBordersMode(BordersMode::Manual);
    proxy.setXBorders(notANumber, notANumber);
    proxy.setXBordersMode(BordersMode::Auto);
    int told = 0;
    proxy.xBordersChanged.connect([&] { ++told; });
    proxy.clearBorderable();
    EXPECT_EQ(told, 1);
    expectBorder(proxy, 0, 10, -1, 10);
}

TEST(ConverterProxy, FollowsARangeThatChanges) {
    ConverterProxy proxy;
    Range range(0, 20, 0, 20);
    proxy.addBorderable(range);
    range.border.xMax = 200;
    EXPECT_EQ(proxy.getConverter()->xMax, 22); // nothing polls
    range.rangeChanged.emit();
    EXPECT_EQ(proxy.getConverter()->xMax, static_cast<float>(200 * 1.1));
    proxy.deleteBorderable(range);
    range.border.xMax = 2000;
    range.rangeChanged.emit();
    EXPECT_EQ(proxy.getConverter()->xMax, 10);
    EXPECT_TRUE(proxy.borders.empty());
}

TEST(ConverterProxy, AfterClearingNoFormerRangeIsHeard) {
    ConverterProxy proxy;
    const Range a(0, 20, 0, 20);
    const Range b(0, 40, 0, 20);
    proxy.addBorderable(a);
    proxy.addBorderable(b);
    proxy.clearBorderable();
    a.rangeChanged.emit();
    b.rangeChanged.emit();
    expectBorder(proxy, 0, 10, -1, 10);
}

TEST(ConverterProxy, AddingTwiceListensOnce) {
    ConverterProxy proxy;
    const Range range(0, 20, 0, 20);
    proxy.addBorderable(range);
    proxy.addBorderable(range);
    EXPECT_EQ(range.rangeChanged.size(), 1u);
    proxy.deleteBorderable(range);
    EXPECT_EQ(range.rangeChanged.size(), 0u);
}

TEST(ConverterProxy, OneAutomaticAxisAsksForThatAxisWithoutAMargin) {
    ConverterProxy proxy;
    const Range range(0, 20, 0, 30);
    proxy.setYBordersMode(BordersMode::Manual);
    proxy.setYBorders(3, 4);
    proxy.addBorderable(range);
    expectBorder(proxy, 0, 20, 3, 4);

    ConverterProxy other;
    other.setXBordersMode(BordersMode::Manual);
    other.setXBorders(3, 4);
    other.addBorderable(range);
    expectBorder(other, 3, 4, -1, 30);
}

TEST(ConverterProxy, WithBothAxesManualARangeIsConnectedButNotRecorded) {
    ConverterProxy proxy;
    proxy.setXBordersMode(BordersMode::Manual);
    proxy.setYBordersMode(BordersMode::Manual);
    const Range range(0, 20, 0, 30);
    proxy.addBorderable(range);
    EXPECT_TRUE(proxy.borders.empty());
    EXPECT_EQ(range.rangeChanged.size(), 1u);
    range.rangeChanged.emit();
    EXPECT_TRUE(proxy.borders.empty());
    expectBorder(proxy, 0, 10, -1, 10);
    proxy.setXBordersMode(BordersMode::Auto);
    range.rangeChanged.emit();
    expectBorder(proxy, 0, 20, -1, 10);
}

TEST(ConverterProxy, DeletingAnUnknownRangeIsNoError) {
    ConverterProxy proxy;
    const Range range(0, 20, 0, 30);
    proxy.deleteBorderable(range);
    expectBorder(proxy, 0, 10, -1, 10);
}

TEST(ConverterProxy, AListenerMayReplaceTheConverter) {
    ConverterProxy proxy;
    proxy.xBordersChanged.connect([&] { proxy.setCoordsConvertMode(CoordsConvertMode::Proportional); });
    const Range range(0, 20, 0, 30);
    proxy.addBorderable(range);
    EXPECT_NE(dynamic_cast<ProportionalCoordsConverter*>(proxy.getConverter()), nullptr);
    EXPECT_EQ(proxy.getConverter()->xMax, 22);
}

TEST(ConverterProxy, RangesMayDieBeforeOrAfterTheProxy) {
    Range outlives(0, 20, 0, 30);
    {
        ConverterProxy proxy;
        proxy.addBorderable(outlives);
    }
    EXPECT_EQ(outlives.rangeChanged.size(), 0u);
    outlives.rangeChanged.emit();

    ConverterProxy proxy;
    {
        const Range dies(0, 20, 0, 30);
        proxy.addBorderable(dies);
        proxy.deleteBorderable(dies);
    }
    proxy.clearBorderable();
    expectBorder(proxy, 0, 10, -1, 10);
}

TEST(ConverterProxy, KeepsItsDataInOrder) {
    const ConverterProxy proxy;
    const void* const fields[] = {&proxy.converterChanged, &proxy.xBordersChanged, &proxy.yBordersChanged,
                                  &proxy.converter,        &proxy.xBordersMode,    &proxy.yBordersMode,
                                  &proxy.connections,      &proxy.borders};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
    static_assert(!std::is_polymorphic_v<ConverterProxy>);
}
