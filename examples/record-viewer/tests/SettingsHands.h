#pragma once

#include "Circuit.h"
#include "support/Answer.h"
#include "support/Hands.h"
#include "support/Keyboard.h"
#include "support/TemporaryFolder.h"
#include "view/MainWindow.h"

#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/plot/SeriesTimeCounter.h>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace test {

/// 30 volts drive 10 amperes through phase A alone, at 60 degrees: 3 ohms, and 2 with a k0 of a half.
inline record::Record soloRecord() {
    return makeRecord({test::sine(30, 60), test::sine(30, -60), test::sine(30, 180)},
                      {test::sine(10, 0), 0, 0});
}

/// The viewer's window with its dialog, used by the pointer and the keys.
class SettingsHands : public testing::Test {
protected:
    SettingsHands() { _make(); }

    ~SettingsHands() override {
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

    void tick(viewer::Group group) {
        Gtk::CheckButton& check = form().givenButtons[static_cast<std::size_t>(group)];
        const bool before = check.get_active();
        test::click(check, 8, check.get_allocated_height() / 2);
        EXPECT_TRUE(test::waitFor([&] { return check.get_active() != before; }));
        test::settle();
    }

    /// Clicks into the entry, marks all of it and types over it.
    void enter(viewer::Field field, const std::string& text) {
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
    std::vector<viewer::Field> marked() {
        std::vector<viewer::Field> all;
        for (const viewer::Field field : viewer::allFields)
            if (form()._entryOf(field).get_style_context()->has_class("error"))
                all.push_back(field);
        return all;
    }

    void expectVeto(viewer::Field field, const std::string& sentence) {
        ASSERT_NE(dialog(), nullptr) << "the dialog has closed";
        EXPECT_TRUE(dialog()->get_mapped());
        EXPECT_EQ(marked(), std::vector<viewer::Field>{field});
        EXPECT_TRUE(form().warning.get_mapped());
        EXPECT_EQ(form().sentence.get_text(), sentence);
        EXPECT_TRUE(form()._entryOf(field).has_focus());
    }

    void expectNoVeto() {
        EXPECT_TRUE(marked().empty());
        EXPECT_FALSE(form().warning.get_mapped());
        EXPECT_EQ(form().sentence.get_text(), "");
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
    std::unique_ptr<viewer::MainWindow> window;

private:
    void _make() {
        window.reset();
        window = std::make_unique<viewer::MainWindow>("test", file);
    }
};

} // namespace test
