#include <ZelCommonView/presentation/ActionPresenter.h>

#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using namespace Zel;

Gtk::Button& buttonOf(BaseActionPresenter& presenter) {
    return dynamic_cast<Gtk::Button&>(*presenter.getView());
}

void expectClasses(const BaseActionView& view, const std::string& own) {
    for (const std::string& name : {std::string("ActionView"), std::string("readonly-collapsed"), own,
                                    std::string("recordValueMargin")})
        EXPECT_TRUE(view.get_style_context()->has_class(name)) << name;
    EXPECT_EQ(view.get_valign(), Gtk::ALIGN_CENTER);
    EXPECT_TRUE(view.get_visible());
}

} // namespace

TEST(ActionView, TheTwoActionsDifferByTheirStyleClass) {
    expectClasses(AddActionView(), "ToolAddButtonTransparent");
    expectClasses(RemoveActionView(), "ToolRemoveButtonTransparent");
    EXPECT_FALSE(AddActionView().get_style_context()->has_class("ToolRemoveButtonTransparent"));
    EXPECT_FALSE(RemoveActionView().get_style_context()->has_class("ToolAddButtonTransparent"));
}

TEST(ActionPresenter, EachMakesTheViewOfItsName) {
    AddActionPresenter add;
    RemoveActionPresenter remove;
    EXPECT_NE(dynamic_cast<AddActionView*>(add.getView()), nullptr);
    EXPECT_NE(dynamic_cast<RemoveActionView*>(remove.getView()), nullptr);
    EXPECT_EQ(add.getView(), add.getView());
}

TEST(ActionPresenter, CanBeListenedToBeforeThereIsAWidget) {
    AddActionPresenter presenter;
    int clicks = 0;
    presenter.signalClicked.connect([&clicks] { ++clicks; });
    EXPECT_EQ(presenter.view, nullptr);
    buttonOf(presenter).clicked();
    EXPECT_EQ(clicks, 1);
}

TEST(ActionPresenter, AClickWithoutAListenerDoesNothing) {
    RemoveActionPresenter presenter;
    EXPECT_NO_THROW(buttonOf(presenter).clicked());
}

TEST(ActionPresenter, PassesARealClickOnOnce) {
    AddActionPresenter presenter;
    int clicks = 0;
    presenter.signalClicked.connect([&clicks] { ++clicks; });
    Gtk::Window window;
    window.set_default_size(100, 60);
    window.add(buttonOf(presenter));
    test::present(window);
    test::click(buttonOf(presenter));
    EXPECT_TRUE(test::waitFor([&clicks] { return clicks == 1; }));
}

TEST(ActionPresenter, AListenerMayDeleteIt) {
    auto presenter = std::make_unique<AddActionPresenter>();
    presenter->signalClicked.connect([&presenter] { presenter.reset(); });
    buttonOf(*presenter).clicked();
    EXPECT_EQ(presenter, nullptr);
}

TEST(ActionPresenter, ItsWidgetEndsWithIt) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        RemoveActionPresenter presenter;
        finalised.watch(buttonOf(presenter));
    }
    EXPECT_TRUE(finalised.all());
}
