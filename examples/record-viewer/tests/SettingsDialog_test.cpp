// The dialog of the settings, used as a person uses it: what it refuses and what it changes.
#include "SettingsHands.h"
#include "reader/Reader.h"
#include "support/Finalised.h"
#include "view/SettingsWords.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;
using testing::Not;
using viewer::Field;
using viewer::Group;
using viewer::ImpedanceSettings;

using SettingsDialogTest = test::SettingsHands;

} // namespace

TEST_F(SettingsDialogTest, OpensOnceThereIsARecord) {
    test::present(*window);
    EXPECT_FALSE(window->settingsButton.get_sensitive());
    test::click(window->settingsButton);
    test::wait(200);
    EXPECT_EQ(dialog(), nullptr);
    show(record::open(DEMO_RECORD));
    open();
    EXPECT_EQ(dialog()->get_title(), "Line and zones");
    EXPECT_EQ(dialog()->get_transient_for(), window.get());
    EXPECT_FALSE(dialog()->get_modal());
    expectNoVeto();
    // What the record tells: the line up to the fault is about 2.25 ohms long.
    EXPECT_EQ(form()._entryOf(Field::Z1).get_text(),
              viewer::textOf(viewer::rounded(Field::Z1, std::abs(window->impedances->line))));
    EXPECT_EQ(form()._entryOf(Field::Frequency).get_text(), "50");
    EXPECT_EQ(form()._entryOf(Field::Zone2).get_text(), "120");
    EXPECT_FALSE(form()._entryOf(Field::Z1).get_sensitive());
    EXPECT_TRUE(form()._entryOf(Field::Zone1).get_sensitive());
    EXPECT_EQ(form().units[0].get_text(), "secondary ohm");
}

TEST_F(SettingsDialogTest, ASecondPressBringsTheOpenOneToTheFront) {
    show(test::soloRecord());
    open();
    enter(Field::Zone1, "70");
    const Gtk::Window* const first = dialog();
    const viewer::SettingsForm* const content = &form();
    test::click(window->page, 100, 40);
    EXPECT_TRUE(test::waitFor([&] { return window->is_active() && !dialog()->is_active(); }));
    test::click(window->settingsButton);
    EXPECT_TRUE(test::waitFor([&] { return dialog()->is_active(); }));
    EXPECT_EQ(dialog(), first);
    EXPECT_EQ(&form(), content);
    EXPECT_EQ(form()._entryOf(Field::Zone1).get_text(), "70");
}

TEST_F(SettingsDialogTest, AValueOutOfItsRangeKeepsItOpenUntilItIsPutRight) {
    show(test::soloRecord());
    EXPECT_TRUE(zones().empty());
    open();
    tick(Group::Line);
    enter(Field::Z1Angle, "60");
    enter(Field::Z1, "0");
    pressOk();
    expectVeto(Field::Z1, "Line impedance Z1: 0 ohm is out of range. It may be from 0.001 to 10000 ohm.");
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_TRUE(zones().empty());
    EXPECT_EQ(window->getSettings(), ImpedanceSettings());

    // It is put right where it stands, since it is marked and has the focus.
    test::type("8");
    EXPECT_TRUE(test::waitFor([&] { return form()._entryOf(Field::Z1).get_text() == "8"; }));
    expectNoVeto();
    enter(Field::Zone1, "50");
    pressOk();
    ASSERT_TRUE(isClosed());

    // 8 ohms at 60 degrees are 4 + j 6.9282; a zone's circle stands over its reach.
    ASSERT_EQ(zones().size(), 3u);
    const double y = std::sqrt(3.0) / 2;
    expectCircle(*zones()[0], 1, 2 * y, 2);
    expectCircle(*zones()[1], 2.4, 4.8 * y, 4.8);
    expectCircle(*zones()[2], 3.5, 7 * y, 9);
    EXPECT_THAT(
        window->plane.status.get_text().raw(),
        HasSubstr("The zones are those of a line of 8 ohm at 60°. They reach over 50, 120 and 200 % of "
                  "it, zone 3 over 25 % backward."));
    EXPECT_THAT(window->plane.status.get_text().raw(),
                HasSubstr("The earth-fault compensation of the line is not known"));
    EXPECT_THAT(window->plane.status.get_text().raw(),
                Not(HasSubstr("impedances of the line are not known")));
}

TEST_F(SettingsDialogTest, TheCompensationMovesTheTrajectory) {
    show(test::soloRecord());
    const double y = std::sqrt(3.0) / 2;
    EXPECT_NEAR(firstPoint().x, 1.5, 1e-4);
    EXPECT_NEAR(firstPoint().y, 3 * y, 1e-4);
    EXPECT_THAT(window->hodograph.status.get_text().raw(),
                HasSubstr("The impedances of the line are not known"));
    open();
    tick(Group::Compensation);
    enter(Field::K0, "0.5");
    // By Return, from an entry.
    test::pressKey(GDK_KEY_Return);
    ASSERT_TRUE(isClosed());
    EXPECT_NEAR(firstPoint().x, 1, 1e-4);
    EXPECT_NEAR(firstPoint().y, 2 * y, 1e-4);
    EXPECT_NEAR(window->plane.dot->x, 1, 1e-4);
    EXPECT_THAT(window->hodograph.status.get_text().raw(), HasSubstr("k0 = 0.5 at 0°."));
    EXPECT_THAT(window->hodograph.status.get_text().raw(), Not(HasSubstr("not known")));

    // At 90 degrees the divisor is 1 + j 0.5: 3 ohms at 60 degrees become 2.6833 at 33.435 degrees.
    open();
    EXPECT_EQ(form()._entryOf(Field::K0).get_text(), "0.5");
    enter(Field::K0Angle, "90");
    test::pressKey(GDK_KEY_Return);
    ASSERT_TRUE(isClosed());
    EXPECT_NEAR(firstPoint().x, 2.23923, 1e-4);
    EXPECT_NEAR(firstPoint().y, 1.47846, 1e-4);
    // A loop between phases has no part in it.
    window->plane.chooseLoop(impedance::Loop::AB);
    EXPECT_THAT(window->hodograph.status.get_text().raw(), Not(HasSubstr("k0")));
}

TEST_F(SettingsDialogTest, ALoopThatIsLookedAtStays) {
    show(record::open(DEMO_RECORD));
    window->plane.chooseLoop(impedance::Loop::BC);
    open();
    enter(Field::Zone1, "70");
    pressOk();
    ASSERT_TRUE(isClosed());
    EXPECT_EQ(window->plane.getLoop(), impedance::Loop::BC);
    EXPECT_EQ(window->hodograph.getLoop(), impedance::Loop::BC);
    EXPECT_THAT(window->plane.status.get_text().raw(), HasSubstr("The line is not known"));
    EXPECT_THAT(window->plane.status.get_text().raw(), HasSubstr("They reach over 70, 120 and 200 %"));
}

TEST_F(SettingsDialogTest, AnotherFrequencyIsToldBesideThatOfTheRecord) {
    show(test::soloRecord());
    open();
    EXPECT_EQ(form().givenButtons[2].get_label(), "Another frequency than the 50 Hz of the record");
    tick(Group::Frequency);
    enter(Field::Frequency, "500");
    pressOk();
    expectVeto(Field::Frequency, "Frequency: 500 Hz is out of range. It may be from 10 to 400 Hz.");
    enter(Field::Frequency, "49.95");
    pressOk();
    ASSERT_TRUE(isClosed());
    EXPECT_THAT(window->plane.status.get_text().raw(),
                HasSubstr("Computed for 49.95 Hz, while the record tells 50 Hz."));
    // Hardly two and a half samples in a cycle: nothing to show, and it is said why.
    open();
    enter(Field::Frequency, "400");
    pressOk();
    ASSERT_TRUE(isClosed());
    EXPECT_TRUE(window->plane.problem.get_text().find("no impedance to show") != Glib::ustring::npos);
    EXPECT_THAT(window->plane.problem.get_text().raw(), HasSubstr("Computed for 400 Hz"));
    // The way back.
    open();
    tick(Group::Frequency);
    pressOk();
    ASSERT_TRUE(isClosed());
    EXPECT_NEAR(firstPoint().x, 1.5, 1e-4);
    EXPECT_THAT(window->hodograph.status.get_text().raw(), Not(HasSubstr("Computed for")));
}

TEST_F(SettingsDialogTest, ARecordWithoutAFrequencyCanBeGivenOne) {
    record::Record record = test::soloRecord();
    record.lineFrequency = 0;
    show(std::move(record));
    EXPECT_THAT(window->hodograph.problem.get_text().raw(), HasSubstr("does not tell the frequency"));
    open();
    EXPECT_EQ(form().givenButtons[2].get_label(), "Frequency of the network; the record tells none");
    tick(Group::Frequency);
    pressOk();
    ASSERT_TRUE(isClosed());
    EXPECT_NEAR(firstPoint().x, 1.5, 1e-4);
    EXPECT_THAT(window->hodograph.status.get_text().raw(),
                HasSubstr("Computed for 50 Hz; the record tells no frequency."));
}

TEST_F(SettingsDialogTest, ZonesThatContradictEachOtherAreRefused) {
    show(test::soloRecord());
    open();
    enter(Field::Zone2, "70");
    pressOk();
    expectVeto(Field::Zone2,
               "Reach of zone 2: 70 % does not reach beyond Zone 1, which has 80 %. It may be above "
               "80 and up to 500 %.");
    // The other one may as well be what is put right; the mark goes with any edit.
    enter(Field::Zone1, "60");
    expectNoVeto();
    enter(Field::Backward, "300");
    pressOk();
    expectVeto(Field::Backward,
               "Reach of zone 3 backward: 300 % is more than it reaches forward. It may be from 0 to 200 %.");
    enter(Field::Backward, "0");
    pressOk();
    ASSERT_TRUE(isClosed());
    EXPECT_EQ(window->getSettings().reaches(), (impedance::Reaches{0.6, 0.7, 2.0, 0}));
}

TEST_F(SettingsDialogTest, WhatIsNoNumberIsRefusedAndFollowsTheTick) {
    show(test::soloRecord());
    open();
    tick(Group::Compensation);
    Zel::NumericEntry& entry = form()._entryOf(Field::K0Angle);
    test::click(entry);
    test::wait(100);
    test::pressKey(GDK_KEY_BackSpace);
    EXPECT_TRUE(test::waitFor([&] { return entry.get_text().empty(); }));
    test::type("-");
    test::pressKey(GDK_KEY_Return);
    test::wait(300);
    expectVeto(Field::K0Angle, "Angle of k0: this is no number. It may be from -180 to 180°.");
    // Letters don't get into it at all.
    test::type("-1x0");
    EXPECT_TRUE(test::waitFor([&] { return entry.get_text() == "-10"; })) << entry.get_text();
    enter(Field::K0, "12");
    pressOk();
    expectVeto(Field::K0, "Compensation factor k0: 12 is out of range. It may be from 0 to 10.");
    // What isn't given can't be wrong.
    tick(Group::Compensation);
    expectNoVeto();
    pressOk();
    EXPECT_TRUE(isClosed());
    EXPECT_EQ(window->getSettings(), ImpedanceSettings());
}

TEST_F(SettingsDialogTest, CancelEscapeAndTheBarChangeNothing) {
    show(test::soloRecord());
    for (int way = 0; way < 3; ++way) {
        open();
        tick(Group::Line);
        enter(Field::Z1, "5");
        if (way == 0)
            test::click(button("Cancel"));
        else if (way == 1)
            test::pressKey(GDK_KEY_Escape);
        else
            test::closeByManager(*dialog());
        ASSERT_TRUE(isClosed()) << way;
        EXPECT_EQ(window->getSettings(), ImpedanceSettings());
        EXPECT_TRUE(zones().empty());
        EXPECT_FALSE(std::filesystem::exists(file));
    }
    open();
    EXPECT_FALSE(form().givenButtons[0].get_active());
    EXPECT_NE(form()._entryOf(Field::Z1).get_text(), "5");
}

TEST_F(SettingsDialogTest, DefaultsAreWhatTheRecordTellsOnceOkIsPressed) {
    show(record::open(DEMO_RECORD));
    const impedance::Complex assumed = window->impedances->line;
    open();
    tick(Group::Line);
    enter(Field::Z1, "9");
    enter(Field::Zone3, "400");
    pressOk();
    ASSERT_TRUE(isClosed());
    EXPECT_FALSE(window->impedances->isLineAssumed);
    EXPECT_THAT(test::readFile(file), HasSubstr("z1-ohms=9"));
    open();
    enter(Field::Z1, "0");
    pressOk();
    ASSERT_NE(dialog(), nullptr);
    test::click(button("Defaults"));
    EXPECT_TRUE(test::waitFor([&] { return !form().givenButtons[0].get_active(); }));
    expectNoVeto();
    EXPECT_EQ(form()._entryOf(Field::Zone3).get_text(), "200");
    EXPECT_FALSE(window->impedances->isLineAssumed); // not yet
    pressOk();
    ASSERT_TRUE(isClosed());
    EXPECT_TRUE(window->impedances->isLineAssumed);
    EXPECT_EQ(window->impedances->line, assumed);
    EXPECT_EQ(window->getSettings(), ImpedanceSettings());
    EXPECT_THAT(test::readFile(file), Not(HasSubstr("z1")));
}

TEST_F(SettingsDialogTest, SpeaksTheLanguage) {
    makeAnew(1);
    show(test::soloRecord());
    EXPECT_EQ(window->settingsButton.get_label(), "Настройки");
    open();
    EXPECT_EQ(dialog()->get_title(), "Линия и зоны");
    tick(Group::Line);
    enter(Field::Z1, "0");
    pressOk();
    expectVeto(Field::Z1,
               "Сопротивление линии Z1: 0 Ом вне допустимых пределов. Допустимо от 0.001 до 10000 Ом.");
    std::vector<std::string> texts;
    for (Gtk::Label* const label : test::findAll<Gtk::Label>(*dialog()))
        texts.push_back(label->get_text());
    for (const std::string& text : texts)
        for (const char* const english : {"Line", "Zone", "Angle", "known", "Frequency", "ohm", "Cancel"})
            EXPECT_THAT(text, Not(HasSubstr(english)));
    EXPECT_THAT(texts, testing::Contains("По умолчанию"));
    enter(Field::Z1, "7");
    pressOk();
    ASSERT_TRUE(isClosed());
    EXPECT_THAT(window->plane.status.get_text().raw(), HasSubstr("Зоны для линии 7 Ом под углом 75°."));
}

TEST_F(SettingsDialogTest, GoesWithTheWindowAndWithTheRecord) {
    show(test::soloRecord());
    open();
    window->setRecord(test::soloRecord(), viewer::computeImpedances(test::soloRecord()));
    EXPECT_EQ(dialog(), nullptr);
    test::settle();
    open();
    test::Finalised finalised;
    finalised.watch(form());
    finalised.watch(*dialog());
    window->hide();
    EXPECT_EQ(dialog(), nullptr);
    test::settle();
    EXPECT_TRUE(finalised.all());
    window.reset();
}
