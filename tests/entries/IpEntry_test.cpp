#include <ZelCommonView/entries/IpEntry.h>

#include "entries/EntryHands.h"
#include "support/Finalised.h"

#include <glibmm/quark.h>

namespace {

using Zel::IpEntry;
using Told = std::pair<bool, std::string>;
using AllTold = std::vector<Told>;

/// What the address entry keeps from being typed, of what a plain keyboard has.
const std::string refusedCharacters =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ!@#$%^&*()-_=+[]{};:'\""
    "\\|,<>/?";
const std::string acceptedCharacters = "0123456789. ~`";

struct IpEntryOnScreen : test::EntryOnScreen<IpEntry> {
    IpEntryOnScreen() {
        entry.signalIpChanged().connect(
            [this](bool isValid, const std::string& text) { told.emplace_back(isValid, text); });
    }

    AllTold told;
};

/// Without a place on the screen.
struct IpEntryTest : testing::Test {
    IpEntryTest() {
        entry.signalIpChanged().connect(
            [this](bool isValid, const std::string& text) { told.emplace_back(isValid, text); });
        entry.grab_focus();
        test::sendFocus(entry, true);
        test::settle();
    }

    IpEntry entry;
    AllTold told;
    test::OffscreenHost host{entry, 200, 40};
};

} // namespace

TEST(IpEntry, IsATextEntryWithItsFieldsInOrder) {
    IpEntry entry;
    static_assert(std::is_base_of_v<Zel::StringEntry, IpEntry>);
    const void* const fields[] = {&entry.customMenu, &entry.ipChanged, &entry.lastText, &entry.keyAccepted};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
    EXPECT_EQ(&entry.signalIpChanged(), &entry.ipChanged);
    EXPECT_TRUE(entry.signalIpChanged().empty());
    EXPECT_EQ(entry.lastText, "");
    EXPECT_FALSE(entry.keyAccepted);
    EXPECT_EQ(entry.get_text(), "");
}

TEST(IpEntry, AThousandLivesLeaveNothingBehind) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        IpEntry entry;
        finalised.watch(entry);
    }
    EXPECT_TRUE(finalised.all());
}

TEST_F(IpEntryTest, JudgesTheWholeText) {
    const std::pair<const char*, bool> cases[] = {
        {"192.168.1.1", true},     {"0.0.0.0", true},        {"255.255.255.255", true},
        {"001.002.003.004", true}, {"00.00.00.00", true},    {"000.000.000.000", true},
        {"249.199.99.9", true},    {"250.200.100.10", true}, {"256.1.1.1", false},
        {"1.256.1.1", false},      {"1.1.256.1", false},     {"1.1.1.256", false},
        {"260.1.1.1", false},      {"300.1.1.1", false},     {"999.1.1.1", false},
        {"1.2.3", false},          {"1.2.3.", false},        {".1.2.3", false},
        {"1..2.3", false},         {"01.2.3.4.5", false},    {"1.2.3.4.", false},
        {"0001.2.3.4", false},     {"1.2.3.0004", false},    {"", false},
        {" 1.2.3.4", false},       {"1.2.3.4 ", false},      {"1,2,3,4", false},
        {"a.b.c.d", false},        {"1.2.3.4a", false},      {"-1.2.3.4", false},
        {"1 .2.3.4", false},       {"1.2.3.4/8", false},     {"1.2.3.4\n", true},
        {"1.2.3.4\n\n", false},    {"٠.٠.٠.٠", false},       {"1.2.3.٤", false},
        {"１.２.３.４", false},    {"....", false},
    };
    for (const auto& [text, isValid] : cases) {
        told.clear();
        entry.set_text(text);
        EXPECT_EQ(told, AllTold{}) << text;
        // A key that is accepted and changes nothing.
        test::sendKey(entry, GDK_KEY_Return);
        EXPECT_EQ(told, (AllTold{{isValid, text}})) << text;
        EXPECT_EQ(entry.lastText, text);
        EXPECT_EQ(entry.get_text(), text);
    }
}

TEST_F(IpEntryTest, EachNumberGoesFrom0To255InEachPlace) {
    for (int place = 0; place < 4; ++place)
        for (int number = 0; number <= 1000; ++number) {
            std::string text;
            for (int i = 0; i < 4; ++i)
                text += (i > 0 ? "." : "") + std::to_string(i == place ? number : 7);
            told.clear();
            entry.set_text(text);
            test::sendKey(entry, GDK_KEY_Return);
            ASSERT_EQ(told, (AllTold{{number <= 255, text}}));
        }
}

TEST_F(IpEntryTest, TakesOneCharacterThatIsNoLetterAndNotListed) {
    const std::pair<const char*, bool> cases[] = {
        {"0", true},    {"9", true},   {".", true},   {" ", true},        {"~", true},      {"`", true},
        {"\b", true},   {"\r", true},  {"\n", true},  {"\t", true},       {"\033", true},   {"\177", true},
        {"\x16", true}, {"ё", true},   {"Ё", true},   {"é", true},        {"λ", true},      {"中", true},
        {"٣", true},    {"€", true},   {"§", true},   {"«", true},        {"\u00a0", true}, {"😀", true},
        {"а", false},   {"я", false},  {"А", false},  {"Я", false},       {"ж", false},     {"№", false},
        {"", false},    {"12", false}, {"1.", false}, {"e\u0301", false}, {"aa", false},
    };
    for (const auto& [string, isAccepted] : cases) {
        told.clear();
        entry.keyAccepted = !isAccepted;
        test::sendKeyEvent(entry, true, GDK_KEY_VoidSymbol, 0, string);
        EXPECT_EQ(entry.keyAccepted, isAccepted) << '"' << string << '"';
        test::sendKeyEvent(entry, false, GDK_KEY_VoidSymbol, 0, string);
        EXPECT_EQ(told.size(), isAccepted ? 1u : 0u) << '"' << string << '"';
    }
    for (const char c : refusedCharacters) {
        test::sendKeyEvent(entry, true, GDK_KEY_VoidSymbol, 0, std::string(1, c).c_str());
        EXPECT_FALSE(entry.keyAccepted) << c;
    }
    for (const char c : acceptedCharacters) {
        test::sendKeyEvent(entry, true, GDK_KEY_VoidSymbol, 0, std::string(1, c).c_str());
        EXPECT_TRUE(entry.keyAccepted) << c;
    }
    EXPECT_EQ(refusedCharacters.size() + acceptedCharacters.size(), 95u);
}

TEST_F(IpEntryTest, AKeyWithoutAStringOrWithABrokenOneIsRefused) {
    for (const char* const string : {static_cast<const char*>(nullptr), "\xff", "\xd0"}) {
        entry.keyAccepted = true;
        EXPECT_FALSE(test::sendKeyEvent(entry, true, GDK_KEY_1, 0, string));
        EXPECT_FALSE(entry.keyAccepted);
        EXPECT_EQ(entry.get_text(), "");
    }
}

TEST_F(IpEntryTest, ARefusedKeyIsLeftToTheWindow) {
    entry.set_text("1.2");
    for (const unsigned int key :
         {GDK_KEY_a, GDK_KEY_comma, GDK_KEY_Left, GDK_KEY_Right, GDK_KEY_Home, GDK_KEY_End})
        EXPECT_FALSE(test::sendKey(entry, key)) << key;
    EXPECT_TRUE(test::sendKey(entry, GDK_KEY_3));
}

TEST_F(IpEntryTest, DataKeptUnderTheNameOfARefusedKeyGoesWithIt) {
    int value = 0;
    for (const char* const name : {"a", "1", "ж"})
        entry.set_data(Glib::Quark(name), &value);
    test::sendKey(entry, GDK_KEY_1);
    test::sendKey(entry, GDK_KEY_Left);
    for (const char* const name : {"a", "1", "ж"})
        EXPECT_EQ(entry.get_data(Glib::QueryQuark(name)), &value) << name;
    test::sendKey(entry, GDK_KEY_a);
    EXPECT_EQ(entry.get_data(Glib::QueryQuark("a")), nullptr);
    test::sendKey(entry, GDK_KEY_Cyrillic_zhe);
    EXPECT_EQ(entry.get_data(Glib::QueryQuark("ж")), nullptr);
    EXPECT_EQ(entry.get_data(Glib::QueryQuark("1")), &value);
}

TEST_F(IpEntryTest, EachReleaseCountsWhileTheLastPressWasAccepted) {
    // Two keys are held at once: what is judged is decided by the later press.
    test::sendKeyEvent(entry, true, GDK_KEY_1, 0, "1");
    test::sendKeyEvent(entry, true, GDK_KEY_a, 0, "a");
    test::sendKeyEvent(entry, false, GDK_KEY_1, 0, "1");
    EXPECT_EQ(told, AllTold{});
    test::sendKeyEvent(entry, true, GDK_KEY_2, 0, "2");
    test::sendKeyEvent(entry, false, GDK_KEY_a, 0, "a");
    test::sendKeyEvent(entry, false, GDK_KEY_2, 0, "2");
    EXPECT_EQ(told, (AllTold{{false, "12"}, {false, "12"}}));
}

TEST_F(IpEntryTest, AHeldKeyIsJudgedOnceAtItsRelease) {
    for (int i = 0; i < 5; ++i)
        test::sendKeyEvent(entry, true, GDK_KEY_1, 0, "1");
    EXPECT_EQ(told, AllTold{});
    test::sendKeyEvent(entry, false, GDK_KEY_1, 0, "1");
    EXPECT_EQ(told, (AllTold{{false, "11111"}}));
}

TEST_F(IpEntryOnScreen, TellsAfterEachKeyWhetherTheAddressIsWhole) {
    focus();
    const std::string address = "192.168.1.1";
    for (std::size_t i = 1; i <= address.size(); ++i) {
        typeText(address.substr(i - 1, 1));
        EXPECT_EQ(told.size(), i);
        EXPECT_EQ(told.back(), Told(i == address.size(), address.substr(0, i)));
    }
    typeText("2");
    EXPECT_EQ(told.back(), Told(true, "192.168.1.12"));
    typeText("34");
    EXPECT_EQ(told.back(), Told(false, "192.168.1.1234"));
    key(GDK_KEY_BackSpace);
    EXPECT_EQ(told.back(), Told(true, "192.168.1.123"));
    // It isn't refused: it stands.
    typeText("4");
    EXPECT_EQ(entry.get_text(), "192.168.1.1234");
}

TEST_F(IpEntryOnScreen, AtEachPlaceOfTheCursorARefusedCharacterDoesNothingAndAnAcceptedOneIsTyped) {
    focus();
    const std::string text = "1.2";
    for (int pos = 0; pos <= 3; ++pos) {
        entry.set_text(text);
        entry.set_position(pos);
        told.clear();
        typeText(refusedCharacters);
        EXPECT_EQ(entry.get_text(), text);
        EXPECT_EQ(selection(), std::make_pair(pos, pos));
        EXPECT_EQ(told, AllTold{});
        EXPECT_TRUE(entry.has_focus());
        for (const char c : acceptedCharacters) {
            entry.set_text(text);
            entry.set_position(pos);
            told.clear();
            typeText(std::string(1, c));
            std::string expected = text;
            expected.insert(static_cast<std::size_t>(pos), 1, c);
            EXPECT_EQ(entry.get_text(), expected) << pos;
            EXPECT_EQ(selection(), std::make_pair(pos + 1, pos + 1));
            // Shift, which "~" needs, is let go after it and counts as well.
            ASSERT_FALSE(told.empty()) << c;
            for (const Told& each : told)
                EXPECT_EQ(each, Told(false, expected));
            EXPECT_EQ(told.size(), c == '~' ? 2u : 1u) << c;
        }
    }
}

TEST_F(IpEntryOnScreen, ARefusedCharacterLeavesTheSelection) {
    entry.set_text("1.2.3.4");
    focus();
    typeText("a,");
    EXPECT_EQ(entry.get_text(), "1.2.3.4");
    EXPECT_EQ(selection(), (std::pair<int, int>(0, 7)));
    typeText("5");
    EXPECT_EQ(entry.get_text(), "5");
    EXPECT_EQ(told, (AllTold{{false, "5"}}));
}

TEST_F(IpEntryOnScreen, KeysWithoutACharacterDoNothingInIt) {
    entry.set_text("1.2.3.4");
    for (const unsigned int value :
         {GDK_KEY_Home, GDK_KEY_End, GDK_KEY_F5, GDK_KEY_Insert, GDK_KEY_Shift_L}) {
        focus();
        entry.set_position(3);
        key(value);
        EXPECT_EQ(selection(), (std::pair<int, int>(3, 3))) << value;
        EXPECT_EQ(entry.get_text(), "1.2.3.4");
        EXPECT_TRUE(entry.has_focus()) << value;
    }
    EXPECT_EQ(told, AllTold{});
}

TEST_F(IpEntryOnScreen, AnArrowMovesTheFocusInsteadOfTheCursor) {
    const std::pair<unsigned int, Gtk::Entry*> upright[] = {
        {GDK_KEY_Up, &before}, {GDK_KEY_Down, &behind}, {GDK_KEY_Left, &entry}, {GDK_KEY_Right, &entry}};
    const std::pair<unsigned int, Gtk::Entry*> lying[] = {
        {GDK_KEY_Up, &entry}, {GDK_KEY_Down, &entry}, {GDK_KEY_Left, &before}, {GDK_KEY_Right, &behind}};
    entry.set_text("1.2.3.4");
    for (const auto orientation : {Gtk::ORIENTATION_VERTICAL, Gtk::ORIENTATION_HORIZONTAL}) {
        box.set_orientation(orientation);
        for (const auto& [value, goal] : orientation == Gtk::ORIENTATION_VERTICAL ? upright : lying) {
            focus();
            entry.set_position(3);
            key(value);
            EXPECT_TRUE(goal->has_focus()) << value;
            EXPECT_EQ(entry.get_text(), "1.2.3.4");
            if (goal == &entry) {
                EXPECT_EQ(selection(), (std::pair<int, int>(3, 3))) << value;
            }
        }
    }
    EXPECT_EQ(told, AllTold{});
}

TEST_F(IpEntryOnScreen, BackSpaceAndDeleteEdit) {
    entry.set_text("1.2.3.45");
    focus();
    entry.set_position(8);
    key(GDK_KEY_BackSpace);
    EXPECT_EQ(told, (AllTold{{true, "1.2.3.4"}}));
    entry.set_position(0);
    key(GDK_KEY_Delete);
    EXPECT_EQ(told.back(), Told(false, ".2.3.4"));
    EXPECT_EQ(told.size(), 2u);
}

TEST_F(IpEntryOnScreen, ReturnIsJudgedAndReportsTheEdit) {
    std::vector<std::string> values;
    entry.signalValueChanged().connect([&](const std::string& text) { values.push_back(text); });
    focus();
    typeText("1.2.3.4");
    told.clear();
    key(GDK_KEY_Return);
    EXPECT_EQ(values, std::vector<std::string>{"1.2.3.4"});
    EXPECT_EQ(told, (AllTold{{true, "1.2.3.4"}}));
    typeText("5");
    key(GDK_KEY_Tab);
    EXPECT_EQ(values, (std::vector<std::string>{"1.2.3.4", "1.2.3.45"}));
    EXPECT_TRUE(behind.has_focus());
}

TEST_F(IpEntryOnScreen, APasteByKeysIsToldOfWithTheRelease) {
    focus();
    pasteByKeys("10.0.0.1");
    EXPECT_EQ(entry.get_text(), "10.0.0.1");
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told.back(), Told(true, "10.0.0.1"));
}

TEST_F(IpEntryOnScreen, APasteByThePointerIsToldOfWithTheNextKey) {
    focus();
    pasteByPointer("letters 10.0.0.", 20);
    EXPECT_EQ(entry.get_text(), "letters 10.0.0.");
    EXPECT_EQ(told, AllTold{});
    test::settle();
    entry.set_position(-1);
    typeText("x");
    EXPECT_EQ(told, AllTold{});
    typeText("1");
    EXPECT_EQ(told, (AllTold{{false, "letters 10.0.0.1"}}));
}

TEST_F(IpEntryOnScreen, ASetTextIsToldOfWithTheNextKey) {
    entry.set_text("1.2.3.");
    EXPECT_EQ(told, AllTold{});
    focus();
    entry.set_position(-1);
    typeText("4");
    EXPECT_EQ(told, (AllTold{{true, "1.2.3.4"}}));
}

TEST_F(IpEntryOnScreen, AListenerMayDeleteIt) {
    entry.signalIpChanged().connect([this](bool, const std::string&) { owned.reset(); });
    entry.signalIpChanged().connect(
        [this](bool isValid, const std::string& text) { told.emplace_back(!isValid, "2" + text); });
    focus();
    typeText("1");
    EXPECT_EQ(owned, nullptr);
    EXPECT_EQ(told, (AllTold{{false, "1"}, {true, "21"}}));
}
