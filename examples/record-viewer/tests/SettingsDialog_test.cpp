// The dialog of the settings, used as a person uses it: what it refuses, what it changes and what it keeps.
#include "Circuit.h"
#include "reader/Reader.h"
#include "support/Answer.h"
#include "support/Finalised.h"
#include "support/Hands.h"
#include "support/Keyboard.h"
#include "support/TemporaryFolder.h"
#include "view/MainWindow.h"
#include "view/SettingsWords.h"

#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/diagrams/StyleZoomHelper.h>
#include <ZelCommonView/plot/SeriesTimeCounter.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/wait.h>

namespace {

using testing::HasSubstr;
using testing::Not;
using viewer::Field;
using viewer::Group;
using viewer::ImpedanceSettings;
using viewer::MainWindow;

/// 30 volts drive 10 amperes through phase A alone, at 60 degrees: 3 ohms, and 2 with a k0 of a half.
record::Record soloRecord() {
    return test::makeRecord({test::sine(30, 60), test::sine(30, -60), test::sine(30, 180)},
                            {test::sine(10, 0), 0, 0});
}

class SettingsDialogTest : public testing::Test {
protected:
    SettingsDialogTest() { _make(); }

    ~SettingsDialogTest() override {
        window.reset();
        lng::language = 0;
    }

    void makeAnew(unsigned char language) {
        lng::language = language;
        _make();
    }

    void show(record::Record record) {
        viewer::Impedances impedances =
            viewer::computeImpedances(record, window->getSettings().line(), window->getSettings().reaches());
        window->setRecord(std::move(record), std::move(impedances));
        window->hodograph.hodograph.getCounter().setIsPaused(true);
        test::present(*window);
    }

    Gtk::Window* dialog() { return window->settingsDialog.getWindow(); }

    viewer::SettingsForm& form() { return *window->settingsDialog.form; }

    void open() {
        test::click(window->settingsButton);
        ASSERT_TRUE(
            test::waitFor([&] { return dialog() && dialog()->get_mapped() && dialog()->is_active(); }));
        test::wait(200);
    }

    Gtk::Button& button(const std::string& label) {
        for (Gtk::Button* const found : test::findAll<Gtk::Button>(*dialog()))
            if (found->get_label() == label && found->get_mapped())
                return *found;
        throw std::runtime_error("no button " + label);
    }

    void tick(Group group) {
        Gtk::CheckButton& check = form().givenButtons[static_cast<std::size_t>(group)];
        const bool before = check.get_active();
        test::click(check, 8, check.get_allocated_height() / 2);
        EXPECT_TRUE(test::waitFor([&] { return check.get_active() != before; }));
        test::settle();
    }

    /// Clicks into the entry, marks all of it and types over it.
    void enter(Field field, const std::string& text) {
        Zel::NumericEntry& entry = form()._entryOf(field);
        test::click(entry);
        EXPECT_TRUE(test::waitFor([&] { return entry.has_focus(); }));
        test::wait(100);
        {
            const test::HeldKey control(GDK_KEY_Control_L);
            test::pressKey(GDK_KEY_a);
        }
        test::type(text);
        EXPECT_TRUE(test::waitFor([&] { return entry.get_text() == text; })) << entry.get_text();
    }

    void pressOk() {
        test::click(button("OK"));
        test::wait(300);
    }

    bool isClosed() {
        return test::waitFor([&] { return !dialog(); }, 2000);
    }

    /// The fields whose entries are marked.
    std::vector<Field> marked() {
        std::vector<Field> all;
        for (const Field field : viewer::allFields)
            if (form()._entryOf(field).get_style_context()->has_class("error"))
                all.push_back(field);
        return all;
    }

    void expectVeto(Field field, const std::string& sentence) {
        ASSERT_NE(dialog(), nullptr) << "the dialog has closed";
        EXPECT_TRUE(dialog()->get_mapped());
        EXPECT_EQ(marked(), std::vector<Field>{field});
        EXPECT_TRUE(form().sentence.get_mapped());
        EXPECT_EQ(form().sentence.get_text(), sentence);
        EXPECT_TRUE(form()._entryOf(field).has_focus());
    }

    void expectNoVeto() {
        EXPECT_TRUE(marked().empty());
        EXPECT_FALSE(form().verdict.get_mapped());
    }

    std::vector<const Zel::Circle*> zones() {
        std::vector<const Zel::Circle*> all;
        for (const auto& figure : window->plane.diagram.figures)
            if (const auto* const circle = dynamic_cast<const Zel::Circle*>(figure.get());
                circle && circle->radius > 0)
                all.push_back(circle);
        return all;
    }

    void expectCircle(const Zel::Circle& circle, double x, double y, double radius) {
        EXPECT_NEAR(circle.x, x, 1e-4);
        EXPECT_NEAR(circle.y, y, 1e-4);
        EXPECT_NEAR(circle.radius, radius, 1e-4);
    }

    /// The first point of the hodograph.
    Zel::PointF firstPoint() { return window->hodograph.hodograph.series.front()->points.front().point; }

    test::TemporaryFolder folder;
    std::string file = folder.path / "config" / "window.ini";
    std::unique_ptr<MainWindow> window;

private:
    void _make() {
        window.reset();
        window = std::make_unique<MainWindow>("test", file);
    }
};

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
    show(soloRecord());
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
    show(soloRecord());
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
    show(soloRecord());
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
    show(soloRecord());
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
    record::Record record = soloRecord();
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
    show(soloRecord());
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
    show(soloRecord());
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
    show(soloRecord());
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

TEST_F(SettingsDialogTest, TheNextWindowBeginsWithThem) {
    show(soloRecord());
    open();
    tick(Group::Line);
    enter(Field::Z1, "8.125");
    pressOk();
    ASSERT_TRUE(isClosed());
    window->close();
    test::settle();
    makeAnew(0);
    // The place of the window stands beside them and has not pushed them out.
    EXPECT_THAT(test::readFile(file), HasSubstr("[window]\n"));
    EXPECT_THAT(test::readFile(file), HasSubstr("[impedance]\nz1-ohms=8.125\nz1-degrees=75\n"));
    show(soloRecord());
    EXPECT_THAT(window->plane.status.get_text().raw(), HasSubstr("a line of 8.12 ohm at 75°"));
    EXPECT_EQ(zones().size(), 3u);
    open();
    EXPECT_TRUE(form().givenButtons[0].get_active());
    EXPECT_EQ(form()._entryOf(Field::Z1).get_text(), "8.125");
}

TEST_F(SettingsDialogTest, SpeaksTheLanguage) {
    makeAnew(1);
    show(soloRecord());
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
    show(soloRecord());
    open();
    window->setRecord(soloRecord(), viewer::computeImpedances(soloRecord()));
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

TEST_F(SettingsDialogTest, TheProgramKeepsThemInTheFolderOfTheUser) {
    // Where the button stands in a window at a known place.
    const std::filesystem::path config = folder.path / "user";
    const std::filesystem::path kept = config / "record-viewer" / "window.ini";
    std::filesystem::create_directories(kept.parent_path());
    const std::string place = "[window]\nx=120\ny=80\nwidth=1280\nheight=860\n";
    test::writeFile(kept, place + "[impedance]\nk0=absurd\n");
    int x = 0;
    int y = 0;
    {
        MainWindow model("test", kept);
        record::Record record = record::open(DEMO_RECORD);
        viewer::Impedances impedances = viewer::computeImpedances(record);
        model.setRecord(std::move(record), std::move(impedances));
        test::present(model);
        int left = 0;
        int top = 0;
        model.settingsButton.get_window()->get_origin(left, top);
        const Gtk::Allocation button = model.settingsButton.get_allocation();
        x = left + button.get_x() + button.get_width() / 2;
        y = top + button.get_y() + button.get_height() / 2;
    }
    test::writeFile(kept, place + "[impedance]\nk0=absurd\n");
    window->hide();
    test::settle();

    const std::string errors = folder.path / "errors";
    FILE* const program = popen(("XDG_CONFIG_HOME='" + config.string() + "' timeout 12 '" + VIEWER + "' '" +
                                 DEMO_RECORD + "' 2>'" + errors + "'")
                                    .c_str(),
                                "r");
    ASSERT_NE(program, nullptr);
    test::wait(3000);
    test::movePointer(x, y);
    test::wait(100);
    test::pressButton();
    test::releaseButton();
    test::wait(1500);
    test::pressKey(GDK_KEY_space); // the line is known
    test::pressKey(GDK_KEY_Tab);
    test::wait(200);
    test::type("6.5");
    test::pressKey(GDK_KEY_Return);
    const bool isKept = test::waitFor(
        [&] { return test::readFile(kept).find("z1-ohms=6.5\nz1-degrees=75\n") != std::string::npos; });
    EXPECT_TRUE(isKept) << test::readFile(kept);
    EXPECT_EQ(WEXITSTATUS(pclose(program)), 124) << "it ended by itself";
    EXPECT_EQ(test::readFile(errors), "");
    EXPECT_THAT(test::readFile(kept), HasSubstr("x=120"));
    EXPECT_THAT(test::readFile(kept), Not(HasSubstr("k0")));
}

TEST(SettingsAndPictures, PicturesFollowTheRecordAlone) {
    const test::TemporaryFolder folder;
    const std::filesystem::path kept = folder.path / "record-viewer" / "window.ini";
    const auto paint = [&](const std::string& name) {
        const std::filesystem::path pictures = folder.path / name;
        EXPECT_NE(test::outputOf("XDG_CONFIG_HOME='" + folder.path.string() + "' '" + VIEWER + "' --png '" +
                                 pictures.string() + "' '" + DEMO_RECORD + "' 2>/dev/null"),
                  "");
        return test::readFile(pictures / "line-fault-zplane.png");
    };
    const std::string without = paint("without");
    EXPECT_NE(without, "");
    std::filesystem::create_directories(kept.parent_path());
    test::writeFile(kept, "[impedance]\nz1-ohms=8\nk0=0.7\nzone-1-percent=30\n");
    EXPECT_EQ(paint("with"), without);
    EXPECT_EQ(test::readFile(kept), "[impedance]\nz1-ohms=8\nk0=0.7\nzone-1-percent=30\n");
}
