#include "support/Pictures.h"

#include <ZelCommonView/markers/Marker.h>
#include <ZelCommonView/markers/MarkerDrawerCfg.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;

constexpr int width = 300;
constexpr int height = 200;

StretchableCoordsConverter makeConverter() {
    StretchableCoordsConverter converter;
    converter.widgetWidth = width;
    converter.widgetHeight = height;
    converter.setBorder({0, 30, 0, 20});
    converter.recalc();
    return converter;
}

const StretchableCoordsConverter converter = makeConverter();
const MarkerDrawerCfg markerCfg;

test::Picture paint(const std::function<void(const Context&)>& function) {
    return test::paint(width, height, function);
}

Context anyContext() {
    return Cairo::Context::create(test::makeSurface(width, height));
}

MarkerDrawerHelper makeHelper(Orientation orientation) {
    MarkerDrawerHelper helper(markerCfg, orientation);
    helper.setConverter(converter);
    return helper;
}

/// A finished marker with points at the pixels (60, 50) and (150, 120).
template <typename TMarker>
struct Finished : TMarker {
    explicit Finished(Orientation given) : TMarker(markerCfg, given) {
        this->setConverter(converter);
        this->fixPoint({60, 50});
        if (!this->created)
            this->fixPoint({150, 120});
    }
};

void expectPoint(Zel::PointF point, float x, float y) {
    EXPECT_FLOAT_EQ(point.x, x);
    EXPECT_FLOAT_EQ(point.y, y);
}

struct NoPoints : Marker {
    NoPoints() : Marker(markerCfg, Orientation::Vertical, 0) {}

    bool isCollide(const Context&, Zel::PointF) override { return false; }
};

} // namespace

TEST(Marker, EnumsHaveTheDescribedValues) {
    static_assert(sizeof(Orientation) == 4 && sizeof(MarkerType) == 4);
    EXPECT_EQ(static_cast<int>(Orientation::Horizontal), 0);
    EXPECT_EQ(static_cast<int>(Orientation::Vertical), 1);
    EXPECT_EQ(static_cast<int>(MarkerType::Single), 0);
    EXPECT_EQ(static_cast<int>(MarkerType::Double), 1);
}

TEST(Marker, WithoutPointsCantBeMade) {
    try {
        const NoPoints marker;
        FAIL();
    } catch (const char* text) {
        EXPECT_STREQ(text, "если будет нужна такая возможность надо усложнить код");
    }
}

TEST(Marker, StartsAtItsFirstPointWithAllPointsAtZero) {
    DoubleMarker marker(markerCfg, Orientation::Vertical);
    EXPECT_EQ(marker.getOrientation(), Orientation::Vertical);
    EXPECT_FALSE(marker.created);
    EXPECT_EQ(marker._getCurrentPointNumber(), 1u);
    EXPECT_EQ(marker._getCreatingPointNumber(), 9u);
    EXPECT_EQ(marker._getSelectedPointNumber(), 0u);
    expectPoint(marker._getPoint(1), 0, 0);
    expectPoint(marker._getPoint(2), 0, 0);
    EXPECT_EQ(marker.points.size(), 2u);
    EXPECT_EQ(SingleMarker(markerCfg, Orientation::Vertical).points.size(), 1u);
}

TEST(Marker, KeepsBothCoordinatesWhateverItsOrientation) {
    SingleMarker marker(markerCfg, Orientation::Horizontal);
    marker.setConverter(converter);
    marker.move({60, 50});
    expectPoint(marker._getPoint(1), 6, 15);
}

TEST(Marker, StopsAtTheEdgesOfTheWidget) {
    SingleMarker marker(markerCfg, Orientation::Horizontal);
    marker.setConverter(converter);
    marker.move({-50, 900});
    expectPoint(marker._getPoint(1), 0, 0);
    marker.move({900, -50});
    expectPoint(marker._getPoint(1), 30, 20);
}

TEST(Marker, ASingleMarkerIsFinishedByOnePointADoubleOneByTwo) {
    int finished = 0;
    SingleMarker single(markerCfg, Orientation::Vertical);
    single.setConverter(converter);
    single.finishCreating.connect([&] {
        ++finished;
        EXPECT_TRUE(single.created);
    });
    single.fixPoint({60, 50});
    EXPECT_EQ(finished, 1);

    DoubleMarker both(markerCfg, Orientation::Vertical);
    both.setConverter(converter);
    both.finishCreating.connect([&] { ++finished; });
    both.fixPoint({60, 50});
    EXPECT_EQ(finished, 1);
    EXPECT_EQ(both._getCurrentPointNumber(), 2u);
    EXPECT_EQ(both._getCreatingPointNumber(), 9u);
    expectPoint(both._getPoint(2), 0, 0);
    both.move({90, 90});
    expectPoint(both._getPoint(1), 6, 15);
    expectPoint(both._getPoint(2), 9, 11);
    both.fixPoint({150, 120});
    EXPECT_EQ(finished, 2);
    EXPECT_EQ(both._getCurrentPointNumber(), 0u);
    EXPECT_EQ(both._getCreatingPointNumber(), 0u);
    both.move({10, 10}); // nothing moves any more
    expectPoint(both._getPoint(2), 15, 8);
}

TEST(Marker, AFinishedMarkerRefusesAnotherPoint) {
    Finished<SingleMarker> marker(Orientation::Vertical);
    try {
        marker.fixPoint({1, 1});
        FAIL();
    } catch (const char* text) {
        EXPECT_STREQ(text, "fixPoint");
    }
    expectPoint(marker._getPoint(1), 6, 15);
}

TEST(Marker, AGrabbedLabelStaysUnderThePointer) {
    Finished<SingleMarker> marker(Orientation::Vertical);
    ASSERT_TRUE(marker.isCollide(anyContext(), {65, 52}));
    EXPECT_EQ(marker._getSelectedPointNumber(), 1u);
    marker.move({65, 52}); // no jump at the start
    expectPoint(marker._getPoint(1), 6, 15);
    marker.move({75, 62});
    expectPoint(marker._getPoint(1), 7, 14);
}

TEST(Marker, AMissLeavesTheMarkerAlone) {
    Finished<SingleMarker> single(Orientation::Vertical);
    EXPECT_FALSE(single.isCollide(anyContext(), {60, 120})); // on the line but not on the label
    EXPECT_EQ(single._getSelectedPointNumber(), 0u);
    Finished<DoubleMarker> both(Orientation::Vertical);
    EXPECT_FALSE(both.isCollide(anyContext(), {105, 85})); // the distance is no handle
    EXPECT_EQ(both._getSelectedPointNumber(), 0u);
}

TEST(SingleMarker, IsALineWithItsValueUnderTheSelectionOrNot) {
    const Finished<SingleMarker> marker(Orientation::Vertical);
    const auto helper = makeHelper(Orientation::Vertical);
    const auto expected = [&](bool selected) {
        return paint([&](const Context& context) {
            helper.drawLine(context, {6, 15}, false);
            helper.drawText(context, {6, 15}, selected);
        });
    };
    test::expectSame(paint([&](const Context& context) { marker.drawAsNormal(context); }), expected(false));
    test::expectSame(paint([&](const Context& context) { marker.drawAsSelected(context); }), expected(true));
    test::expectSame(paint([&](const Context& context) { marker.drawAsCreating(context); }), expected(true));
    test::expectSame(paint([&](const Context& context) { marker.drawAsGlobal(context); }),
                     paint([&](const Context& context) {
                         helper.drawLine(context, {6, 15}, true);
                     }));
}

TEST(DoubleMarker, MeasuresALevelDifferenceOrADuration) {
    EXPECT_FLOAT_EQ(Finished<DoubleMarker>(Orientation::Horizontal)._getValueBetweenPoints(), 7);
    EXPECT_FLOAT_EQ(Finished<DoubleMarker>(Orientation::Vertical)._getValueBetweenPoints(), 9);
    expectPoint(Finished<DoubleMarker>(Orientation::Vertical)._getMiddlePoint(), 10.5f, 11.5f);
}

TEST(DoubleMarker, PaintsLinesBandAndLabelsInThisOrder) {
    const Finished<DoubleMarker> marker(Orientation::Horizontal);
    const auto helper = makeHelper(Orientation::Horizontal);
    const auto expected = [&](bool selected) {
        return paint([&](const Context& context) {
            helper.drawLine(context, {6, 15}, false);
            helper.drawLine(context, {15, 8}, false);
            context->set_source_rgba(81 / 255.0, 1, 0, 122 / 255.0);
            context->rectangle(converter.getVisualX(6), converter.getVisualY(15),
                               converter.getVisualX(15) - converter.getVisualX(6),
                               converter.getVisualY(8) - converter.getVisualY(15));
            context->fill();
            helper.drawText(context, {6, 15}, selected);
            helper.drawText(context, {15, 8}, selected);
            helper.drawText(context, {10.5f, 11.5f}, selected,
                            std::to_string(marker._getValueBetweenPoints()));
        });
    };
    test::expectSame(paint([&](const Context& context) { marker.drawAsNormal(context); }), expected(false));
    test::expectSame(paint([&](const Context& context) { marker.drawAsSelected(context); }), expected(true));
    test::expectSame(paint([&](const Context& context) { marker.drawAsCreating(context); }), expected(true));
    EXPECT_EQ(std::to_string(7.0f), "7.000000");
}

TEST(DoubleMarker, WhileItIsBeingCreatedBothPointsAreShown) {
    DoubleMarker marker(markerCfg, Orientation::Vertical);
    marker.setConverter(converter);
    marker.fixPoint({60, 50});
    test::expectSame(paint([&](const Context& context) { marker.drawAsCreating(context); }),
                     paint([&](const Context& context) { marker._drawBothPoints(context, true); }));
    const auto helper = makeHelper(Orientation::Vertical);
    test::expectSame(paint([&](const Context& context) { marker.drawAsGlobal(context); }),
                     paint([&](const Context& context) {
                         helper.drawLine(context, {6, 15}, true);
                         helper.drawLine(context, {0, 0}, true);
                     }));
}

TEST(DoubleMarker, AfterItsFirstPointWasGrabbedOtherAreasShowThatLineAlone) {
    Finished<DoubleMarker> marker(Orientation::Vertical);
    const auto helper = makeHelper(Orientation::Vertical);
    const auto global = [&] { return paint([&](const Context& context) { marker.drawAsGlobal(context); }); };
    const auto both = paint([&](const Context& context) {
        helper.drawLine(context, {6, 15}, true);
        helper.drawLine(context, {15, 8}, true);
    });
    test::expectSame(global(), both);
    ASSERT_TRUE(marker.isCollide(anyContext(), {60, 50}));
    test::expectSame(global(), paint([&](const Context& context) {
                         helper.drawLine(context, {6, 15}, true);
                     }));
    test::expectSame(paint([&](const Context& context) { marker.drawAsCreating(context); }),
                     paint([&](const Context& context) {
                         helper.drawLine(context, {6, 15}, false);
                         helper.drawText(context, {6, 15}, true);
                     }));
    ASSERT_TRUE(marker.isCollide(anyContext(), {150, 120}));
    EXPECT_EQ(marker._getSelectedPointNumber(), 2u);
    test::expectSame(global(), both);
}

TEST(DoubleMarker, WhereBothLabelsAreHitTheFirstIsTaken) {
    DoubleMarker marker(markerCfg, Orientation::Vertical);
    marker.setConverter(converter);
    marker.fixPoint({60, 50});
    marker.fixPoint({64, 52});
    ASSERT_TRUE(marker.isCollide(anyContext(), {62, 51}));
    EXPECT_EQ(marker._getSelectedPointNumber(), 1u);
    EXPECT_NEAR(marker.grabOffset.x, -2, 1e-3);
    EXPECT_NEAR(marker.grabOffset.y, -1, 1e-3);
}

TEST(Marker, BaseDrawingsDoNothing) {
    struct Bare : Marker {
        Bare() : Marker(markerCfg, Orientation::Vertical, 1) {}

        bool isCollide(const Context&, Zel::PointF) override { return false; }
    } marker;

    const auto picture = paint([&](const Context& context) {
        marker.drawAsCreating(context);
        marker.drawAsNormal(context);
        marker.drawAsSelected(context);
        marker.drawAsGlobal(context);
    });
    EXPECT_EQ(picture.countPainted(), 0);
}
