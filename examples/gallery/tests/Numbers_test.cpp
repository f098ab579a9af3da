// What the entries of the page of numbers do.
#include "Pages.h"
#include "Search.h"

#include "support/Hands.h"

#include <ZelCommonView/entries/HexEntry.h>
#include <ZelCommonView/entries/NumericEntry.h>

#include <gtest/gtest.h>

namespace {

struct Numbers : testing::Test {
    std::string log() { return test::findAll<Gtk::TextView>(*widget).front()->get_buffer()->get_text(); }

    /// The last line of the log.
    std::string report() {
        const std::string text = log();
        return text.substr(text.rfind('\n', text.size() - 2) + 1);
    }

    std::unique_ptr<Gtk::Widget> widget = gallery::findPage("numbers")->create();
    test::OffscreenHost host{*widget, 800, 500};
    Zel::NumericEntry& number = *test::findAll<Zel::NumericEntry>(*widget).front();
    Zel::HexEntry& address = *test::findAll<Zel::HexEntry>(*widget).front();
};

} // namespace

TEST_F(Numbers, ShowTheDecimalsOfTheStepOnlyIfTheyShould) {
    EXPECT_EQ(number.get_text(), "12.50");
    test::findLabelled<Gtk::CheckButton>(*widget, "with the decimals of the step")->set_active(false);
    EXPECT_EQ(number.get_text(), "12.5");
    EXPECT_EQ(address.get_text(), "1A2B");
}

TEST_F(Numbers, TakeTheChosenRange) {
    auto& range = *test::findAll<Gtk::ComboBoxText>(*widget).front();
    range.set_active(2);
    EXPECT_EQ(number.getValueRange(), Zel::NumericRange(0, 999, 1));
    EXPECT_EQ(number.getScrollStep(), 10.0);
    number.set_text("12");
    number.set_text("12.5");
    EXPECT_EQ(number.get_text(), "12");
}

TEST_F(Numbers, AreWrittenDownAndPutRightBeyondTheirLimits) {
    number.set_text("42");
    number.signalValueChanged().emit(42);
    EXPECT_EQ(report(), "number: 42\n");
    number.set_text("500");
    number.signalValueChanged().emit(500);
    EXPECT_EQ(report(), "number: 500, put right to 100\n");
    EXPECT_EQ(number.getValue(), 100.0);
    address.signalValueChanged().emit(255);
    EXPECT_EQ(report(), "address: 255\n");
}

TEST_F(Numbers, AreSetToZeroByTheMenuOfTheRightButton) {
    auto& item = dynamic_cast<Gtk::MenuItem&>(*number.getCustomMenu()->get_children().front());
    item.activate();
    EXPECT_EQ(number.getValue(), 0.0);
}
