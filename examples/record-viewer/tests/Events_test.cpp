// The list of events in the viewer's window, used as a person uses it.
#include "Panels.h"
#include "reader/Reader.h"
#include "support/Keyboard.h"
#include "support/TemporaryFolder.h"

#include <ZelCommonView/plot/SeriesTimeCounter.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

namespace {

using viewer::Interval;
using viewer::MainWindow;

class ViewerEvents : public testing::Test {
protected:
    ViewerEvents() {
        setRecord(record::open(DEMO_RECORD));
        window.hodograph.hodograph.getCounter().setIsPaused(true);
        test::present(window);
        test::clickTab(window, "Events");
        test::settle();
    }

    void setRecord(record::Record record) {
        viewer::Impedances impedances = viewer::computeImpedances(record);
        window.setRecord(std::move(record), std::move(impedances));
        window.hodograph.hodograph.getCounter().setIsPaused(true);
        test::settle();
    }

    Interval seen() {
        Interval range;
        window.page.oscillograph.getSeriesRange(range.from, range.to);
        return range;
    }

    double duration() const { return static_cast<double>(window.page.oscillogram.duration); }

    std::vector<std::string> textsOf(int column) {
        std::vector<std::string> texts;
        for (const Gtk::TreeModel::Row& row : window.events.list.get_model()->children())
            texts.push_back(row.get_value(window.events.list.getColumns().texts[column]));
        return texts;
    }

    double timeOf(int row) { return std::stod(textsOf(1)[row]); }

    void clickHeader(int column) {
        test::click(*window.events.list.get_column(column)->get_button());
        test::settle();
    }

    /// Brings the row into view and clicks it.
    void clickRow(int row) {
        Zel::VirtualizationListView& list = window.events.list;
        const Gtk::TreePath path(std::to_string(row));
        list.scroll_to_row(path);
        test::settle();
        Gdk::Rectangle area;
        list.get_cell_area(path, *list.get_column(1), area);
        int x = 0;
        int y = 0;
        list.convert_bin_window_to_widget_coords(area.get_x() + 5, area.get_y() + area.get_height() / 2, x,
                                                 y);
        test::click(list, x, y);
        test::settle();
    }

    void expectCentred(double time, double span) {
        const Interval range = seen();
        const Interval expected = viewer::centred({0, span}, time, duration());
        EXPECT_NEAR(range.from, expected.from, 1e-5);
        EXPECT_NEAR(range.to, expected.to, 1e-5);
    }

    MainWindow window{"test"};
};

} // namespace

TEST_F(ViewerEvents, AnOpenedRecordIsSeenAsAWholeWithNothingChosen) {
    EXPECT_GE(textsOf(0).size(), 10u);
    EXPECT_TRUE(window.events.list.getSelection().empty());
    EXPECT_NEAR(seen().from, 0, 1e-6);
    EXPECT_NEAR(seen().to, duration(), 1e-6);
}

TEST_F(ViewerEvents, AClickOnAHeaderSortsNumbersAsNumbers) {
    std::vector<std::string> numbers = textsOf(0);
    clickHeader(0);
    EXPECT_EQ(textsOf(0), numbers);
    clickHeader(0);
    std::reverse(numbers.begin(), numbers.end());
    EXPECT_EQ(textsOf(0), numbers);
    clickHeader(2);
    const std::vector<std::string> channels = textsOf(2);
    EXPECT_TRUE(std::is_sorted(channels.begin(), channels.end()));
    EXPECT_NE(channels.front(), channels.back());
    clickHeader(1);
    std::vector<double> times;
    for (const std::string& text : textsOf(1))
        times.push_back(std::stod(text));
    EXPECT_TRUE(std::is_sorted(times.begin(), times.end()));
    EXPECT_TRUE(window.events.list.getSelection().empty()) << "sorting is no choice";
}

TEST_F(ViewerEvents, AClickOnARowCentresTheOscillogramOnItsTime) {
    window.page.oscillograph.showRange(0, 0.02f);
    const int rows = static_cast<int>(textsOf(0).size());
    for (const int row : {rows / 2, 0, rows - 1, rows / 2}) {
        clickRow(row);
        expectCentred(timeOf(row), 0.02);
    }
    const Interval middle = seen();
    EXPECT_GT(middle.from, 0) << "no row of the record lies far enough from its ends";
    EXPECT_NEAR((middle.from + middle.to) / 2, timeOf(rows / 2), 1e-5);
}

TEST_F(ViewerEvents, AClickInASortedListCentresOnWhatStandsInTheRow) {
    clickHeader(1);
    clickHeader(1);
    window.page.oscillograph.showRange(0, 0.03f);
    clickRow(1);
    expectCentred(timeOf(1), 0.03);
    EXPECT_GT(timeOf(1), timeOf(2));
}

TEST_F(ViewerEvents, NearTheEndsTheOscillogramEndsWithTheRecord) {
    const auto span = static_cast<float>(0.9 * duration());
    window.page.oscillograph.showRange(0, span);
    clickRow(static_cast<int>(textsOf(0).size()) - 1);
    const double expected = duration() - static_cast<double>(span);
    EXPECT_NEAR(seen().from, std::min(expected, timeOf(static_cast<int>(textsOf(0).size()) - 1)), 1e-5);
    EXPECT_NEAR(seen().to, duration(), 1e-5);
    EXPECT_LE(seen().to, duration() + 1e-6);
    window.page.oscillograph.showRange(static_cast<float>(duration()) - span, static_cast<float>(duration()));
    clickRow(0);
    EXPECT_NEAR(seen().from, 0, 1e-5);
    EXPECT_NEAR(seen().to, static_cast<double>(span), 1e-5);
}

TEST_F(ViewerEvents, TheVisibleSpanSurvivesAWalkThroughTheRowsByKeys) {
    window.page.oscillograph.showRange(0, 0.02f);
    clickRow(0);
    for (int i = 0; i < 200; ++i)
        test::pressKey(i / 10 % 2 == 0 ? GDK_KEY_Down : GDK_KEY_Up);
    test::settle();
    EXPECT_NEAR(seen().to - seen().from, 0.02, 1e-5);
}

TEST_F(ViewerEvents, AClickOrReturnOnTheSelectedRowCentresOnItOnceMore) {
    const int row = static_cast<int>(textsOf(0).size()) / 2;
    clickRow(row);
    window.page.oscillograph.showRange(0, 0.02f);
    // Not so soon that it would be a double click.
    test::wait(600);
    clickRow(row);
    expectCentred(timeOf(row), 0.02);
    window.page.oscillograph.showRange(0, 0.02f);
    test::pressKey(GDK_KEY_Return);
    test::settle();
    expectCentred(timeOf(row), 0.02);
}

TEST_F(ViewerEvents, AnotherRecordRefillsTheListAndOneWithoutBinariesSaysSo) {
    clickRow(3);
    const test::TemporaryFolder folder;
    test::writeFile(folder.path / "small.csv", "time,A\ns,A\n0,20\n1,30\n2,40\n");
    setRecord(record::open(folder.path / "small.csv"));
    EXPECT_TRUE(textsOf(0).empty());
    EXPECT_TRUE(window.events.problem.get_mapped());
    EXPECT_EQ(window.events.problem.get_text(), "The record has no binary channels.");
    EXPECT_NEAR(seen().to, 2, 1e-6);

    record::Record other;
    record::BinaryChannel& channel = other.binaries.emplace_back();
    channel.name = "Breaker";
    for (const char state : std::string("0000100000"))
        channel.samples.append(state == '1');
    other.time = record::TimeAxis(10, {{1, 10}}, {}, 1);
    setRecord(std::move(other));
    EXPECT_FALSE(window.events.problem.get_mapped());
    EXPECT_EQ(textsOf(1), (std::vector<std::string>{"4.000000", "5.000000"}));
    window.page.oscillograph.showRange(0, 2);
    clickRow(1);
    EXPECT_NEAR(seen().from, 4, 1e-5);
    EXPECT_NEAR(seen().to, 6, 1e-5);
    setRecord(record::open(DEMO_RECORD));
    EXPECT_GE(textsOf(0).size(), 10u);
}

TEST_F(ViewerEvents, AHundredThousandEventsAreAClickAwayLikeAFew) {
    constexpr std::size_t samples = 100'001;
    record::Record busy;
    for (std::size_t channel = 0; channel < 20; ++channel) {
        busy.binaries.emplace_back().name = "Contact " + std::to_string(channel + 1);
        for (std::size_t i = 0; i < samples; ++i)
            busy.binaries.back().samples.append((i + channel) / 20 % 2 == 1);
    }
    busy.time = record::TimeAxis(samples, {{1000, samples}}, {}, 1e-6);
    const auto start = std::chrono::steady_clock::now();
    setRecord(std::move(busy));
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    RecordProperty("milliseconds", static_cast<int>(1000 * took.count()));
    EXPECT_LT(took.count(), 20 * test::patience) << "seconds, with the painting of the oscillogram";
    const int rows = static_cast<int>(window.events.rows.size());
    ASSERT_NEAR(rows, 100'000, 20);
    window.page.oscillograph.showRange(0, 1);
    clickRow(rows / 2);
    const double time = window.events.rows[static_cast<std::size_t>(rows) / 2].transition.time;
    EXPECT_NEAR(seen().from, time - 0.5, 1e-3);
    EXPECT_NEAR(seen().to, time + 0.5, 1e-3);
    clickRow(rows - 1);
    EXPECT_NEAR(seen().to, 100, 1e-3);
}
