// The holders of one view: ContainerView, SwitchableContainer, ScrollAreaView and its presenter, Decorator.
#include <ZelCommonView/containers/ContainerView.h>
#include <ZelCommonView/containers/Decorator.h>
#include <ZelCommonView/containers/ScrollAreaPresenter.h>
#include <ZelCommonView/containers/ScrollAreaView.h>
#include <ZelCommonView/containers/SwitchableContainer.h>

#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>

namespace {

using namespace Zel;

/// A widget with something inside, to see what is shown.
class BoxAsView : public Gtk::Box, public IView {
public:
    BoxAsView() { add(label); }

    Gtk::Label label{"inside"};
};

class NoWidget : public IView {};

} // namespace

TEST(ContainerView, ShowsOneViewAfterTheOther) {
    ContainerView container;
    EXPECT_TRUE(container.get_style_context()->has_class("ContainerView"));
    BoxAsView first;
    BoxAsView second;
    container.addChild(&first);
    EXPECT_EQ(container.get_child(), &first);
    EXPECT_TRUE(first.get_visible());
    EXPECT_TRUE(first.label.get_visible());
    container.addChild(&second);
    EXPECT_EQ(container.get_child(), &second);
    EXPECT_EQ(first.get_parent(), nullptr);
    container.removeChild();
    EXPECT_EQ(container.get_child(), nullptr);
    container.removeChild();
}

TEST(ContainerView, NothingAndNoWidgetLeaveItEmpty) {
    ContainerView container;
    BoxAsView box;
    NoWidget noWidget;
    for (IView* const view : {static_cast<IView*>(nullptr), static_cast<IView*>(&noWidget)}) {
        container.addChild(&box);
        container.addChild(view);
        EXPECT_EQ(container.get_child(), nullptr);
    }
}

TEST(ContainerView, TakesTheOldOneOutThroughTheVirtualOperation) {
    class Counting : public ContainerView {
    public:
        void removeChild() override {
            ++removals;
            ContainerView::removeChild();
        }

        int removals = 0;
    };

    Counting container;
    BoxAsView box;
    container.addChild(&box);
    EXPECT_EQ(container.removals, 1);
}

TEST(SwitchableContainer, IsAVisibleFrameOfTheClassEmpty) {
    SwitchableContainer container;
    EXPECT_TRUE(container.get_visible());
    EXPECT_TRUE(container.get_style_context()->has_class("empty"));
}

TEST(SwitchableContainer, SwapsItsContentAndKeepsItsClass) {
    SwitchableContainer container;
    BoxAsView first;
    BoxAsView second;
    container.setContent(&first);
    EXPECT_EQ(container.get_child(), &first);
    EXPECT_TRUE(first.label.get_visible());
    container.setContent(&second);
    EXPECT_EQ(container.get_child(), &second);
    EXPECT_EQ(first.get_parent(), nullptr);
    EXPECT_TRUE(container.get_style_context()->has_class("empty"));
}

TEST(SwitchableContainer, NothingAndNoWidgetLeaveAnEmptyFrame) {
    SwitchableContainer container;
    BoxAsView box;
    NoWidget noWidget;
    for (IView* const view : {static_cast<IView*>(nullptr), static_cast<IView*>(&noWidget)}) {
        container.setContent(&box);
        container.setContent(view);
        EXPECT_EQ(container.get_child(), nullptr);
        EXPECT_TRUE(container.get_visible());
    }
}

TEST(ScrollAreaView, ScrollsUpAndDownOnly) {
    ScrollAreaView area;
    Gtk::PolicyType horizontal{};
    Gtk::PolicyType vertical{};
    area.get_policy(horizontal, vertical);
    EXPECT_EQ(horizontal, Gtk::POLICY_NEVER);
    EXPECT_EQ(vertical, Gtk::POLICY_AUTOMATIC);
}

TEST(ScrollAreaView, IsAsWideAsItsContentAndLowerThanIt) {
    ScrollAreaView area;
    BoxAsView content;
    content.label.set_size_request(300, 5000);
    area.setContent(nullptr);
    NoWidget noWidget;
    area.setContent(&noWidget);
    EXPECT_EQ(area.get_child(), nullptr);
    area.setContent(&content);
    EXPECT_TRUE(content.is_ancestor(area));
    area.show_all();
    test::OffscreenHost host(area, 320, 200);
    host.picture();
    EXPECT_GE(content.get_allocated_width(), 300);
    EXPECT_GE(content.get_allocated_height(), 5000);
    EXPECT_EQ(area.get_allocated_height(), 200);
    EXPECT_EQ(area.get_hadjustment()->get_upper(), area.get_hadjustment()->get_page_size());
    EXPECT_GT(area.get_vadjustment()->get_upper(), area.get_vadjustment()->get_page_size());
}

TEST(ScrollAreaPresenter, ShowsItsContentInTheAreaThatItHandsOut) {
    ScrollAreaPresenter presenter;
    auto* const area = dynamic_cast<ScrollAreaView*>(presenter.getView());
    ASSERT_NE(area, nullptr);
    EXPECT_EQ(presenter.getView(), area);
    BoxAsView content;
    presenter.setContent(&content);
    EXPECT_TRUE(content.is_ancestor(*area));
}

TEST(Decorator, HoldsOneChild) {
    Decorator decorator;
    Gtk::Label label;
    decorator.add(label);
    EXPECT_EQ(decorator.get_child(), &label);
}

TEST(Holders, AThousandOfThemLeaveNothing) {
    test::Finalised finalised;
    BoxAsView content;
    for (int i = 0; i < 1000; ++i) {
        ContainerView container;
        container.addChild(&content);
        container.removeChild();
        SwitchableContainer switchable;
        switchable.setContent(&content);
        switchable.setContent(nullptr);
        ScrollAreaPresenter presenter;
        Decorator decorator;
        decorator.add(content);
        finalised.watch(container);
        finalised.watch(switchable);
        finalised.watch(dynamic_cast<ScrollAreaView&>(*presenter.getView()));
        finalised.watch(decorator);
    }
    EXPECT_TRUE(finalised.all());
    EXPECT_EQ(content.get_parent(), nullptr);
}

TEST(Holders, OutliveTheirContent) {
    ContainerView container;
    SwitchableContainer switchable;
    ScrollAreaPresenter presenter;
    {
        BoxAsView first;
        BoxAsView second;
        BoxAsView third;
        container.addChild(&first);
        switchable.setContent(&second);
        presenter.setContent(&third);
    }
    EXPECT_EQ(container.get_child(), nullptr);
    EXPECT_EQ(switchable.get_child(), nullptr);
}
