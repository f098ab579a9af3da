// What a person may set for impedances and zones: how it is judged, what is said of it, and how it is kept.
#include "Circuit.h"
#include "reader/Reader.h"
#include "support/TemporaryFolder.h"
#include "view/ImpedanceSettings.h"
#include "view/Impedances.h"
#include "view/SettingsFile.h"
#include "view/SettingsWords.h"

#include <ZelCommonView/common/Language.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;
using testing::Not;
using viewer::allFields;
using viewer::Field;
using viewer::Group;
using viewer::ImpedanceSettings;
using viewer::SettingsDraft;
using viewer::SettingsFile;
using viewer::Veto;
using Reason = viewer::Veto::Reason;

struct InRussian {
    InRussian() { lng::language = 1; }

    ~InRussian() { lng::language = 0; }
};

std::size_t indexOf(Field field) {
    return static_cast<std::size_t>(field);
}

/// With everything given and right.
SettingsDraft draftWith(const std::vector<std::pair<Field, std::string>>& texts) {
    SettingsDraft draft;
    draft.texts = {"8", "75", "0.7", "-10", "50", "80", "120", "200", "25"};
    draft.isGiven = {true, true, true};
    for (const auto& [field, text] : texts)
        draft.texts[indexOf(field)] = text;
    return draft;
}

ImpedanceSettings settingsWith(const std::vector<std::pair<Field, double>>& values) {
    ImpedanceSettings settings;
    for (const auto& [field, value] : values) {
        settings.setGiven(groupOf(field), true);
        settings[field] = value;
    }
    return settings;
}

struct Case {
    Field field;
    std::string text;
    std::optional<Reason> reason; ///< empty if the text is taken
};

class SettingsKept : public testing::Test {
protected:
    /// What is read from a group with these lines.
    ImpedanceSettings readWith(const std::string& lines) {
        test::writeFile(file, "[impedance]\n" + lines);
        return SettingsFile(file).read();
    }

    test::TemporaryFolder folder;
    std::string file = folder.path / "deep" / "window.ini";

    void SetUp() override { std::filesystem::create_directories(folder.path / "deep"); }
};

} // namespace

TEST(Settings, EveryValueIsHeldAgainstItsRange) {
    const Case cases[] = {
        {Field::Z1, "0.001", {}},
        {Field::Z1, "10000", {}},
        {Field::Z1, "0", Reason::OutOfRange},
        {Field::Z1, "10000.001", Reason::OutOfRange},
        {Field::Z1, "-8", Reason::OutOfRange},
        {Field::Z1Angle, "10", {}},
        {Field::Z1Angle, "90", {}},
        {Field::Z1Angle, "9.9", Reason::OutOfRange},
        {Field::Z1Angle, "90.1", Reason::OutOfRange},
        {Field::K0, "0", {}},
        {Field::K0, "10", {}},
        {Field::K0, "10.001", Reason::OutOfRange},
        {Field::K0Angle, "-180", {}},
        {Field::K0Angle, "180", {}},
        {Field::K0Angle, "-180.1", Reason::OutOfRange},
        {Field::K0Angle, "180.1", Reason::OutOfRange},
        {Field::Frequency, "16.667", {}},
        {Field::Frequency, "400", {}},
        {Field::Frequency, "9.999", Reason::OutOfRange},
        {Field::Frequency, "400.001", Reason::OutOfRange},
        {Field::Zone1, "1", {}},
        {Field::Zone1, "0.9", Reason::OutOfRange},
        {Field::Zone1, "200.1", Reason::OutOfRange},
        {Field::Zone2, "80.1", {}},
        {Field::Zone2, "500.1", Reason::OutOfRange},
        {Field::Zone3, "1000", {}},
        {Field::Zone3, "1000.1", Reason::OutOfRange},
        {Field::Backward, "0", {}},
        {Field::Backward, "-0.1", Reason::OutOfRange},
        {Field::Backward, "1000.1", Reason::OutOfRange},
    };
    for (const Case& each : cases) {
        const viewer::SettingsVerdict verdict = judge(draftWith({{each.field, each.text}}));
        EXPECT_EQ(verdict.settings.has_value(), !each.reason) << each.text;
        ASSERT_EQ(verdict.veto.has_value(), each.reason.has_value()) << each.text;
        if (verdict.settings) {
            EXPECT_EQ(viewer::textOf((*verdict.settings)[each.field]), each.text);
        } else {
            EXPECT_EQ(verdict.veto->field, each.field) << each.text;
            EXPECT_EQ(verdict.veto->reason, *each.reason) << each.text;
        }
    }
}

TEST(Settings, WhatIsNoNumberIsRefusedInEveryLocale) {
    for (const char* const text : {"", "-", ".", "1e", "nan", "inf", "-inf", "1e400", "8,5", "8 ", " 8",
                                   "0x8", "+-8", "++8", "eight"}) {
        const viewer::SettingsVerdict verdict = judge(draftWith({{Field::Z1, text}}));
        ASSERT_TRUE(verdict.veto) << text;
        EXPECT_EQ(verdict.veto->reason, Reason::NoNumber) << text;
        EXPECT_EQ(verdict.veto->field, Field::Z1) << text;
    }
    for (const auto& [text, value] :
         {std::pair<const char*, double>{"8.5", 8.5}, {"+8.5", 8.5}, {"8.", 8}, {".5", 0.5}, {"1e2", 100}}) {
        const viewer::SettingsVerdict verdict = judge(draftWith({{Field::Z1, text}}));
        ASSERT_TRUE(verdict.settings) << text;
        EXPECT_EQ((*verdict.settings)[Field::Z1], value) << text;
    }
}

TEST(Settings, EachZoneReachesBeyondTheFormerAndForwardAtLeastAsFarAsBackward) {
    struct Contradiction {
        const char *zone1, *zone2, *zone3, *backward;
        std::optional<Field> wrong;
    };

    for (const Contradiction& each : std::initializer_list<Contradiction>{
             {"80", "80", "200", "25", Field::Zone2},
             {"80", "79.9", "200", "25", Field::Zone2},
             {"80", "80.1", "200", "25", {}},
             {"80", "120", "120", "25", Field::Zone3},
             {"80", "120", "90", "25", Field::Zone3},
             {"150", "120", "90", "300", Field::Zone2},
             {"80", "120", "200", "200", {}},
             {"80", "120", "200", "200.1", Field::Backward},
         }) {
        const viewer::SettingsVerdict verdict = judge(draftWith({{Field::Zone1, each.zone1},
                                                                 {Field::Zone2, each.zone2},
                                                                 {Field::Zone3, each.zone3},
                                                                 {Field::Backward, each.backward}}));
        ASSERT_EQ(verdict.veto.has_value(), each.wrong.has_value()) << each.zone2;
        EXPECT_EQ(verdict.settings.has_value(), !each.wrong) << each.zone2;
        if (each.wrong) {
            EXPECT_EQ(verdict.veto->field, *each.wrong) << each.zone2;
        }
    }
    // A value that is wrong by itself comes before one that contradicts another.
    EXPECT_EQ(judge(draftWith({{Field::Zone2, "50"}, {Field::Backward, ""}})).veto->field, Field::Backward);
    EXPECT_EQ(judge(draftWith({{Field::K0, ""}, {Field::Zone1, ""}})).veto->field, Field::K0);
}

TEST(Settings, WhatIsNotGivenIsNotLookedAt) {
    SettingsDraft draft = draftWith({{Field::Z1, "x"},
                                     {Field::Z1Angle, "500"},
                                     {Field::K0, "99"},
                                     {Field::K0Angle, ""},
                                     {Field::Frequency, "1"}});
    draft.isGiven = {};
    const viewer::SettingsVerdict verdict = judge(draft);
    ASSERT_TRUE(verdict.settings);
    EXPECT_EQ(*verdict.settings, ImpedanceSettings());
    draft.isGiven = {false, true, false};
    EXPECT_EQ(judge(draft).veto->field, Field::K0);
    draft.isGiven = {false, false, true};
    EXPECT_EQ(judge(draft).veto->field, Field::Frequency);
}

TEST(Settings, BecomeTheLineAndTheReaches) {
    const ImpedanceSettings none;
    EXPECT_EQ(none.line().z1, impedance::Complex());
    EXPECT_FALSE(none.line().k0);
    EXPECT_EQ(none.line().frequency, 0);
    EXPECT_EQ(none.reaches(), impedance::Reaches());

    const ImpedanceSettings settings = settingsWith({{Field::Z1, 8},
                                                     {Field::Z1Angle, 60},
                                                     {Field::K0, 0.5},
                                                     {Field::K0Angle, -90},
                                                     {Field::Frequency, 60},
                                                     {Field::Zone1, 50},
                                                     {Field::Backward, 10}});
    const impedance::LineSettings line = settings.line();
    EXPECT_NEAR(line.z1.real(), 4, 1e-12);
    EXPECT_NEAR(line.z1.imag(), 4 * std::sqrt(3.0), 1e-12);
    EXPECT_NEAR(line.k0->real(), 0, 1e-12);
    EXPECT_NEAR(line.k0->imag(), -0.5, 1e-12);
    EXPECT_EQ(line.frequency, 60);
    EXPECT_EQ(settings.reaches(), (impedance::Reaches{0.5, 1.2, 2.0, 0.1}));
}

TEST(Settings, WhereNothingIsGivenTheRecordTells) {
    const record::Record record = record::open(DEMO_RECORD);
    const viewer::Impedances impedances = viewer::computeImpedances(record);
    ASSERT_TRUE(impedances.isLineAssumed);
    const ImpedanceSettings told = withTold(ImpedanceSettings(), impedances);
    EXPECT_NEAR(told[Field::Z1], std::abs(impedances.line), 0.0005);
    EXPECT_EQ(told[Field::Z1], viewer::rounded(Field::Z1, told[Field::Z1]));
    EXPECT_EQ(told[Field::Z1Angle], 75);
    EXPECT_EQ(told[Field::Frequency], 50);
    EXPECT_EQ(told.isGiven, ImpedanceSettings().isGiven);

    const ImpedanceSettings given = settingsWith({{Field::Z1, 3}, {Field::Frequency, 60}});
    EXPECT_EQ(withTold(given, impedances)[Field::Z1], 3);
    EXPECT_EQ(withTold(given, impedances)[Field::Frequency], 60);

    // Nothing to tell, and something that nobody could set.
    viewer::Impedances odd;
    EXPECT_EQ(withTold(ImpedanceSettings(), odd), ImpedanceSettings());
    odd.isLineAssumed = true;
    odd.line = impedance::fromAngle(1e6, 5);
    odd.recordedFrequency = 1000;
    EXPECT_EQ(withTold(ImpedanceSettings(), odd), ImpedanceSettings());
}

TEST(Settings, ASentenceNamesTheValueAndItsRange) {
    const auto say = [](Field field, const std::string& text) {
        return viewer::words::vetoOf(*judge(draftWith({{field, text}})).veto);
    };
    EXPECT_EQ(say(Field::Z1, "0"),
              "Line impedance Z1: 0 ohm is out of range. It may be from 0.001 to 10000 ohm.");
    EXPECT_EQ(say(Field::K0, "12.5"),
              "Compensation factor k0: 12.5 is out of range. It may be from 0 to 10.");
    EXPECT_EQ(say(Field::K0Angle, "-"), "Angle of k0: this is no number. It may be from -180 to 180°.");
    EXPECT_EQ(say(Field::Zone2, "70"), "Reach of zone 2: 70 % does not reach beyond Zone 1, which has 80 %. "
                                       "It may be above 80 and up to 500 %.");
    EXPECT_EQ(say(Field::Backward, "300"),
              "Reach of zone 3 backward: 300 % is more than it reaches forward. It may be from 0 to 200 %.");
    const InRussian russian;
    EXPECT_EQ(say(Field::Frequency, "5"),
              "Частота: 5 Гц вне допустимых пределов. Допустимо от 10 до 400 Гц.");
    EXPECT_EQ(say(Field::Z1, ""), "Сопротивление линии Z1: это не число. Допустимо от 0.001 до 10000 Ом.");
    EXPECT_EQ(say(Field::Zone3, "120"), "Охват зоны 3: 120 % не дальше, чем Зона 2, у которой 120 %. "
                                        "Допустимо больше 120 и до 1000 %.");
}

TEST(Settings, EveryWordIsThereInBothLanguages) {
    std::vector<std::string> english;
    std::vector<std::string> russian;
    const auto collect = [](std::vector<std::string>& all) {
        for (const Field field : allFields)
            all.push_back(viewer::words::fullName(field));
        for (const Group group : {Group::Line, Group::Compensation, Group::Frequency})
            all.push_back(viewer::words::groupName(group, 50));
        all.push_back(viewer::words::groupName(Group::Frequency, 0));
        for (const char* const word : {viewer::words::settings(), viewer::words::settingsTitle(),
                                       viewer::words::defaults(), viewer::words::inPercent()})
            all.push_back(word);
        for (const auto side : {impedance::Side::Primary, impedance::Side::Secondary})
            all.push_back(viewer::words::unitOf(Field::Z1, side));
    };
    collect(english);
    {
        const InRussian inRussian;
        collect(russian);
    }
    for (std::size_t i = 0; i < english.size(); ++i) {
        EXPECT_NE(english[i], russian[i]);
        EXPECT_THAT(english[i], Not(HasSubstr("\xd0")));
        EXPECT_THAT(russian[i], HasSubstr("\xd0"));
    }
    EXPECT_EQ(viewer::words::groupName(Group::Frequency, 16.667),
              "Another frequency than the 16.667 Hz of the record");
}

TEST_F(SettingsKept, ComeBackAsTheyWere) {
    const ImpedanceSettings settings = settingsWith({{Field::Z1, 8.123},
                                                     {Field::Z1Angle, 60.5},
                                                     {Field::K0, 0.7},
                                                     {Field::K0Angle, -10.1},
                                                     {Field::Frequency, 16.667},
                                                     {Field::Zone1, 85.5},
                                                     {Field::Backward, 0}});
    SettingsFile(file).write(settings);
    EXPECT_EQ(SettingsFile(file).read(), settings);
    // The same in every locale, and as a person would write it.
    EXPECT_EQ(test::readFile(file),
              "[impedance]\nz1-ohms=8.123\nz1-degrees=60.5\nk0=0.7\nk0-degrees=-10.1\n"
              "frequency-hertz=16.667\nzone-1-percent=85.5\nzone-3-backward-percent=0\n");
    SettingsFile(file).write(ImpedanceSettings());
    EXPECT_EQ(SettingsFile(file).read(), ImpedanceSettings());
    EXPECT_THAT(test::readFile(file), Not(HasSubstr("z1")));
}

TEST_F(SettingsKept, LeaveTheOtherGroupsOfTheFileAlone) {
    test::writeFile(file, "# mine\n[window]\nx=100\nname[de]=Fenster\n\n[impedance]\nk0=0.5\nold=1\n");
    SettingsFile(file).write(settingsWith({{Field::Z1, 3}}));
    const std::string text = test::readFile(file);
    EXPECT_THAT(text, HasSubstr("# mine\n"));
    EXPECT_THAT(text, HasSubstr("[window]\nx=100\nname[de]=Fenster\n"));
    EXPECT_THAT(text, HasSubstr("[impedance]\nz1-ohms=3\nz1-degrees=75\n"));
    EXPECT_THAT(text, Not(HasSubstr("k0")));
    EXPECT_THAT(text, Not(HasSubstr("old")));
}

TEST_F(SettingsKept, BrokenAndAbsurdValuesAreIgnoredOneByOne) {
    const ImpedanceSettings usual;
    for (const char* const bad :
         {"", "many", "nan", "inf", "-inf", "1e30", "-5", "0", "8,5", "1e400", "\xff\xfe", "8;9"}) {
        const ImpedanceSettings settings = readWith(
            "z1-ohms=" + std::string(bad) + "\nz1-degrees=60\nk0=0.5\nk0-degrees=20\nzone-1-percent=70\n");
        EXPECT_FALSE(settings.has(Group::Line)) << bad;
        EXPECT_EQ(settings, settingsWith({{Field::K0, 0.5}, {Field::K0Angle, 20}, {Field::Zone1, 70}}))
            << bad;
    }
    // An angle is not missed as its magnitude is.
    EXPECT_EQ(readWith("z1-ohms=3\nz1-degrees=500\n"), settingsWith({{Field::Z1, 3}}));
    EXPECT_EQ(readWith("k0=0.4\nk0-degrees=x\nfrequency-hertz=0\n"), settingsWith({{Field::K0, 0.4}}));
    EXPECT_EQ(readWith("zone-2-percent=-1\nzone-3-percent=300\n"), settingsWith({{Field::Zone3, 300}}));
    // Digits that nobody could type.
    EXPECT_EQ(readWith("z1-ohms=8.12345678\n")[Field::Z1], 8.123);
}

TEST_F(SettingsKept, ZonesThatContradictEachOtherAreAllIgnored) {
    for (const char* const zones :
         {"zone-1-percent=150\n", "zone-1-percent=60\nzone-2-percent=50\n", "zone-3-percent=110\n",
          "zone-3-backward-percent=201\n", "zone-1-percent=90\nzone-2-percent=x\nzone-3-percent=100\n"})
        EXPECT_EQ(readWith(std::string("z1-ohms=4\n") + zones), settingsWith({{Field::Z1, 4}})) << zones;
}

TEST_F(SettingsKept, ABrokenFileOrNoneIsNoTrouble) {
    EXPECT_EQ(SettingsFile(file).read(), ImpedanceSettings());
    EXPECT_EQ(SettingsFile("").read(), ImpedanceSettings());
    SettingsFile("").write(settingsWith({{Field::Z1, 3}}));
    for (const char* const text :
         {"nonsense", "\xff\xfe\x00[", "[other]\nz1-ohms=3\n", "[impedance\nz1-ohms=3\n"}) {
        test::writeFile(file, text);
        EXPECT_EQ(SettingsFile(file).read(), ImpedanceSettings()) << text;
    }
    // The next writing mends it.
    test::writeFile(file, "[window]\nx=1\nnonsense\n");
    SettingsFile(file).write(settingsWith({{Field::Z1, 3}}));
    EXPECT_EQ(SettingsFile(file).read(), settingsWith({{Field::Z1, 3}}));
    // A folder that can't be made.
    test::writeFile(folder.path / "file", "");
    const SettingsFile nowhere(folder.path / "file" / "below" / "window.ini");
    nowhere.write(settingsWith({{Field::Z1, 3}}));
    EXPECT_EQ(nowhere.read(), ImpedanceSettings());
}

TEST(KeptForImpedances, IsEnoughToComputeThemAnew) {
    const record::Record record = record::open(DEMO_RECORD);
    const record::Record kept = viewer::keepForImpedances(record);
    EXPECT_EQ(kept.analogs.size(), 6u);
    EXPECT_TRUE(kept.binaries.empty());
    for (const ImpedanceSettings& settings :
         {ImpedanceSettings(), settingsWith({{Field::Z1, 3}, {Field::K0, 0.6}, {Field::Frequency, 49}})}) {
        const viewer::Impedances whole =
            viewer::computeImpedances(record, settings.line(), settings.reaches());
        const viewer::Impedances again = viewer::computeImpedances(kept, settings.line(), settings.reaches());
        EXPECT_EQ(again.line, whole.line);
        EXPECT_EQ(again.view, whole.view);
        EXPECT_EQ(again.trajectories.shown, whole.trajectories.shown);
        EXPECT_EQ(again.trajectories.side, whole.trajectories.side);
        EXPECT_EQ(again.trajectories.remarks, whole.trajectories.remarks);
        for (std::size_t i = 0; i < impedance::loopCount; ++i) {
            ASSERT_EQ(again.trajectories.loops[i].size(), whole.trajectories.loops[i].size());
            for (std::size_t j = 0; j < again.trajectories.loops[i].size(); ++j) {
                EXPECT_EQ(again.trajectories.loops[i][j].r, whole.trajectories.loops[i][j].r);
                EXPECT_EQ(again.trajectories.loops[i][j].x, whole.trajectories.loops[i][j].x);
                EXPECT_EQ(again.trajectories.loops[i][j].time, whole.trajectories.loops[i][j].time);
            }
        }
    }
}

TEST(KeptForImpedances, TakesTheSameChannelsOutOfMany) {
    using test::sine;
    record::Record record = test::makeRecord({sine(30, 0), sine(31, -120), sine(32, 120)},
                                             {sine(10, 0), sine(11, -120), sine(12, 120)});
    const record::Record other = test::makeRecord({sine(5, 0), sine(5, -120), sine(5, 120)},
                                                  {sine(1, 0), sine(1, -120), sine(1, 120)});
    // Another set of voltages in front, and channels that no impedance needs.
    for (std::size_t i = 0; i < 3; ++i) {
        record.analogs.insert(record.analogs.begin() + static_cast<std::ptrdiff_t>(i), other.analogs[i]);
        record.analogs[i].name = std::string("busU") + "ABC"[i];
    }
    record.analogs.push_back(record.analogs.front());
    record.analogs.back().unit = "Hz";
    const record::Record kept = viewer::keepForImpedances(record);
    EXPECT_EQ(kept.analogs.size(), 6u);
    const auto whole = viewer::computeImpedances(record);
    const auto again = viewer::computeImpedances(kept);
    ASSERT_FALSE(whole.trajectories.of(impedance::Loop::AE).empty());
    EXPECT_NEAR(whole.trajectories.of(impedance::Loop::AE).front().r, 3, 1e-5);
    EXPECT_EQ(again.trajectories.of(impedance::Loop::AE).front().r,
              whole.trajectories.of(impedance::Loop::AE).front().r);
    // What is missing is told in the same words.
    record.analogs.erase(record.analogs.begin() + 6, record.analogs.begin() + 9);
    EXPECT_NE(viewer::computeImpedances(record).problem, "");
    EXPECT_EQ(viewer::computeImpedances(viewer::keepForImpedances(record)).problem,
              viewer::computeImpedances(record).problem);
}
