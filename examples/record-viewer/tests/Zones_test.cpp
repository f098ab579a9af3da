#include "impedance/Line.h"
#include "impedance/Zones.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace impedance;

namespace {

const Complex reach = fromAngle(8, 75);
const Complex along = fromAngle(1, 75);
const Complex across = fromAngle(1, -15);

Polygon forwardQuadrilateral() {
    Quadrilateral settings;
    settings.reach = reach;
    settings.tilt = -5;
    settings.right = 6;
    settings.left = 2;
    return quadrilateral(settings);
}

double angleOf(Complex z) {
    return std::arg(z) * 180 / 3.14159265358979323846;
}

} // namespace

TEST(Zones, AMhoPassesThroughTheOriginAndItsReach) {
    const Disc disc = mho(reach);
    EXPECT_EQ(disc.centre, reach / 2.0);
    EXPECT_DOUBLE_EQ(disc.radius, 4);
    const Area area = disc;
    for (const double part : {0.0, 1e-6, 0.5, 0.999999, 1.0})
        EXPECT_TRUE(contains(area, part * reach)) << part;
    for (const double part : {-1e-6, 1.000001, 2.0})
        EXPECT_FALSE(contains(area, part * reach)) << part;
    EXPECT_TRUE(contains(area, reach / 2.0 + 3.99999 * across));
    EXPECT_FALSE(contains(area, reach / 2.0 + 4.00001 * across));
}

TEST(Zones, AMhoIsAlsoTheSetOfRightAngles) {
    const Area area = mho(reach);
    std::mt19937 random(3);
    std::uniform_real_distribution<double> coordinate(-10, 10);
    int inside = 0;
    for (int i = 0; i < 10000; ++i) {
        const Complex z(coordinate(random), coordinate(random));
        const bool isInside = std::real((reach - z) * std::conj(z)) >= 0;
        EXPECT_EQ(contains(area, z), isInside) << z;
        inside += isInside;
    }
    EXPECT_GT(inside, 1000);
}

TEST(Zones, AnOffsetMhoReachesBackward) {
    const Area area = offsetMho(reach, -0.25 * reach);
    EXPECT_TRUE(contains(area, reach));
    EXPECT_TRUE(contains(area, -0.25 * reach));
    EXPECT_FALSE(contains(area, -0.250001 * reach));
    EXPECT_FALSE(contains(area, 1.000001 * reach));
    EXPECT_DOUBLE_EQ(std::get<Disc>(area).radius, 5);
}

TEST(Zones, APlainCircleHasNoDirection) {
    const Area area = plainCircle(5);
    for (int degrees = 0; degrees < 360; degrees += 15) {
        EXPECT_TRUE(contains(area, fromAngle(5, degrees))) << degrees;
        EXPECT_FALSE(contains(area, fromAngle(5.00001, degrees))) << degrees;
    }
    EXPECT_FALSE(contains(plainCircle(-5), Complex(0.1, 0)));
    EXPECT_TRUE(contains(plainCircle(-5), 0));
}

TEST(Zones, AQuadrilateralEndsAtItsLines) {
    const Area area = forwardQuadrilateral();
    const auto expectEdge = [&](Complex at, Complex outward) {
        EXPECT_TRUE(contains(area, at)) << at;
        EXPECT_TRUE(contains(area, at - 1e-4 * outward)) << at;
        EXPECT_FALSE(contains(area, at + 1e-4 * outward)) << at;
    };
    expectEdge(reach, {0, 1});
    expectEdge(reach + fromAngle(3, -5), {0, 1});
    expectEdge(6.0 + 3.0 * along, across);
    expectEdge(6, across);
    expectEdge(fromAngle(3, -15), {0, -1});
    expectEdge(fromAngle(1, 115), fromAngle(1, 205));
    expectEdge(-2.0 + 7.0 * along, -across);
    EXPECT_TRUE(contains(area, 0));
    EXPECT_FALSE(contains(area, -0.1 * reach));
    EXPECT_FALSE(contains(area, Complex(NAN, 1)));
}

TEST(Zones, AQuadrilateralHasItsCornersCounterclockwise) {
    const Polygon polygon = forwardQuadrilateral();
    ASSERT_EQ(polygon.corners.size(), 5u);
    double area = 0;
    for (std::size_t i = 0; i < polygon.corners.size(); ++i)
        area +=
            std::imag(std::conj(polygon.corners[i]) * polygon.corners[(i + 1) % polygon.corners.size()]) / 2;
    EXPECT_GT(area, 20);
    for (const Complex& corner : polygon.corners)
        EXPECT_TRUE(contains(polygon, corner)) << corner;
}

TEST(Zones, AQuadrilateralIsTheSetOfItsHalfPlanes) {
    const Area area = forwardQuadrilateral();
    std::mt19937 random(5);
    std::uniform_real_distribution<double> coordinate(-12, 12);
    int inside = 0;
    for (int i = 0; i < 10000; ++i) {
        const Complex z(coordinate(random), coordinate(random));
        const bool isInside =
            std::imag((z - reach) * fromAngle(1, 5)) <= 0 && std::imag((z - 6.0) * fromAngle(1, -75)) >= 0 &&
            std::imag((z + 2.0) * fromAngle(1, -75)) <= 0 && angleOf(z) >= -15 && angleOf(z) <= 115;
        EXPECT_EQ(contains(area, z), isInside) << z;
        inside += isInside;
    }
    EXPECT_GT(inside, 500);
}

TEST(Zones, AQuadrilateralWithoutDirectionReachesBackward) {
    Quadrilateral settings;
    settings.reach = reach;
    settings.right = 6;
    settings.left = 2;
    settings.isDirectional = false;
    settings.backward = 1.5;
    const Area area = quadrilateral(settings);
    ASSERT_EQ(std::get<Polygon>(area).corners.size(), 4u);
    EXPECT_TRUE(contains(area, Complex(0, -1.5)));
    EXPECT_FALSE(contains(area, Complex(0, -1.5001)));
    EXPECT_TRUE(contains(area, Complex(1, reach.imag())));
    EXPECT_FALSE(contains(area, Complex(1, reach.imag() + 1e-4)));
}

TEST(Zones, LinesThatEncloseNothingMakeAnEmptyQuadrilateral) {
    EXPECT_TRUE(quadrilateral({}).corners.empty());
    EXPECT_FALSE(contains(quadrilateral({}), 0));
    Quadrilateral settings;
    settings.reach = reach;
    settings.right = -3;
    settings.left = 2;
    EXPECT_FALSE(contains(quadrilateral(settings), Complex(-1, 1)));
}

TEST(Zones, AReversedZoneLooksTheOppositeWay) {
    for (const Area& area : {Area(mho(reach)), Area(forwardQuadrilateral())}) {
        const Area back = reversed(area);
        EXPECT_TRUE(contains(back, -0.9 * reach));
        EXPECT_FALSE(contains(back, 0.9 * reach));
        EXPECT_FALSE(contains(back, -1.1 * reach));
    }
    EXPECT_EQ(std::get<Disc>(reversed(mho(reach))).centre, mho(-reach).centre);
}

TEST(Zones, TheDefaultsGrowWithTheLine) {
    for (const Characteristic characteristic : {Characteristic::Mho, Characteristic::Quadrilateral}) {
        const auto zones = zonesOf(reach, characteristic);
        ASSERT_EQ(zones.size(), 3u);
        EXPECT_EQ(zones[0].name, "Zone 1");
        EXPECT_EQ(zones[2].name, "Zone 3");
        const double reaches[] = {0.8, 1.2, 2.0};
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_TRUE(contains(zones[i].area, reaches[i] * reach)) << i;
            EXPECT_FALSE(contains(zones[i].area, (reaches[i] + 1e-4) * reach)) << i;
            EXPECT_EQ(contains(zones[i].area, -0.2499 * reach), i == 2) << i;
            EXPECT_FALSE(contains(zones[i].area, -0.2501 * reach)) << i;
        }
    }
    const Area first = zonesOf(reach, Characteristic::Quadrilateral)[0].area;
    EXPECT_TRUE(contains(first, 0.4 * reach + 0.75 * 0.8 * 8 - 0.001));
    EXPECT_FALSE(contains(first, 0.4 * reach + 0.75 * 0.8 * 8 + 0.001));
    EXPECT_TRUE(contains(first, 0.7 * reach - 0.25 * 0.8 * 8 + 0.001));
    EXPECT_FALSE(contains(first, 0.7 * reach - 0.25 * 0.8 * 8 - 0.001));
    EXPECT_TRUE(zonesOf(0).empty());
}

TEST(Zones, ReachAsFarAsIsSet) {
    const Complex reach(3, 4);
    const Reaches reaches{0.5, 0.9, 1.5, 0};
    const auto circles = zonesOf(reach, Characteristic::Mho, reaches);
    ASSERT_EQ(circles.size(), 3u);
    const double ends[] = {0.5, 0.9, 1.5};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_TRUE(contains(circles[i].area, 0.999 * ends[i] * reach));
        EXPECT_FALSE(contains(circles[i].area, 1.001 * ends[i] * reach));
        EXPECT_FALSE(contains(circles[i].area, -0.001 * reach));
    }
    const Area back = zonesOf(reach, Characteristic::Mho, {0.5, 0.9, 1.5, 0.4})[2].area;
    EXPECT_TRUE(contains(back, -0.399 * reach));
    EXPECT_FALSE(contains(back, -0.401 * reach));
    const Area below = zonesOf(reach, Characteristic::Quadrilateral, {0.5, 0.9, 1.5, 0.4})[2].area;
    EXPECT_TRUE(contains(below, {0, -1.599}));
    EXPECT_FALSE(contains(below, {0, -1.601}));
}

TEST(Compensation, ThatIsGivenByItselfGoesBeforeThatOfTheImpedances) {
    LineSettings line;
    line.k0 = Complex(0.5, 0.1);
    EXPECT_EQ(*compensation(line), Complex(0.5, 0.1));
    line.z1 = 1;
    line.z0 = 4;
    EXPECT_EQ(*compensation(line), Complex(0.5, 0.1));
    line.k0.reset();
    EXPECT_EQ(*compensation(line), Complex(1, 0));
}
