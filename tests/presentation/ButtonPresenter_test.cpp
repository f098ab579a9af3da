#include <ZelCommonView/presentation/ButtonPresenter.h>

#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using namespace Zel;

ButtonView& viewOf(ButtonPresenter& presenter) {
    return dynamic_cast<ButtonView&>(*presenter.getView());
}

} // namespace

TEST(ButtonPresenter, HasItsViewFromTheBeginning) {
    ButtonPresenter presenter;
    EXPECT_NE(presenter.view, nullptr);
    EXPECT_EQ(presenter.getView(), presenter.view.get());
    EXPECT_TRUE(viewOf(presenter).get_visible());
}

TEST(ButtonPresenter, SetsTheTitle) {
    ButtonPresenter presenter;
    presenter.getView()->setTitle("Измерить");
    EXPECT_EQ(viewOf(presenter).get_label(), "Измерить");
}

TEST(ButtonPresenter, StyleClassesAddUp) {
    ButtonPresenter presenter;
    presenter.getView()->setStyle("one");
    presenter.getView()->setStyle("two");
    EXPECT_TRUE(viewOf(presenter).get_style_context()->has_class("one"));
    EXPECT_TRUE(viewOf(presenter).get_style_context()->has_class("two"));
}

TEST(ButtonPresenter, PassesARealClickOnOnce) {
    ButtonPresenter presenter;
    int clicks = 0;
    presenter.signalClicked.connect([&clicks] { ++clicks; });
    Gtk::Window window;
    window.set_default_size(100, 60);
    window.add(viewOf(presenter));
    test::present(window);
    test::click(viewOf(presenter));
    EXPECT_TRUE(test::waitFor([&clicks] { return clicks == 1; }));
}

TEST(ButtonPresenter, AClickWithoutAListenerDoesNothing) {
    ButtonPresenter presenter;
    EXPECT_NO_THROW(viewOf(presenter).clicked());
}

TEST(ButtonPresenter, AListenerMayDeleteIt) {
    auto presenter = std::make_unique<ButtonPresenter>();
    presenter->signalClicked.connect([&presenter] { presenter.reset(); });
    viewOf(*presenter).clicked();
    EXPECT_EQ(presenter, nullptr);
}

TEST(ButtonPresenter, ItsWidgetEndsWithIt) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        ButtonPresenter presenter;
        finalised.watch(viewOf(presenter));
    }
    EXPECT_TRUE(finalised.all());
}
