#include <ZelCommonView/containers/ResultStateView.h>

#include "support/Finalised.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace Zel;

/// Which of the three classes the view has.
std::vector<std::string> statesOf(ResultStateView& view) {
    std::vector<std::string> found;
    for (const char* const name : {"stateOkContainer", "stateErrorContainer", "stateUndefinedContainer"})
        if (view.get_style_context()->has_class(name))
            found.emplace_back(name);
    return found;
}

} // namespace

TEST(ResultStateView, HasTheTextInTheMiddleAndTheMarkAtTheEnd) {
    ResultStateView view;
    EXPECT_FALSE(view.get_homogeneous());
    EXPECT_EQ(view.get_spacing(), 0);
    EXPECT_TRUE(view.get_visible());
    EXPECT_TRUE(view.textLabel.get_visible());
    EXPECT_EQ(view.textLabel.get_halign(), Gtk::ALIGN_CENTER);
    EXPECT_EQ(view.markFrame.get_valign(), Gtk::ALIGN_CENTER);
    EXPECT_FALSE(view.markFrame.get_hexpand());
    EXPECT_FALSE(view.markFrame.get_vexpand());
    EXPECT_TRUE(view.markFrame.get_style_context()->has_class("RoundFrame"));
    EXPECT_EQ(view.markFrame.get_child(), &view.markLabel);
    EXPECT_EQ(view.markLabel.get_text(), "?");
    EXPECT_TRUE(view.child_property_expand(view.textLabel).get_value());
    EXPECT_FALSE(view.child_property_expand(view.markFrame).get_value());
    EXPECT_FALSE(view.child_property_fill(view.markFrame).get_value());
    EXPECT_EQ(view.child_property_pack_type(view.markFrame).get_value(), Gtk::PACK_END);
    EXPECT_EQ(statesOf(view), std::vector<std::string>());
}

TEST(ResultStateView, ShowsItsText) {
    ResultStateView view;
    view.setText("Проверка завершена");
    EXPECT_EQ(view.textLabel.get_text(), "Проверка завершена");
}

TEST(ResultStateView, HidesTheMarkUntilThereIsAnExplanation) {
    ResultStateView view;
    view.show_all();
    EXPECT_FALSE(view.markFrame.get_visible());
    view.setExtendedText("phase B is open");
    EXPECT_TRUE(view.markFrame.get_visible());
    EXPECT_TRUE(view.markLabel.get_visible());
    EXPECT_EQ(view.markFrame.get_tooltip_text(), "phase B is open");
    view.setExtendedText("");
    EXPECT_FALSE(view.markFrame.get_visible());
    view.show_all();
    EXPECT_FALSE(view.markFrame.get_visible());
    view.setExtendedText("again");
    EXPECT_TRUE(view.markFrame.get_visible());
    EXPECT_FALSE(view.markFrame.get_no_show_all());
}

TEST(ResultStateView, HasExactlyTheClassOfItsState) {
    ResultStateView view;
    const Nullable<bool> values[] = {Nullable<bool>(), false, true};
    const char* const names[] = {"stateUndefinedContainer", "stateErrorContainer", "stateOkContainer"};
    for (int before = 0; before < 3; ++before)
        for (int state = 0; state < 3; ++state) {
            view.setIsValid(values[before]);
            view.setIsValid(values[state]);
            EXPECT_EQ(statesOf(view), std::vector<std::string>{names[state]});
        }
}

TEST(ResultStateView, AThousandOfThemLeaveNothing) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        ResultStateView view;
        finalised.watch(view);
        finalised.watch(view.markFrame);
    }
    EXPECT_TRUE(finalised.all());
}
