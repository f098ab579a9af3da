// The choices of the planes of impedances, locked while the hodograph is replayed.
#include "Panels.h"
#include "reader/Reader.h"
#include "support/TemporaryFolder.h"

#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/plot/CounterControls.h>
#include <ZelCommonView/plot/SeriesTimeCounter.h>

#include <gtest/gtest.h>

namespace {

class ViewerLock : public testing::Test {
protected:
    ViewerLock() {
        setRecord(record::open(DEMO_RECORD));
        counter().setIsPaused(true);
        test::present(window);
    }

    ~ViewerLock() override { lng::language = 0; }

    void setRecord(record::Record record) {
        viewer::Impedances impedances = viewer::computeImpedances(record);
        window.setRecord(std::move(record), std::move(impedances));
        test::settle();
    }

    ZelView::SeriesTimeCounter& counter() { return window.hodograph.hodograph.getCounter(); }

    void pressRun() { test::click(window.hodograph.hodograph.counterControls->getRunButton()); }

    void pressLock() { test::click(window.hodograph.lockButton); }

    /// Whether a person can choose, in the order of loop, loop of the Z plane, zones.
    std::string choosable() {
        test::settle();
        std::string all;
        for (const Gtk::Widget* const choice : std::initializer_list<const Gtk::Widget*>{
                 &window.hodograph.loops, &window.plane.loops, &window.plane.shapes})
            all += choice->is_sensitive() ? "y" : "n";
        return all;
    }

    viewer::MainWindow window{"test"};
};

} // namespace

TEST_F(ViewerLock, IsOffAtFirstAndTheReplayLeavesTheChoices) {
    EXPECT_FALSE(window.hodograph.lockButton.get_active());
    EXPECT_EQ(choosable(), "yyy");
    pressRun();
    EXPECT_FALSE(counter().getIsPaused());
    EXPECT_EQ(choosable(), "yyy");
    pressRun();
}

TEST_F(ViewerLock, LastsAsLongAsTheReplayRuns) {
    pressLock();
    EXPECT_TRUE(window.hodograph.lockButton.get_active());
    EXPECT_EQ(choosable(), "yyy");
    pressRun();
    EXPECT_EQ(choosable(), "nnn");
    EXPECT_TRUE(window.hodograph.lockButton.is_sensitive());
    EXPECT_TRUE(window.hodograph.loopLabel.is_sensitive());
    const impedance::Loop loop = window.hodograph.getLoop();
    test::click(window.hodograph.loops);
    test::wait(200);
    EXPECT_FALSE(window.hodograph.loops.property_popup_shown().get_value());
    EXPECT_EQ(window.hodograph.getLoop(), loop);
    pressRun();
    EXPECT_TRUE(counter().getIsPaused());
    EXPECT_EQ(choosable(), "yyy");
}

TEST_F(ViewerLock, CanBeLeftWhileTheReplayRuns) {
    pressRun();
    pressLock();
    EXPECT_EQ(choosable(), "nnn");
    pressLock();
    EXPECT_EQ(choosable(), "yyy");
    EXPECT_FALSE(counter().getIsPaused());
    pressRun();
    EXPECT_EQ(choosable(), "yyy");
}

TEST_F(ViewerLock, AMoveOfTheTimeSliderStopsTheReplayAndUnlocks) {
    pressLock();
    pressRun();
    EXPECT_EQ(choosable(), "nnn");
    test::click(window.hodograph.hodograph.counterControls->getTimeSlider());
    EXPECT_TRUE(counter().getIsPaused());
    EXPECT_EQ(choosable(), "yyy");
}

TEST_F(ViewerLock, IsTakenOverByTheNextRecordUnlessThereIsNothingToReplay) {
    pressLock();
    pressRun();
    EXPECT_EQ(choosable(), "nnn");
    const test::TemporaryFolder folder;
    test::writeFile(folder.path / "small.csv", "time,A\ns,A\n0,20\n1,30\n2,40\n");
    setRecord(record::open(folder.path / "small.csv"));
    // Without impedances there is no loop to choose, locked or not.
    EXPECT_EQ(choosable(), "nny");
    setRecord(record::open(DEMO_RECORD));
    EXPECT_EQ(choosable(), "nnn");
    pressLock();
    EXPECT_EQ(choosable(), "yyy");
}

TEST_F(ViewerLock, LiftedLeavesTheLoopsOfARecordWithoutImpedancesShut) {
    setRecord({});
    EXPECT_EQ(choosable(), "nny");
    window.hodograph.setIsLocked(true);
    window.plane.setIsLocked(true);
    EXPECT_EQ(choosable(), "nnn");
    window.hodograph.setIsLocked(false);
    window.plane.setIsLocked(false);
    EXPECT_EQ(choosable(), "nny");
}

TEST(ViewerLockWords, SpeakTheLanguage) {
    EXPECT_EQ(viewer::HodographPage().lockButton.get_label(), "Lock while replaying");
    lng::language = 1;
    EXPECT_EQ(viewer::HodographPage().lockButton.get_label(), "Запереть при показе");
    lng::language = 0;
}
