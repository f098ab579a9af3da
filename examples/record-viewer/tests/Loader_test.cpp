// A large record behind a waiting dialog, and the window that shows it.
#include "support/Answer.h"
#include "support/Hands.h"
#include "support/Keyboard.h"
#include "support/TemporaryFolder.h"
#include "view/Loader.h"
#include "view/MainWindow.h"

#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/presentation/ApplicationDispatcher.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <string>
#include <thread>

namespace {

class LoaderTest : public testing::Test {
protected:
    LoaderTest() {
        Zel::ApplicationDispatcherPresenter::getInstance().registerDispatcher();
        std::string text = "time,A\ns,A\n";
        for (int i = 0; i < 400'000; ++i)
            text += std::to_string(i * 0.001) + "," + std::to_string(i % 100) + "\n";
        test::writeFile(large, text);
        test::writeFile(folder.path / "small.csv", "time,A\ns,A\n0,20\n1,30\n2,40\n");
        test::present(window);
    }

    test::TemporaryFolder folder;
    std::string large = (folder.path / "large.csv").string();
    viewer::MainWindow window{"test"};
};

} // namespace

TEST_F(LoaderTest, TellsLargeRecordsFromSmallOnes) {
    EXPECT_TRUE(viewer::isLarge(large));
    EXPECT_FALSE(viewer::isLarge((folder.path / "small.csv").string()));
    EXPECT_FALSE(viewer::isLarge("/nowhere/at/all.cfg"));
}

TEST_F(LoaderTest, ReadsOnAnotherThreadAndShowsTheRecord) {
    record::Record record = viewer::loadBehindDialog(window, large, {});
    EXPECT_EQ(record.size(), 400'000u);
    EXPECT_TRUE(test::findDialogs().empty());
    window.page.setRecord(std::move(record));
    test::settle();
    EXPECT_THAT(window.page.status.get_text().raw(), testing::HasSubstr("400000 samples"));
    EXPECT_THAT(window.page.status.get_text().raw(), testing::HasSubstr("shown 0.0000"));
    float from = -1;
    float to = -1;
    window.page.oscillograph.getSeriesRange(from, to);
    EXPECT_EQ(from, 0);
    EXPECT_FLOAT_EQ(to, 399.999f);
}

TEST_F(LoaderTest, WhatTheReaderComplainsOfReachesTheCaller) {
    try {
        viewer::loadBehindDialog(window, (folder.path / "none.csv").string(), {});
        FAIL() << "there is no such record";
    } catch (const record::Error& error) {
        EXPECT_NE(std::string(error.what()).find("none.csv"), std::string::npos);
    }
    EXPECT_TRUE(test::findDialogs().empty());
}

TEST_F(LoaderTest, AnotherRecordReplacesTheFirst) {
    window.page.setRecord(record::open(folder.path / "small.csv"));
    test::settle();
    EXPECT_EQ(window.page.oscillogram.series.size(), 1u);
    window.page.setRecord(record::open(folder.path / "small.csv"));
    test::settle();
    EXPECT_EQ(window.page.oscillogram.series.size(), 1u);
    EXPECT_THAT(window.page.status.get_text().raw(), testing::HasSubstr("3 samples"));
}

TEST_F(LoaderTest, ARecordOfExactlyOneSecondIsShownWhole) {
    test::writeFile(folder.path / "second.csv", "time,A\ns,A\n0,20\n0.5,30\n1,40\n");
    window.page.setRecord(record::open(folder.path / "second.csv"));
    float from = -1;
    float to = -1;
    window.page.oscillograph.getSeriesRange(from, to);
    EXPECT_EQ(from, 0);
    EXPECT_FLOAT_EQ(to, 1);
}

TEST_F(LoaderTest, ItsWordsAreThoseOfTheLanguage) {
    lng::language = 1;
    window.page.setRecord(record::open(folder.path / "small.csv"));
    lng::language = 0;
    EXPECT_THAT(window.page.status.get_text().raw(), testing::HasSubstr("отсчётов"));
}

TEST_F(LoaderTest, CancellingStopsTheReading) {
    record::Options options;
    std::atomic<int> steps{0};
    options.progress = [&](double) {
        ++steps;
        std::this_thread::sleep_for(
            std::chrono::milliseconds(100)); // long enough for a hand to reach the button
        return true;
    };
    test::Answer person([](Gtk::Dialog& dialog) { test::clickButton(dialog, "Cancel"); });
    EXPECT_THROW(viewer::loadBehindDialog(window, large, options), record::Cancelled);
    EXPECT_TRUE(person.hasActed());
    EXPECT_GT(steps, 0);
    EXPECT_TRUE(test::findDialogs().empty());
}

TEST_F(LoaderTest, EscapeStopsTheReadingToo) {
    record::Options options;
    options.progress = [](double) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        return true;
    };
    test::Answer person([](Gtk::Dialog&) { test::pressKey(GDK_KEY_Escape); });
    EXPECT_THROW(viewer::loadBehindDialog(window, large, options), record::Cancelled);
}
