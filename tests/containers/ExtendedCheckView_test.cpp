#include <ZelCommonView/containers/ExtendedCheckView.h>

#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

using namespace Zel;

class ExtendedCheckViewTest : public testing::Test {
protected:
    ExtendedCheckViewTest() {
        view->signalToggled().connect([this](bool isActive) { reported.push_back(isActive); });
    }

    std::unique_ptr<ExtendedCheckView> view = std::make_unique<ExtendedCheckView>();
    std::vector<bool> reported;
};

Nullable<bool> emptyWithAValueOfTrue() {
    Nullable<bool> value = true;
    value.hasValue = false;
    return value;
}

} // namespace

TEST_F(ExtendedCheckViewTest, HoldsACheckInTheMiddle) {
    EXPECT_EQ(view->get_child(), &view->checkButton);
    EXPECT_EQ(view->checkButton.get_halign(), Gtk::ALIGN_CENTER);
    EXPECT_TRUE(view->get_style_context()->has_class("ExtendedCheckView"));
    EXPECT_FALSE(view->checkButton.get_active());
    EXPECT_FALSE(view->checkButton.get_inconsistent());
}

TEST_F(ExtendedCheckViewTest, ShowsEachOfTheThreeValuesAfterEachOther) {
    const Nullable<bool> values[] = {true, false, Nullable<bool>(), emptyWithAValueOfTrue()};
    for (const Nullable<bool>& before : values)
        for (const Nullable<bool>& value : values) {
            view->setIsEvaluated(before);
            reported.clear();
            view->setIsEvaluated(value);
            const bool wasActive = before.hasValue && before.value;
            const bool isActive = value.hasValue && value.value;
            EXPECT_EQ(view->checkButton.get_active(), isActive);
            EXPECT_EQ(view->checkButton.get_inconsistent(), !value.hasValue);
            EXPECT_EQ(reported, wasActive == isActive ? std::vector<bool>() : std::vector<bool>{isActive});
        }
}

TEST_F(ExtendedCheckViewTest, TheEmptyValueOverAnActiveCheckReportsFalseAndStaysInconsistent) {
    view->setIsEvaluated(true);
    view->setIsEvaluated({});
    EXPECT_EQ(reported, (std::vector<bool>{true, false}));
    EXPECT_TRUE(view->checkButton.get_inconsistent());
}

TEST_F(ExtendedCheckViewTest, AClickReportsAndLeavesTheInconsistentMark) {
    view->setIsEvaluated({});
    Gtk::Window window;
    window.add(*view);
    window.show_all();
    test::present(window);
    test::click(view->checkButton);
    ASSERT_TRUE(test::waitFor([this] { return !reported.empty(); }));
    EXPECT_EQ(reported, std::vector<bool>{true});
    EXPECT_TRUE(view->checkButton.get_inconsistent());
    test::click(view->checkButton);
    ASSERT_TRUE(test::waitFor([this] { return reported.size() == 2; }));
    EXPECT_EQ(reported, (std::vector<bool>{true, false}));
}

TEST_F(ExtendedCheckViewTest, AListenerMayDeleteIt) {
    view->signalToggled().connect([this](bool) { view.reset(); });
    view->setIsEvaluated(true);
    EXPECT_EQ(view, nullptr);
}

TEST(ExtendedCheckView, AThousandOfThemLeaveNothing) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        ExtendedCheckView view;
        finalised.watch(view);
        finalised.watch(view.checkButton);
    }
    EXPECT_TRUE(finalised.all());
}
