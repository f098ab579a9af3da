#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <type_traits>

namespace {

using namespace ZelView;

template <typename TConverter>
TConverter make(float width, float height, CoordsConverter::Border border, CoordsConverter::Offset offset) {
    TConverter converter;
    converter.widgetWidth = width;
    converter.widgetHeight = height;
    converter.setBorder(border);
    converter.offset = offset;
    converter.recalc();
    return converter;
}

StretchableCoordsConverter stretchable(float width, float height, CoordsConverter::Border border,
                                       CoordsConverter::Offset offset = {}) {
    return make<StretchableCoordsConverter>(width, height, border, offset);
}

ProportionalCoordsConverter proportional(float width, float height, CoordsConverter::Border border,
                                         CoordsConverter::Offset offset = {}) {
    return make<ProportionalCoordsConverter>(width, height, border, offset);
}

} // namespace

TEST(CoordsConverter, StartsWithTheDescribedValues) {
    const StretchableCoordsConverter c;
    EXPECT_EQ(c.rowHeight, 16);
    EXPECT_EQ(c.onePulseHeight, 3);
    EXPECT_EQ(c.widgetWidth, 0);
    EXPECT_EQ(c.widgetHeight, 0);
    EXPECT_EQ(c.xMin, 0);
    EXPECT_EQ(c.xMax, 10);
    EXPECT_EQ(c.yMin, -1);
    EXPECT_EQ(c.yMax, 10);
    EXPECT_EQ(c.offset.left, 0);
    EXPECT_EQ(c.offset.right, 0);
    EXPECT_EQ(c.offset.top, 0);
    EXPECT_EQ(c.offset.bottom, 0);
}

TEST(CoordsConverter, KeepsItsDataInOrderAndPublic) {
    const StretchableCoordsConverter c;
    const float* const fields[] = {
        &c.rowHeight,   &c.onePulseHeight, &c.widgetWidth, &c.widgetHeight, &c.xMin,       &c.xMax,
        &c.yMin,        &c.yMax,           &c.offset.left, &c.offset.right, &c.offset.top, &c.offset.bottom,
        &c.visualWidth, &c.visualHeight,   &c.realWidth,   &c.realHeight,   &c.scaleX,     &c.scaleY};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_EQ(fields[i - 1] + 1, fields[i]) << i;
    static_assert(sizeof(StretchableCoordsConverter) == sizeof(CoordsConverter));
    const ProportionalCoordsConverter p;
    EXPECT_EQ(&p.scale + 1, &p.paddingX);
    EXPECT_EQ(&p.paddingX + 1, &p.paddingY);
}

TEST(CoordsConverter, BordersAndOffsetsAreFourFloatsInOrder) {
    const CoordsConverter::Border border{1, 2, 3, 4};
    EXPECT_EQ(border.xMin, 1);
    EXPECT_EQ(border.xMax, 2);
    EXPECT_EQ(border.yMin, 3);
    EXPECT_EQ(border.yMax, 4);
    const CoordsConverter::Offset offset{1, 2, 3, 4};
    EXPECT_EQ(offset.left, 1);
    EXPECT_EQ(offset.right, 2);
    EXPECT_EQ(offset.top, 3);
    EXPECT_EQ(offset.bottom, 4);
    static_assert(sizeof(CoordsConverter::Border) == 16 && sizeof(CoordsConverter::Offset) == 16);
}

TEST(CoordsConverter, ModesHaveTheDescribedValues) {
    static_assert(sizeof(BordersMode) == 4 && sizeof(CoordsConvertMode) == 4);
    EXPECT_EQ(static_cast<int>(BordersMode::Auto), 0);
    EXPECT_EQ(static_cast<int>(BordersMode::Manual), 1);
    EXPECT_EQ(static_cast<int>(CoordsConvertMode::Stretchable), 0);
    EXPECT_EQ(static_cast<int>(CoordsConvertMode::Proportional), 1);
}

TEST(CoordsConverter, RecalculatesSpansPixelsAndScales) {
    const auto c = stretchable(130, 60, {10, 20, -5, 15}, {10, 20, 5, 15});
    EXPECT_EQ(c.realWidth, 10);
    EXPECT_EQ(c.realHeight, 20);
    EXPECT_EQ(c.visualWidth, 100);
    EXPECT_EQ(c.visualHeight, 40);
    EXPECT_EQ(c.scaleX, 10);
    EXPECT_EQ(c.scaleY, 2);
}

TEST(CoordsConverter, ASpanOfExactlyZeroGivesAScaleOfZero) {
    const auto c = stretchable(100, 100, {5, 5, 7, 7});
    EXPECT_EQ(c.scaleX, 0);
    EXPECT_EQ(c.scaleY, 0);
    EXPECT_TRUE(std::isnan(c.getVisualX(5)));
    EXPECT_TRUE(std::isinf(c.getVisualX(6)));
    const float tiny = std::nextafter(5.0f, 6.0f) - 5;
    EXPECT_EQ(stretchable(100, 100, {5, 5 + tiny, 7, 7}).scaleX, 100 / tiny);
}

TEST(StretchableCoordsConverter, MapsTheCornersOfTheViewToTheCornersOfTheWidget) {
    const auto c = stretchable(100, 110, {0, 10, -1, 10}, {});
    EXPECT_EQ(c.getVisualX(0), 0);
    EXPECT_EQ(c.getVisualY(-1), 110);
    EXPECT_EQ(c.getVisualX(10), 100);
    EXPECT_EQ(c.getVisualY(10), 0);
}

TEST(StretchableCoordsConverter, ComputesInFloatInTheDescribedAssociation) {
    std::mt19937 random(1);
    std::uniform_real_distribution<float> value(-1000, 1000);
    for (int i = 0; i < 10000; ++i) {
        const float xMin = value(random), xMax = value(random), yMin = value(random), yMax = value(random);
        const auto c = stretchable(777, 555, {xMin, xMax, yMin, yMax}, {11, 7, 3, 5});
        const volatile float v = value(random); // keeps the compiler from folding what is compared
        const float a = (v - xMin) / c.realWidth;
        EXPECT_EQ(c.getVisualX(v), a * c.visualWidth + 11.0f);
        const float b = (v - yMin) / c.realHeight;
        const float d = 1 - b;
        EXPECT_EQ(c.getVisualY(v), d * c.visualHeight + 3.0f);
        const float e = (v - 11.0f) / c.visualWidth;
        EXPECT_EQ(c.getRealX(v), e * c.realWidth + xMin);
        const float f = (v - 3.0f) / c.visualHeight;
        const float g = 1 - f;
        EXPECT_EQ(c.getRealY(v), g * c.realHeight + yMin);
    }
}

TEST(StretchableCoordsConverter, DividesBeforeItMultiplies) {
    // (x - xMin) / realWidth * visualWidth is not the same float as (x - xMin) * scaleX.
    const auto c = stretchable(1000, 10, {0, 3, 0, 1});
    bool differs = false;
    for (int i = 0; i < 300; ++i) {
        const float x = static_cast<float>(i) * 0.01f;
        EXPECT_EQ(c.getVisualX(x), x / 3.0f * 1000.0f);
        differs = differs || c.getVisualX(x) != x * c.scaleX;
    }
    EXPECT_TRUE(differs);
}

TEST(StretchableCoordsConverter, FindsTheMiddle) {
    const auto c = stretchable(130, 60, {10, 20, -5, 15}, {10, 20, 5, 15});
    EXPECT_EQ(c.getCenterVisualX(), 60);
    EXPECT_EQ(c.getCenterVisualY(), 25);
    EXPECT_EQ(c.getCenterRealX(), 15);
    EXPECT_EQ(c.getCenterRealY(), 5);
}

TEST(StretchableCoordsConverter, PlacesBinaryRowsFromTheTopMargin) {
    const auto c = stretchable(100, 100, {0, 10, 0, 10}, {0, 0, 20, 0});
    EXPECT_EQ(c.getZeroVisualY(0), 20);
    EXPECT_EQ(c.getZeroVisualY(3), 68);
    EXPECT_EQ(c.getOneVisualY(3, true), 71);
    EXPECT_EQ(c.getOneVisualY(3, false), 65);
    EXPECT_EQ(c.getZeroVisualY(1ul << 40), 16.0f * static_cast<float>(1ul << 40) + 20);
}

TEST(ProportionalCoordsConverter, TakesTheSmallerScaleOfBothAxesAndCentresTheData) {
    const auto c = proportional(200, 300, {0, 100, 0, 100}, {}); // scales 2 and 3
    EXPECT_EQ(c.scale, 2);
    EXPECT_EQ(c.scaleX, 2);
    EXPECT_EQ(c.scaleY, 2);
    EXPECT_EQ(c.visualWidth, 200);
    EXPECT_EQ(c.visualHeight, 200);
    EXPECT_EQ(c.paddingX, 0);
    EXPECT_EQ(c.paddingY, 50);
    const auto wide = proportional(300, 200, {0, 100, 0, 100}, {10, 20, 5, 15});
    EXPECT_EQ(wide.scale, 1.8f);
    EXPECT_EQ(wide.paddingX, (300.0f - 10 - 20 - 100 * 1.8f) * 0.5f);
    EXPECT_EQ(wide.paddingY, (200.0f - 5 - 15 - 100 * 1.8f) * 0.5f);
}

TEST(ProportionalCoordsConverter, ComputesInFloatInTheDescribedAssociation) {
    std::mt19937 random(2);
    std::uniform_real_distribution<float> value(-1000, 1000);
    for (int i = 0; i < 10000; ++i) {
        const float xMin = value(random), xMax = value(random), yMin = value(random), yMax = value(random);
        const auto c = proportional(777, 555, {xMin, xMax, yMin, yMax}, {11, 7, 3, 5});
        const volatile float v = value(random);
        const float left = 11.0f + c.paddingX;
        const float a = (v - xMin) * c.scale;
        EXPECT_EQ(c.getVisualX(v), a + left);
        const float top = 3.0f + c.paddingY;
        const float b = c.realHeight - v;
        const float d = (yMin + b) * c.scale;
        EXPECT_EQ(c.getVisualY(v), d + top);
        const float e = v - 11.0f;
        const float f = (e - c.paddingX) / c.visualWidth;
        EXPECT_EQ(c.getRealX(v), f * c.realWidth + xMin);
        const float g = v - 3.0f;
        const float h = (g - c.paddingY) / c.visualHeight;
        const float k = 1 - h;
        EXPECT_EQ(c.getRealY(v), k * c.realHeight + yMin);
    }
}

TEST(ProportionalCoordsConverter, AddsAStrayScaleToTheMiddleOfYOnly) {
    const auto c = proportional(200, 300, {10, 110, 20, 120}, {0, 0, 0, 0});
    EXPECT_EQ(c.getCenterVisualX(), 100);
    EXPECT_EQ(c.getCenterVisualY(), 50 + 2 + 100);
    EXPECT_EQ(c.getCenterRealX(), 60);
    EXPECT_EQ(c.getCenterRealY(), 70);
}

TEST(ProportionalCoordsConverter, HasNoBinaryRows) {
    const auto c = proportional(200, 300, {0, 100, 0, 100}, {1, 2, 3, 4});
    EXPECT_EQ(c.getZeroVisualY(5), 0);
    EXPECT_EQ(c.getOneVisualY(5, true), 0);
    EXPECT_EQ(c.getOneVisualY(5, false), 0);
}

TEST(CoordsConverter, PassesOnWhatIsNotANumber) {
    const float notANumber = std::nanf("");
    EXPECT_TRUE(std::isnan(stretchable(10, 10, {0, 1, 0, 1}, {}).getVisualX(notANumber)));
    EXPECT_TRUE(std::isnan(proportional(10, 10, {0, 1, 0, 1}, {}).getVisualY(notANumber)));
    EXPECT_TRUE(std::isnan(stretchable(10, 10, {notANumber, 1, 0, 1}, {}).getVisualX(0)));
}
