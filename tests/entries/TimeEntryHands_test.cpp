// What a person does to an entry for times.
#include "entries/TimeTexts.h"

namespace {

using namespace test;

struct TimeEntryOnScreen : test::EntryOnScreen<TimeEntry> {
    TimeEntryOnScreen() {
        entry.signalDataChanged().connect(
            [this](bool isValid, const std::string& text) { told.emplace_back(isValid, text); });
    }

    /// The entry has the focus, the text and the selection, and nothing has been told.
    void start(const std::string& text, int from, int to) {
        if (!entry.has_focus())
            focus();
        entry.setData(text);
        ASSERT_EQ(entry.getData(), text);
        entry.select_region(from, to);
        told.clear();
    }

    void start(const std::string& text, int pos) { start(text, pos, pos); }

    AllTold told;
};

} // namespace

TEST_F(TimeEntryOnScreen, EachDigitAtEachPlaceOfTheCursorIsTypedOrUndone) {
    for (const std::string text : {"1:2:3", "12:34:5", "2:0:10"})
        for (int pos = 0; pos <= static_cast<int>(text.size()); ++pos)
            for (const char digit : {'0', '1', '3', '6', '9'}) {
                start(text, pos);
                typeText(std::string(1, digit));
                std::string candidate = text;
                candidate.insert(static_cast<std::size_t>(pos), 1, digit);
                const std::string result = isTime(candidate) ? candidate : text;
                EXPECT_EQ(entry.getData(), result) << text << pos << digit;
                EXPECT_EQ(told, toldOf(candidate, text)) << text << pos << digit;
                // The second digit of a part goes on to the next one, even where it was undone; otherwise the
                // cursor goes on by a character.
                const Place part = partsOf(candidate)[partAt(candidate, pos)];
                const std::size_t next = partAt(result, pos) + 1;
                const int behind1 = std::min(pos + 1, static_cast<int>(result.size()));
                const bool jumps = part.second - part.first == 2 && pos == part.first + 1 && next < 3;
                EXPECT_EQ(selection(), jumps ? partsOf(result)[next] : Place(behind1, behind1))
                    << text << pos << digit;
            }
}

TEST_F(TimeEntryOnScreen, BackSpaceAndDeleteAtEachPlaceOfTheCursor) {
    for (const std::string text : {"1:2:3", "12:34:50", "10:20:30"})
        for (int pos = 0; pos <= static_cast<int>(text.size()); ++pos)
            for (const unsigned int value : {GDK_KEY_BackSpace, GDK_KEY_Delete}) {
                start(text, pos);
                key(value);
                const int erased = value == GDK_KEY_BackSpace ? pos - 1 : pos;
                if (erased < 0 || erased == static_cast<int>(text.size())) {
                    EXPECT_EQ(entry.getData(), text);
                    EXPECT_EQ(told, AllTold{});
                    continue;
                }
                std::string candidate = text;
                candidate.erase(static_cast<std::size_t>(erased), 1);
                EXPECT_EQ(entry.getData(), mayStand(candidate) ? candidate : text) << text << pos;
                EXPECT_EQ(told, toldOf(candidate, text)) << text << pos;
                // Where it was undone the cursor is at the start.
                const int place = mayStand(candidate) ? erased : 0;
                EXPECT_EQ(selection(), Place(place, place)) << text << pos << ' ' << value;
            }
}

TEST_F(TimeEntryOnScreen, TypingFillsPartAfterPart) {
    start("0:0:0", 0, 1);
    typeText("1");
    EXPECT_EQ(entry.getData(), "1:0:0");
    EXPECT_EQ(selection(), Place(1, 1));
    typeText("2");
    EXPECT_EQ(entry.getData(), "12:0:0");
    EXPECT_EQ(selection(), Place(3, 4));
    typeText("34");
    EXPECT_EQ(entry.getData(), "12:34:0");
    EXPECT_EQ(selection(), Place(6, 7));
    typeText("56");
    EXPECT_EQ(entry.getData(), "12:34:56");
    EXPECT_EQ(selection(), Place(8, 8));
    EXPECT_EQ(told, (AllTold{{true, "1:0:0"},
                             {true, "12:0:0"},
                             {true, "12:3:0"},
                             {true, "12:34:0"},
                             {true, "12:34:5"},
                             {true, "12:34:56"}}));
}

TEST_F(TimeEntryOnScreen, AColonGoesOnToTheNextPart) {
    start("0:0:0", 0, 1);
    typeText("7:8:9:");
    EXPECT_EQ(entry.getData(), "7:8:9");
    EXPECT_EQ(selection(), Place(5, 5));
    EXPECT_EQ(told.back(), Told(true, "7:8:9"));
}

TEST_F(TimeEntryOnScreen, ASecondDigitThatIsUndoneStillGoesOn) {
    start("0:0:0", 0, 1);
    typeText("2");
    told.clear();
    typeText("9");
    EXPECT_EQ(entry.getData(), "2:0:0");
    EXPECT_EQ(told, (AllTold{{true, "2:0:0"}}));
    EXPECT_EQ(selection(), Place(2, 3));
}

TEST_F(TimeEntryOnScreen, LettersAndSignsAreUndone) {
    for (const char c : std::string("aZ;.,- +/")) {
        start("12:34:5", 7);
        typeText(std::string(1, c));
        EXPECT_EQ(entry.getData(), "12:34:5") << c;
        EXPECT_EQ(told, (AllTold{{true, "12:34:5"}})) << c;
    }
}

TEST_F(TimeEntryOnScreen, ATimeOfFullLengthTakesNothingMore) {
    for (int pos = 0; pos <= 8; ++pos) {
        start("12:34:56", pos);
        typeText("1");
        EXPECT_EQ(entry.getData(), "12:34:56");
        EXPECT_EQ(told, AllTold{});
    }
}

TEST_F(TimeEntryOnScreen, TheSelectedPartIsTypedOver) {
    start("12:34:56", 3, 5);
    typeText("7");
    EXPECT_EQ(entry.getData(), "12:7:56");
    EXPECT_EQ(told, (AllTold{{true, "12:7:56"}}));
    EXPECT_EQ(selection(), Place(4, 4));
}

TEST_F(TimeEntryOnScreen, TypingOverTheWholeTextTypesInFrontOfTheLastTime) {
    // The whole text can't be gone: it is restored before the digit comes.
    start("0:0:0", 0, 5);
    typeText("1");
    EXPECT_EQ(entry.getData(), "10:0:0");
    start("12:34:56", 0, 8);
    typeText("1");
    EXPECT_EQ(entry.getData(), "12:34:56");
    key(GDK_KEY_a);
    start("1:2:3", 0, 5);
    key(GDK_KEY_Delete);
    EXPECT_EQ(entry.getData(), "1:2:3");
    EXPECT_EQ(told, AllTold{});
}

TEST_F(TimeEntryOnScreen, ColonTabAndRightSelectTheNextPart) {
    const struct {
        const char* text;
        Place from;
        Place selected;
    } cases[] = {
        {"12:34:56", {0, 0}, {3, 5}},
        {"12:34:56", {2, 2}, {3, 5}},
        {"12:34:56", {0, 2}, {3, 5}},
        {"12:34:56", {3, 3}, {6, 8}},
        {"12:34:56", {4, 4}, {6, 8}},
        {"12:34:56", {3, 5}, {6, 8}},
        // The seconds are the last.
        {"12:34:56", {6, 8}, {6, 8}},
        {"12:34:56", {7, 7}, {7, 7}},
        {"12:34:56", {0, 8}, {0, 8}},
        {"1:2:3", {1, 1}, {2, 3}},
        {"::", {0, 0}, {1, 1}},
        {"::", {1, 1}, {2, 2}},
    };

    for (const auto& each : cases)
        for (const unsigned int value : {GDK_KEY_colon, GDK_KEY_Tab, GDK_KEY_Right}) {
            start(each.text, each.from.first, each.from.second);
            key(value);
            EXPECT_EQ(selection(), each.selected) << each.text << each.from.first << ' ' << value;
            EXPECT_EQ(entry.getData(), each.text);
            EXPECT_TRUE(entry.has_focus());
            EXPECT_EQ(told, AllTold{});
        }
}

TEST_F(TimeEntryOnScreen, LeftSelectsThePartBefore) {
    const struct {
        const char* text;
        Place from;
        Place selected;
    } cases[] = {
        {"12:34:56", {8, 8}, {3, 5}},
        {"12:34:56", {6, 8}, {3, 5}},
        {"12:34:56", {6, 6}, {3, 5}},
        {"12:34:56", {5, 5}, {0, 2}},
        {"12:34:56", {3, 5}, {0, 2}},
        {"12:34:56", {3, 3}, {0, 2}},
        // The hours are the first.
        {"12:34:56", {0, 2}, {0, 2}},
        {"12:34:56", {2, 2}, {2, 2}},
        {"12:34:56", {0, 0}, {0, 0}},
        {"1:2:3", {2, 2}, {0, 1}},
        {"::", {2, 2}, {1, 1}},
        {":2:3", {1, 1}, {0, 0}},
        {":2:3", {0, 0}, {0, 0}},
    };

    for (const auto& each : cases) {
        start(each.text, each.from.first, each.from.second);
        key(GDK_KEY_Left);
        EXPECT_EQ(selection(), each.selected) << each.text << each.from.first;
        EXPECT_EQ(entry.getData(), each.text);
        EXPECT_TRUE(entry.has_focus());
        EXPECT_EQ(told, AllTold{});
    }
}

TEST_F(TimeEntryOnScreen, ShiftAndTabLeaveAndTabStays) {
    start("1:2:3", 4, 5);
    key(GDK_KEY_Tab);
    EXPECT_TRUE(entry.has_focus());
    EXPECT_EQ(selection(), Place(4, 5));
    keyWith(GDK_KEY_Shift_L, GDK_KEY_Tab);
    EXPECT_TRUE(before.has_focus());
}

TEST_F(TimeEntryOnScreen, TabReturnAndTheKeypadsEnterReportTheEdit) {
    std::vector<std::string> values;
    entry.signalValueChanged().connect([&](const std::string& text) { values.push_back(text); });
    focus();
    std::vector<std::string> expected;
    for (const unsigned int value : {GDK_KEY_Tab, GDK_KEY_Return, GDK_KEY_KP_Enter}) {
        entry.select_region(0, entry.get_text().find(':'));
        typeText(std::to_string(expected.size() + 3));
        expected.push_back(entry.getData());
        key(value);
        EXPECT_EQ(values, expected);
        EXPECT_TRUE(entry.has_focus());
    }
    EXPECT_EQ(expected, (std::vector<std::string>{"3:0:0", "4:0:0", "5:0:0"}));
}

TEST_F(TimeEntryOnScreen, BackSpaceAndDeleteClearTheSelection) {
    const struct {
        const char* text;
        Place from;
        const char* result;
        Place selected;
        bool isTold;
    } cases[] = {
        {"12:34:56", {0, 2}, "0:34:56", {0, 1}, true},
        {"12:34:56", {3, 5}, "12:0:56", {3, 4}, true},
        {"12:34:56", {6, 8}, "12:34:0", {6, 7}, true},
        {"1:2:3", {2, 3}, "1:0:3", {2, 3}, true},
        // A digit of two: "04" is none, "10" is.
        {"12:34:56", {3, 4}, "12:34:56", {3, 5}, true},
        {"12:34:56", {4, 5}, "12:30:56", {3, 5}, true},
        // A colon goes with it: undone, and the part there is selected.
        {"12:34:56", {2, 3}, "12:34:56", {0, 2}, false},
        {"1:2:3", {0, 2}, "1:2:3", {0, 1}, false},
        {"1:2:3", {3, 5}, "1:2:3", {2, 3}, false},
        // A part that is zero already.
        {"0:2:3", {0, 1}, "0:2:3", {0, 1}, false},
    };

    for (const auto& each : cases)
        for (const unsigned int value : {GDK_KEY_BackSpace, GDK_KEY_Delete}) {
            start(each.text, each.from.first, each.from.second);
            key(value);
            EXPECT_EQ(entry.getData(), each.result) << each.text << each.from.first;
            EXPECT_EQ(selection(), each.selected) << each.text << each.from.first;
            EXPECT_EQ(told, each.isTold ? (AllTold{{true, each.result}}) : AllTold{})
                << each.text << each.from.first;
        }
}

TEST_F(TimeEntryOnScreen, AClearedPartIsReadyToBeTypedOver) {
    start("12:34:56", 3, 5);
    key(GDK_KEY_Delete);
    typeText("59");
    EXPECT_EQ(entry.getData(), "12:59:56");
    EXPECT_EQ(selection(), Place(6, 8));
}

TEST_F(TimeEntryOnScreen, MoreThanTwoSelectedCharactersAreLeftToGtk) {
    start("12:34:56", 0, 3);
    key(GDK_KEY_Delete);
    EXPECT_EQ(entry.getData(), "12:34:56");
    EXPECT_EQ(told, AllTold{});
    EXPECT_EQ(selection(), Place(0, 0));
    start("12:34:56", 3, 8);
    key(GDK_KEY_BackSpace);
    EXPECT_EQ(entry.getData(), "12:34:56");
    EXPECT_EQ(told, AllTold{});
}

TEST_F(TimeEntryOnScreen, AMissingPartWaitsForADigit) {
    start("1:2:3", 3);
    key(GDK_KEY_BackSpace);
    EXPECT_EQ(entry.getData(), "1::3");
    EXPECT_EQ(selection(), Place(2, 2));
    EXPECT_EQ(entry.lastValidTime, "1:2:3");
    key(GDK_KEY_Return);
    before.grab_focus();
    test::settle();
    // Leaving doesn't repair it.
    EXPECT_EQ(entry.getData(), "1::3");
    EXPECT_EQ(told, AllTold{});
    focus();
    entry.set_position(2);
    typeText("5");
    EXPECT_EQ(entry.getData(), "1:5:3");
    EXPECT_EQ(told, (AllTold{{true, "1:5:3"}}));
    EXPECT_EQ(selection(), Place(3, 3));
}

TEST_F(TimeEntryOnScreen, ABadDigitWhileAPartIsMissingBringsTheLastTimeBack) {
    start("1:2:3", 3);
    key(GDK_KEY_BackSpace);
    entry.set_position(1);
    typeText("x");
    EXPECT_EQ(entry.getData(), "1:2:3");
    EXPECT_EQ(told, (AllTold{{true, "1:2:3"}}));
}

TEST_F(TimeEntryOnScreen, CutByControlXLeavesAMissingPart) {
    start("12:34:56", 3, 5);
    keyWith(GDK_KEY_Control_L, GDK_KEY_x);
    EXPECT_EQ(entry.getData(), "12::56");
    EXPECT_EQ(Gtk::Clipboard::get()->wait_for_text(), "34");
    EXPECT_EQ(told, AllTold{});
}

TEST_F(TimeEntryOnScreen, APasteIsJudgedAsAWhole) {
    const struct {
        const char* text;
        Place from;
        const char* pasted;
        const char* result;
        AllTold told;
    } cases[] = {
        {"1:2:3", {0, 5}, "12:34:56", "12:34:56", {{true, "12:34:56"}}},
        {"12:34:56", {3, 5}, "7", "12:7:56", {{true, "12:7:56"}}},
        {"1:2:3", {0, 5}, "12:99:56", "1:2:3", {{true, "1:2:3"}}},
        {"1:2:3", {0, 5}, "text", "1:2:3", {}},
        {"1:2:3", {1, 1}, "text", "1:2:3", {{true, "1:2:3"}}},
        {"1:2:3", {1, 1}, "0", "10:2:3", {{true, "10:2:3"}}},
        {"1:2:3", {5, 5}, ":4", "1:2:3", {}},
        // Cut off at eight characters.
        {"1:2:3", {0, 5}, "12:34:5678", "12:34:56", {{true, "12:34:56"}}},
        {"1:2:3", {0, 5}, "::", "::", {}},
    };

    for (const auto& each : cases) {
        start(each.text, each.from.first, each.from.second);
        pasteByKeys(each.pasted);
        EXPECT_EQ(entry.getData(), each.result) << each.pasted;
        EXPECT_EQ(told, each.told) << each.pasted;
    }
}

TEST_F(TimeEntryOnScreen, APasteByThePointerIsJudgedToo) {
    start("1:2:3", 0);
    test::wait(500);
    pasteByPointer("4", xOf(5) + 1);
    EXPECT_EQ(entry.getData(), "1:2:34");
    EXPECT_EQ(told, (AllTold{{true, "1:2:34"}}));
    told.clear();
    test::wait(500);
    pasteByPointer("text", xOf(0));
    EXPECT_EQ(entry.getData(), "1:2:34");
    EXPECT_EQ(told, (AllTold{{true, "1:2:34"}}));
}

TEST_F(TimeEntryOnScreen, ADragAcrossPartsShrinksToTheOneWhereItBegan) {
    start("12:34:56", 0);
    const int y = entry.get_allocated_height() / 2;
    const auto drag = [&](int from, int to) {
        test::wait(500);
        test::drag(entry, xOf(from), y, xOf(to), y);
    };
    drag(1, 5);
    EXPECT_EQ(selection(), Place(0, 2));
    // The pointer has let go: what it does now selects nothing.
    test::movePointer(entry, xOf(7), y);
    test::settle();
    test::movePointer(entry, xOf(8), y);
    test::settle();
    EXPECT_EQ(selection(), Place(0, 2));
    drag(4, 7);
    EXPECT_EQ(selection(), Place(3, 5));
    // From right to left it begins, as a selection, at its left end.
    drag(7, 4);
    EXPECT_EQ(selection(), Place(3, 5));
    // Within a part and over the whole text it stays.
    drag(6, 7);
    EXPECT_EQ(selection(), Place(6, 7));
    drag(0, 8);
    EXPECT_EQ(selection(), Place(0, 8));
    EXPECT_EQ(told, AllTold{});
    EXPECT_EQ(entry.getData(), "12:34:56");
}

TEST_F(TimeEntryOnScreen, AClickBehindADragPlacesTheCursor) {
    start("12:34:56", 0);
    const int y = entry.get_allocated_height() / 2;
    test::wait(500);
    test::drag(entry, xOf(1), y, xOf(5), y);
    EXPECT_EQ(selection(), Place(0, 2));
    test::wait(500);
    test::click(entry, xOf(7), y);
    EXPECT_EQ(selection(), Place(7, 7));
}

TEST_F(TimeEntryOnScreen, ThreeClicksSelectTheWholeText) {
    start("12:34:56", 0);
    test::movePointer(entry, xOf(1), entry.get_allocated_height() / 2);
    // On a busy machine three clicks may take too long to be one.
    for (int attempt = 0; attempt < 5 && selection() != Place(0, 8); ++attempt) {
        test::wait(500);
        for (int i = 0; i < 3; ++i) {
            test::pressButton();
            test::releaseButton();
        }
        test::settle();
    }
    EXPECT_EQ(selection(), Place(0, 8));
}

TEST_F(TimeEntryOnScreen, TheWholeTextIsSelectedWhenTheFocusComes) {
    start("12:34:56", 0);
    test::click(before);
    test::click(entry, xOf(4), entry.get_allocated_height() / 2);
    EXPECT_EQ(selection(), Place(0, 8));
}

TEST_F(TimeEntryOnScreen, TheRightButtonShowsTheContextMenu) {
    MenuView menu;
    entry.setContextMenu(&menu);
    test::click(entry, 3);
    EXPECT_TRUE(test::waitFor([&] { return menu.get_mapped(); }));
    key(GDK_KEY_Escape);
    EXPECT_TRUE(test::waitFor([&] { return !menu.get_mapped(); }));
}

TEST_F(TimeEntryOnScreen, AListenerMayAnswerWithAnotherTime) {
    entry.signalDataChanged().connect([this](bool, const std::string& text) {
        if (text == "5:0:0")
            entry.setData("6:7:8");
    });
    start("0:0:0", 0, 1);
    typeText("5");
    EXPECT_EQ(entry.getData(), "6:7:8");
    EXPECT_EQ(entry.lastValidTime, "6:7:8");
    EXPECT_EQ(told, (AllTold{{true, "5:0:0"}, {true, "6:7:8"}}));
}

TEST_F(TimeEntryOnScreen, AListenerMayDeleteItWhileItIsTyped) {
    for (const bool isBad : {false, true}) {
        owned = std::make_unique<TimeEntry>();
        box.pack_start(*owned, Gtk::PACK_SHRINK);
        owned->signalDataChanged().connect([this](bool, const std::string&) { owned.reset(); });
        owned->signalDataChanged().connect(
            [this](bool isValid, const std::string& text) { told.emplace_back(isValid, text); });
        owned->grab_focus();
        test::settle();
        owned->select_region(1, 1);
        told.clear();
        typeText(isBad ? "5" : "x");
        EXPECT_EQ(owned, nullptr);
        EXPECT_EQ(told, (AllTold{{true, "0:0:0"}}));
    }
    owned = std::make_unique<TimeEntry>();
}
