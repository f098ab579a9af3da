#include <ZelCommonView/containers/ExtendedExpander.h>

#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using namespace Zel;

class ExtendedExpanderTest : public testing::TestWithParam<bool> {
protected:
    void make(bool showArrow) {
        expander = std::make_unique<ExtendedExpander>(showArrow);
        expander->signal_expanded_changed().connect([this] { ++changes; });
    }

    Gtk::Widget* arrow() { return expander->expandArea.get_child(); }

    bool isContentHidden() {
        return !expander->contentFrame.get_visible() && expander->contentFrame.get_no_show_all();
    }

    bool isContentShown() {
        return expander->contentFrame.get_visible() && !expander->contentFrame.get_no_show_all();
    }

    /// Shows the expander with the pointer away from it.
    void present() {
        window.set_default_size(200, 100);
        window.add(*expander);
        window.show_all();
        test::present(window);
    }

    Gtk::Window window;
    Gtk::Label content{"content"};
    Gtk::Label label{"label"};
    std::unique_ptr<ExtendedExpander> expander;
    int changes = 0;
};

} // namespace

TEST_F(ExtendedExpanderTest, IsBuiltOfAGridWithItsStyleClasses) {
    make(false);
    expander->add(content);
    EXPECT_EQ(expander->get_child(), &expander->grid);
    EXPECT_EQ(expander->grid.get_child_at(0, 0), &expander->expandArea);
    EXPECT_EQ(expander->grid.get_child_at(0, 1), &expander->contentFrame);
    EXPECT_EQ(expander->grid.get_child_at(1, 1), &expander->contentFrame);
    EXPECT_EQ(expander->contentFrame.get_child(), &content);
    EXPECT_TRUE(expander->expandArea.get_style_context()->has_class("ExpandArea"));
    EXPECT_TRUE(expander->contentFrame.get_style_context()->has_class("ExpandAreaContainer"));
    EXPECT_TRUE(expander->arrowDownImage.get_style_context()->has_class("ArrowDownImage"));
    EXPECT_TRUE(expander->arrowRightImage.get_style_context()->has_class("ArrowRightImage"));
    EXPECT_FALSE(expander->placeholderImage.get_style_context()->has_class("ArrowRightImage"));
    EXPECT_NEAR(expander->expandArea.get_opacity(), 0.6, 0.005);
}

TEST_F(ExtendedExpanderTest, IsCollapsedWithoutAnArrowInTheBeginning) {
    make(false);
    EXPECT_FALSE(expander->get_expanded());
    EXPECT_EQ(arrow(), &expander->placeholderImage);
    EXPECT_TRUE(expander->contentFrame.get_no_show_all());
}

TEST_F(ExtendedExpanderTest, ShowsTheArrowFromTheBeginningIfAskedTo) {
    make(true);
    EXPECT_EQ(arrow(), &expander->arrowRightImage);
    EXPECT_TRUE(expander->arrowRightImage.get_visible());
    EXPECT_TRUE(isContentHidden());
}

TEST_F(ExtendedExpanderTest, WithoutContentAndArrowAClickTurnsTheValueAndReportsNothing) {
    make(false);
    expander->expandArea.set_size_request(40, 40);
    present();
    test::click(expander->expandArea);
    EXPECT_TRUE(test::waitFor([this] { return expander->get_expanded(); }));
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(arrow(), &expander->placeholderImage);
}

TEST_F(ExtendedExpanderTest, AContentBringsTheRightArrowAndStaysHidden) {
    make(false);
    expander->add(content);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(arrow(), &expander->arrowRightImage);
    EXPECT_TRUE(isContentHidden());
    expander->show_all();
    EXPECT_TRUE(isContentHidden());
}

TEST_F(ExtendedExpanderTest, ExpandedWithoutAContentShowsTheOneThatComes) {
    make(false);
    expander->set_expanded(true);
    EXPECT_EQ(changes, 0);
    expander->add(content);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(arrow(), &expander->arrowDownImage);
    EXPECT_TRUE(isContentShown());
    EXPECT_TRUE(content.get_visible());
}

TEST_F(ExtendedExpanderTest, EachSettingReportsAlsoTheSameOne) {
    make(true);
    for (const bool value : {true, true, false, false}) {
        changes = 0;
        expander->set_expanded(value);
        EXPECT_EQ(changes, 1);
        EXPECT_EQ(expander->get_expanded(), value);
        EXPECT_EQ(arrow(), value ? &expander->arrowDownImage : &expander->arrowRightImage);
        EXPECT_TRUE(arrow()->get_visible());
        EXPECT_TRUE(value ? isContentShown() : isContentHidden());
    }
}

TEST_F(ExtendedExpanderTest, RemovingTakesTheArrowAndLeavesTheFrameAsItWas) {
    make(false);
    expander->add(content);
    expander->set_expanded(true);
    changes = 0;
    expander->remove();
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(content.get_parent(), nullptr);
    EXPECT_EQ(arrow(), &expander->placeholderImage);
    EXPECT_TRUE(isContentShown());
    EXPECT_TRUE(expander->get_expanded());
}

TEST_F(ExtendedExpanderTest, TheArrowCanBeAskedForLater) {
    make(false);
    expander->showArrow(true);
    EXPECT_EQ(arrow(), &expander->arrowRightImage);
    EXPECT_EQ(changes, 1);
    expander->remove();
    EXPECT_EQ(arrow(), &expander->arrowRightImage);
    EXPECT_EQ(changes, 2);
    expander->showArrow(false);
    EXPECT_EQ(arrow(), &expander->placeholderImage);
    EXPECT_EQ(changes, 2);
}

TEST_F(ExtendedExpanderTest, ALabelReplacesTheOneBefore) {
    make(false);
    Gtk::Label other;
    expander->set_label_widget(label);
    EXPECT_EQ(expander->grid.get_child_at(1, 0), &label);
    EXPECT_TRUE(label.get_hexpand());
    expander->set_label_widget(other);
    EXPECT_EQ(expander->grid.get_child_at(1, 0), &other);
    EXPECT_EQ(label.get_parent(), nullptr);
    expander->set_label_widget(other);
    EXPECT_EQ(expander->grid.get_child_at(1, 0), &other);
}

TEST_F(ExtendedExpanderTest, ALabelMayDieFirst) {
    make(false);
    auto first = std::make_unique<Gtk::Label>("first");
    expander->set_label_widget(*first);
    first.reset();
    expander->set_label_widget(label);
    EXPECT_EQ(expander->grid.get_child_at(1, 0), &label);
}

TEST_F(ExtendedExpanderTest, OnlyTheLeftButtonOpensAndCloses) {
    make(true);
    expander->expandArea.set_size_request(40, 40);
    expander->add(content);
    present();
    test::click(expander->expandArea, 3);
    test::click(expander->expandArea, 2);
    test::settle();
    EXPECT_FALSE(expander->get_expanded());
    for (const bool isOpen : {true, false}) {
        // Not a double click, whose second press is told twice.
        test::wait(500);
        test::click(expander->expandArea);
        EXPECT_TRUE(test::waitFor([this, isOpen] { return expander->get_expanded() == isOpen; }));
        test::settle();
        EXPECT_EQ(content.get_mapped(), isOpen);
    }
}

TEST_F(ExtendedExpanderTest, TheAreaBrightensUnderThePointer) {
    make(true);
    expander->expandArea.set_size_request(40, 40);
    present();
    EXPECT_NEAR(expander->expandArea.get_opacity(), 0.6, 0.005);
    test::movePointer(expander->expandArea, 20, 20);
    EXPECT_TRUE(test::waitFor([this] { return expander->expandArea.get_opacity() == 1.0; }));
    test::movePointerAway();
    EXPECT_TRUE(test::waitFor([this] { return expander->expandArea.get_opacity() < 0.61; }));
}

TEST_F(ExtendedExpanderTest, AListenerMayDeleteIt) {
    make(true);
    expander->signal_expanded_changed().connect([this] { expander.reset(); });
    expander->set_expanded(true);
    EXPECT_EQ(expander, nullptr);
}

TEST_F(ExtendedExpanderTest, AThousandOfThemLeaveNothing) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        make(i % 2 == 0);
        expander->set_label_widget(label);
        expander->add(content);
        finalised.watch(*expander);
        finalised.watch(expander->contentFrame);
        finalised.watch(expander->placeholderImage);
    }
    expander.reset();
    EXPECT_TRUE(finalised.all());
    EXPECT_EQ(content.get_parent(), nullptr);
}
