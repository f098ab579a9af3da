// What of the impedances is shown, and what is said of them.
#include "Circuit.h"
#include "reader/Reader.h"
#include "view/ImpedanceWords.h"

#include <ZelCommonView/common/Language.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using namespace impedance;
using testing::HasSubstr;
using testing::Not;
using viewer::computeImpedances;
using viewer::Impedances;
using viewer::LoopView;
using viewer::viewOf;

namespace {

constexpr Loop allLoops[] = {Loop::AE, Loop::BE, Loop::CE, Loop::AB, Loop::BC, Loop::CA};

const record::Record& demoRecord() {
    static const record::Record record = record::open(DEMO_RECORD);
    return record;
}

const Impedances& demo() {
    static const Impedances impedances = computeImpedances(demoRecord());
    return impedances;
}

/// Points a millisecond apart, the first at 100 ms.
Impedances makeImpedances(const std::vector<Complex>& values, double view) {
    Impedances impedances;
    impedances.view = view;
    for (std::size_t i = 0; i < values.size(); ++i)
        impedances.trajectories.loops[0].push_back({i, 100 + i, values[i].real(), values[i].imag()});
    return impedances;
}

record::Record healthyRecord() {
    const ThreePhasors currents{test::sine(10, 0), test::sine(10, -120), test::sine(10, 120)};
    const ThreePhasors voltages{test::sine(1000, 0), test::sine(1000, -120), test::sine(1000, 120)};
    return test::makeRecord(voltages, currents);
}

struct InRussian {
    InRussian() { lng::language = 1; }

    ~InRussian() { lng::language = 0; }
};

bool isRussian(const std::string& text) {
    return text.find("\xd0") != std::string::npos;
}

} // namespace

TEST(Impedances, TheLoopOfTheFaultComesFirst) {
    EXPECT_EQ(demo().problem, "");
    EXPECT_EQ(demo().trajectories.shown, Loop::AE);
}

TEST(Impedances, ALineThatIsNotKnownEndsAtTheFault) {
    EXPECT_TRUE(demo().isLineAssumed);
    EXPECT_NEAR(std::arg(demo().line) * 180 / test::pi, 75, 1e-9);
    // In the middle of the fault.
    const auto& points = demo().trajectories.of(Loop::AE);
    const auto found = std::find_if(points.begin(), points.end(), [](const Point& point) {
        return demoRecord().time.at(point.position) >= 0.25;
    });
    ASSERT_NE(found, points.end());
    EXPECT_NEAR(std::abs(demo().line), std::hypot(found->r, found->x), 0.05 * std::abs(demo().line));
    EXPECT_DOUBLE_EQ(demo().view, 4 * std::abs(demo().line));
}

TEST(Impedances, ALineThatIsKnownIsTakenAsItIs) {
    LineSettings line;
    line.z1 = {0.5, 2};
    line.z0 = {1.5, 6};
    const Impedances impedances = computeImpedances(demoRecord(), line);
    EXPECT_FALSE(impedances.isLineAssumed);
    EXPECT_EQ(impedances.line, line.z1);
    EXPECT_DOUBLE_EQ(impedances.view, 4 * std::abs(line.z1));
    // A fault far beyond a short line stays in view.
    line.z1 = {0.01, 0.04};
    line.z0 = {0.03, 0.12};
    const Impedances beyond = computeImpedances(demoRecord(), line);
    EXPECT_GT(beyond.view, 1);
    EXPECT_FALSE(viewOf(beyond, Loop::AE).points.empty());
}

TEST(Impedances, WithoutAFaultAllIsInViewAndThereAreNoZones) {
    const Impedances impedances = computeImpedances(healthyRecord());
    EXPECT_EQ(impedances.problem, "");
    EXPECT_EQ(impedances.line, Complex());
    EXPECT_FALSE(impedances.isLineAssumed);
    const LoopView view = viewOf(impedances, Loop::AE);
    EXPECT_EQ(view.leftOut, 0u);
    EXPECT_EQ(view.points.size(), impedances.trajectories.of(Loop::AE).size());
    EXPECT_THAT(viewer::words::zonesOf(impedances), HasSubstr("no zones"));
}

TEST(Impedances, ARecordWithoutTheSixSignalsSaysSo) {
    record::Record record = healthyRecord();
    record.analogs.resize(3);
    const Impedances impedances = computeImpedances(record);
    EXPECT_EQ(viewer::words::problemOf(impedances),
              "The record has no currents of the three phases, so there is no impedance to compute.");
    const InRussian russian;
    EXPECT_EQ(viewer::words::problemOf(impedances),
              "В записи нет токов трёх фаз, поэтому сопротивление вычислить нельзя.");
}

TEST(Impedances, ChannelsThatAreNotCompleteAreNotRead) {
    record::Record record = healthyRecord();
    record.analogs[4].samples.resize(7);
    EXPECT_EQ(computeImpedances(record).problem,
              "The record has no currents of the three phases, so there is no impedance to compute.");
}

TEST(Impedances, WithoutAnyPointTheReasonIsGiven) {
    record::Record record = healthyRecord();
    record.lineFrequency = 0;
    const Impedances impedances = computeImpedances(record);
    EXPECT_EQ(viewer::words::problemOf(impedances),
              "The record has no impedance to show. The record does not tell the frequency of the network.");
    const InRussian russian;
    EXPECT_THAT(viewer::words::problemOf(impedances), HasSubstr("не указана частота сети"));
    EXPECT_THAT(viewer::words::problemOf(impedances), Not(HasSubstr("The")));
}

TEST(Impedances, PointsFarOutsideAreLeftOutAndCounted) {
    const LoopView view = viewOf(makeImpedances({{50, 0}, {3, 0}, {0, 4}, {0, 11}, {1, 1}}, 10), Loop::AE);
    EXPECT_EQ(view.farthest, 10);
    EXPECT_EQ(view.leftOut, 2u);
    EXPECT_EQ(view.points.size(), 3u);
    EXPECT_EQ(view.start, 100u); // counts from a point that is left out
    const std::vector<std::pair<std::size_t, std::size_t>> runs{{0, 2}, {2, 3}};
    EXPECT_EQ(view.runs, runs);
}

TEST(Impedances, ALoopThatStaysOutsideShowsItsNearestPart) {
    const LoopView view = viewOf(makeImpedances({{100, 0}, {0, 60}, {0, 130}}, 10), Loop::AE);
    EXPECT_EQ(view.farthest, 120);
    EXPECT_EQ(view.points.size(), 2u);
    EXPECT_EQ(view.leftOut, 1u);
    for (const Loop loop : allLoops)
        EXPECT_FALSE(viewOf(demo(), loop).points.empty()) << name(loop);
}

TEST(Impedances, ALoopWithoutPointsHasAnEmptyView) {
    const LoopView view = viewOf(makeImpedances({{1, 0}}, 10), Loop::BE);
    EXPECT_TRUE(view.points.empty());
    EXPECT_TRUE(view.runs.empty());
    EXPECT_EQ(view.leftOut, 0u);
    EXPECT_EQ(view.at(1000), nullptr);
}

TEST(Impedances, ThePointOfATimeIsTheLastThatWasReached) {
    const LoopView view = viewOf(makeImpedances({{50, 0}, {3, 0}, {50, 0}, {1, 1}}, 10), Loop::AE);
    EXPECT_EQ(view.at(0), nullptr); // the first one is outside
    EXPECT_EQ(view.at(1), &view.points[0]);
    EXPECT_EQ(view.at(2), &view.points[0]);
    EXPECT_EQ(view.at(3), &view.points[1]);
    EXPECT_EQ(view.at(1'000'000), &view.points[1]);
}

TEST(Impedances, LimitsHoldThePointsAndTheOriginWithAMargin) {
    viewer::Bounds bounds = viewOf(makeImpedances({{3, 4}, {1, -2}}, 10), Loop::AE).bounds();
    EXPECT_EQ(bounds.xMin, 0);
    EXPECT_EQ(bounds.xMax, 3);
    EXPECT_EQ(bounds.yMin, -2);
    EXPECT_EQ(bounds.yMax, 4);
    bounds.addMargin();
    EXPECT_DOUBLE_EQ(bounds.xMin, -0.36);
    EXPECT_DOUBLE_EQ(bounds.yMax, 4.36);
    viewer::Bounds empty;
    empty.addMargin();
    EXPECT_LT(empty.xMin, empty.xMax);
    EXPECT_LT(empty.yMin, empty.yMax);
}

TEST(Impedances, TheStatusTellsSideLimitsAndRemarks) {
    const LoopView view = viewOf(demo(), Loop::AE);
    ASSERT_GT(view.leftOut, 0u);
    const std::string text = viewer::words::statusOf(demo(), Loop::AE, view);
    EXPECT_THAT(text,
                HasSubstr("Loop AE: " + std::to_string(view.points.size()) + " points, secondary ohms."));
    EXPECT_THAT(text, HasSubstr(std::to_string(view.leftOut) + " points beyond 9"));
    EXPECT_THAT(text, HasSubstr("k0 = 0"));
    EXPECT_THAT(text, HasSubstr("No points where the loop's current is below"));
    EXPECT_THAT(viewer::words::zonesOf(demo()), HasSubstr("no settings of a relay"));

    const InRussian russian;
    const std::string inRussian = viewer::words::statusOf(demo(), Loop::AE, view);
    EXPECT_THAT(inRussian,
                HasSubstr("Контур AE: точек: " + std::to_string(view.points.size()) + ", вторичные омы."));
    EXPECT_THAT(inRussian, HasSubstr("не показано точек: " + std::to_string(view.leftOut) + "."));
    EXPECT_THAT(inRussian, HasSubstr("Сопротивления линии неизвестны"));
    EXPECT_THAT(inRussian, Not(HasSubstr("The")));
    EXPECT_THAT(viewer::words::zonesOf(demo()), HasSubstr("Линия неизвестна"));
}

TEST(Impedances, NothingIsSaidOfPointsThatAreNotLeftOut) {
    const Impedances impedances = makeImpedances({{1, 0}}, 10);
    const std::string text = viewer::words::statusOf(impedances, Loop::AE, viewOf(impedances, Loop::AE));
    EXPECT_THAT(text, HasSubstr("Loop AE: 1 point."));
    EXPECT_THAT(text, Not(HasSubstr("left out")));
}

TEST(Impedances, AKnownLineIsNamedWithItsZones) {
    Impedances impedances;
    impedances.line = fromAngle(10, 75);
    EXPECT_EQ(viewer::words::zonesOf(impedances), "The zones are those of a line of 10 ohm at 75°.");
    EXPECT_EQ(viewer::words::zoneName("Zone 2"), "Zone 2");
    const InRussian russian;
    EXPECT_EQ(viewer::words::zonesOf(impedances), "Зоны для линии 10 Ом под углом 75°.");
    EXPECT_EQ(viewer::words::zoneName("Zone 2"), "Зона 2");
}

TEST(Impedances, EveryRemarkOfTheComputationHasARussianText) {
    // The sentences come from the computation itself, so that a change there is seen here.
    std::vector<std::string> sentences;
    const auto take = [&](const record::Record& record, const LineSettings& line = {}) {
        const auto all = trajectories(record, test::inputs, line);
        sentences.insert(sentences.end(), all.remarks.begin(), all.remarks.end());
    };
    record::Record record = healthyRecord();
    take(record);
    LineSettings line;
    line.recordedSide = Side::Primary;
    take(record, line);
    line.recordedSide = Side::Secondary;
    line.side = Side::Primary;
    take(record, line);
    line.z1 = {1, 3};
    take(record, line);
    record.lineFrequency = 0;
    take(record);
    record.lineFrequency = 400; // two and a half samples in a cycle
    take(record);
    record.lineFrequency = 0.1; // a cycle longer than the record
    take(record);
    record.time = record::TimeAxis(record.size(), {}, {}, 1e-6);
    take(record);
    for (const bool hasVoltages : {false, true}) {
        record::Record some = healthyRecord();
        some.analogs.erase(some.analogs.begin(), some.analogs.begin() + 3);
        if (hasVoltages)
            some = healthyRecord(), some.analogs.resize(3);
        sentences.push_back(chooseInputs(some).problem);
    }
    sentences.push_back(chooseInputs(record::Record()).problem);
    sentences.push_back("The time stamps leap 5 times; impedances end at the leap number 3.");

    std::sort(sentences.begin(), sentences.end());
    sentences.erase(std::unique(sentences.begin(), sentences.end()), sentences.end());
    EXPECT_GE(sentences.size(), 12u);
    for (const std::string& sentence : sentences) {
        EXPECT_EQ(viewer::words::translated(sentence), sentence);
        const InRussian russian;
        EXPECT_TRUE(isRussian(viewer::words::translated(sentence))) << sentence;
    }
    const InRussian russian;
    EXPECT_EQ(viewer::words::translated("The time stamps leap 5 times; impedances end at the leap number 3."),
              "Число скачков меток времени: 5; сопротивления вычислены до скачка номер 3.");
    EXPECT_EQ(viewer::words::translated("Something new."), "Something new.");
}
