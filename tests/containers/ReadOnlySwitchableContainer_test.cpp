#include <ZelCommonView/containers/ReadOnlySwitchableContainer.h>
#include <ZelCommonView/containers/ReadOnlySwitchableContainerPresenter.h>

#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <functional>
#include <memory>
#include <vector>

namespace {

using namespace Zel;

class BoxAsView : public Gtk::Box, public IView {};

class NoWidget : public IView {};

class ReadOnlySwitchableContainerTest : public testing::Test {
protected:
    ReadOnlySwitchableContainerTest() { container.addChild(&box); }

    template <typename T, typename... TArguments>
    T& put(Gtk::Container& parent, TArguments&&... arguments) {
        auto* const widget = Gtk::make_managed<T>(std::forward<TArguments>(arguments)...);
        parent.add(*widget);
        return *widget;
    }

    BoxAsView box;
    ReadOnlySwitchableContainer container;
};

void mark(Gtk::Widget& widget, const Glib::ustring& styleClass) {
    widget.get_style_context()->add_class(styleClass);
}

} // namespace

TEST_F(ReadOnlySwitchableContainerTest, NamesItsThreeClasses) {
    EXPECT_EQ(ReadOnlySwitchableContainer::EXEMPT_CLASS, "readonly-exempt");
    EXPECT_EQ(ReadOnlySwitchableContainer::INTERACTIVE_CLASS, "readonly-interactive");
    EXPECT_EQ(ReadOnlySwitchableContainer::COLLAPSED_CLASS, "readonly-collapsed");
}

TEST_F(ReadOnlySwitchableContainerTest, LocksEveryKindOfControlAndNothingElse) {
    const std::vector<Gtk::Widget*> controls{
        &put<Gtk::Button>(box),      &put<Gtk::ToggleButton>(box), &put<Gtk::CheckButton>(box),
        &put<Gtk::RadioButton>(box), &put<Gtk::Entry>(box),        &put<Gtk::ComboBox>(box),
        &put<Gtk::SpinButton>(box),  &put<Gtk::Switch>(box),       &put<Gtk::TreeView>(box)};
    const std::vector<Gtk::Widget*> others{&box, &put<Gtk::Label>(box), &put<Gtk::Image>(box),
                                           &put<Gtk::Scale>(box), &put<Gtk::ScrolledWindow>(box)};
    for (const bool isReadOnly : {true, false}) {
        container.setIsReadOnly(isReadOnly);
        EXPECT_EQ(container.getIsReadOnly(), isReadOnly);
        for (const Gtk::Widget* const control : controls)
            EXPECT_EQ(control->get_sensitive(), !isReadOnly) << G_OBJECT_TYPE_NAME(control->gobj());
        for (const Gtk::Widget* const other : others)
            EXPECT_TRUE(other->get_sensitive()) << G_OBJECT_TYPE_NAME(other->gobj());
    }
}

TEST_F(ReadOnlySwitchableContainerTest, ALockedEntryTakesNoClick) {
    auto& button = put<Gtk::Button>(box, "press");
    int clicks = 0;
    button.signal_clicked().connect([&clicks] { ++clicks; });
    container.setIsReadOnly(true);
    Gtk::Window window;
    window.add(container);
    window.show_all();
    test::present(window);
    test::click(button);
    test::settle();
    EXPECT_EQ(clicks, 0);
    container.setIsReadOnly(false);
    test::click(button);
    EXPECT_TRUE(test::waitFor([&clicks] { return clicks == 1; }));
}

TEST_F(ReadOnlySwitchableContainerTest, TheThreeClassesDecide) {
    const struct {
        bool exempt;
        bool interactive;
        bool collapsed;
        bool isSensitive; ///< of a box with these classes while locked
        bool isVisible;
        bool isInnerSensitive;
    } cases[] = {{false, false, false, true, true, false},  {true, false, false, true, true, false},
                 {false, true, false, false, true, true},   {true, true, false, true, true, true},
                 {false, false, true, false, false, false}, {true, false, true, true, true, false},
                 {false, true, true, false, false, true},   {true, true, true, true, true, true}};

    for (const auto& test : cases) {
        auto& inner = put<Gtk::Box>(box);
        auto& entry = put<Gtk::Entry>(inner);
        if (test.exempt)
            mark(inner, "readonly-exempt");
        if (test.interactive)
            mark(inner, "readonly-interactive");
        if (test.collapsed)
            mark(inner, "readonly-collapsed");
        inner.show_all();
        container.setIsReadOnly(true);
        EXPECT_EQ(inner.get_sensitive(), test.isSensitive);
        EXPECT_EQ(inner.get_visible(), test.isVisible);
        EXPECT_EQ(inner.get_no_show_all(), !test.isVisible);
        EXPECT_EQ(entry.get_sensitive(), test.isInnerSensitive);
        box.show_all();
        EXPECT_EQ(inner.get_visible(), test.isVisible);
        container.setIsReadOnly(false);
        EXPECT_TRUE(inner.get_sensitive());
        EXPECT_TRUE(inner.get_visible());
        EXPECT_TRUE(entry.get_sensitive());
        box.remove(inner);
    }
}

TEST_F(ReadOnlySwitchableContainerTest, AnExemptButtonStaysUsable) {
    auto& button = put<Gtk::Button>(box);
    mark(button, "readonly-exempt");
    container.setIsReadOnly(true);
    EXPECT_TRUE(button.get_sensitive());
}

TEST_F(ReadOnlySwitchableContainerTest, LiftingTheLockOverwritesWhatTheApplicationSet) {
    auto& button = put<Gtk::Button>(box);
    auto& label = put<Gtk::Label>(box);
    container.setIsReadOnly(true);
    button.set_sensitive(false);
    label.set_sensitive(false);
    container.setIsReadOnly(false);
    EXPECT_TRUE(button.get_sensitive());
    EXPECT_FALSE(label.get_sensitive());
}

TEST_F(ReadOnlySwitchableContainerTest, TheSameValueDoesNotWalk) {
    auto& button = put<Gtk::Button>(box);
    container.setIsReadOnly(false);
    button.set_sensitive(false);
    container.setIsReadOnly(false);
    EXPECT_FALSE(button.get_sensitive());
    container.setIsReadOnly(true);
    button.set_sensitive(true);
    container.setIsReadOnly(true);
    EXPECT_TRUE(button.get_sensitive());
}

TEST_F(ReadOnlySwitchableContainerTest, AControlAddedAtAnyDepthArrivesLocked) {
    auto& notebook = put<Gtk::Notebook>(box);
    auto* const scrolled = Gtk::make_managed<Gtk::ScrolledWindow>();
    auto* const deep = Gtk::make_managed<Gtk::Box>();
    scrolled->add(*deep);
    notebook.append_page(*scrolled, "page");
    container.setIsReadOnly(true);
    auto& direct = put<Gtk::Entry>(*deep);
    EXPECT_FALSE(direct.get_sensitive());
    auto& added = put<Gtk::Box>(*deep);
    auto& later = put<Gtk::Entry>(added);
    EXPECT_FALSE(later.get_sensitive());
    auto* const subtree = Gtk::make_managed<Gtk::Box>();
    auto& inside = put<Gtk::Entry>(*subtree);
    EXPECT_TRUE(inside.get_sensitive());
    deep->add(*subtree);
    EXPECT_FALSE(inside.get_sensitive());
    container.setIsReadOnly(false);
    for (const Gtk::Entry* const entry : {&direct, &later, &inside})
        EXPECT_TRUE(entry->get_sensitive());
}

TEST_F(ReadOnlySwitchableContainerTest, WhatIsPackedAttachedOrAppendedArrivesLocked) {
    auto& grid = put<Gtk::Grid>(box);
    auto& notebook = put<Gtk::Notebook>(box);
    auto& overlay = put<Gtk::Overlay>(box);
    container.setIsReadOnly(true);
    Gtk::Entry packed;
    Gtk::Entry attached;
    Gtk::Entry appended;
    Gtk::Entry overlaid;
    box.pack_start(packed);
    grid.attach(attached, 0, 0, 1, 1);
    notebook.append_page(appended, "page");
    overlay.add_overlay(overlaid);
    for (const bool isReadOnly : {true, false}) {
        container.setIsReadOnly(isReadOnly);
        for (const Gtk::Entry* const entry : {&packed, &attached, &appended, &overlaid})
            EXPECT_EQ(entry->get_sensitive(), !isReadOnly);
    }
    Gtk::Entry free;
    grid.attach(free, 1, 0, 1, 1);
    EXPECT_TRUE(free.get_sensitive());
}

TEST_F(ReadOnlySwitchableContainerTest, WidgetsElsewhereAreLeftAlone) {
    Gtk::Box elsewhere;
    container.setIsReadOnly(true);
    EXPECT_TRUE(put<Gtk::Entry>(elsewhere).get_sensitive());
}

TEST_F(ReadOnlySwitchableContainerTest, InsidesOfOneControlComeBackAlsoWhenAddedWhileLocked) {
    auto& control = put<Gtk::Box>(box);
    auto& nested = put<Gtk::Box>(control);
    container.setIsReadOnly(true);
    container.setIsReadOnly(false);
    mark(control, "readonly-interactive");
    container.setIsReadOnly(true);
    auto& direct = put<Gtk::Entry>(control);
    auto& deeper = put<Gtk::Entry>(nested);
    EXPECT_FALSE(control.get_sensitive());
    EXPECT_FALSE(direct.is_sensitive());
    container.setIsReadOnly(false);
    EXPECT_TRUE(direct.is_sensitive());
    EXPECT_TRUE(deeper.is_sensitive());
}

TEST_F(ReadOnlySwitchableContainerTest, ATreeAddedWhileLockedArrivesLockedAndOneAddedAfterwardsFree) {
    container.removeChild();
    EXPECT_EQ(container.get_child(), nullptr);
    auto& entry = put<Gtk::Entry>(box);
    container.setIsReadOnly(true);
    EXPECT_TRUE(entry.get_sensitive());
    container.addChild(&box);
    EXPECT_FALSE(entry.get_sensitive());
    container.removeChild();
    container.setIsReadOnly(false);
    container.addChild(&box);
    EXPECT_TRUE(entry.get_sensitive());
}

TEST_F(ReadOnlySwitchableContainerTest, WhatWasTakenOutIsNotWatchedAnyMore) {
    container.setIsReadOnly(true);
    EXPECT_EQ(container.watchedContainers.count(&box), 1u);
    container.removeChild();
    EXPECT_EQ(container.watchedContainers.count(&box), 0u);
    EXPECT_TRUE(put<Gtk::Entry>(box).get_sensitive());
}

TEST_F(ReadOnlySwitchableContainerTest, ADeadContainerHidesNoneAtItsAddress) {
    container.setIsReadOnly(true);
    alignas(Gtk::Box) unsigned char place[sizeof(Gtk::Box)];
    for (int i = 0; i < 3; ++i) {
        auto* const inner = new (place) Gtk::Box;
        box.add(*inner);
        EXPECT_FALSE(put<Gtk::Entry>(*inner).get_sensitive()) << i;
        inner->~Box();
    }
}

TEST_F(ReadOnlySwitchableContainerTest, DeadContainersAreForgotten) {
    for (int i = 0; i < 500; ++i) {
        std::vector<std::unique_ptr<Gtk::Box>> many;
        for (int k = 0; k < 3; ++k) {
            many.push_back(std::make_unique<Gtk::Box>());
            box.add(*many.back());
        }
    }
    EXPECT_LE(container.watchedContainers.size(), 64u);
}

TEST_F(ReadOnlySwitchableContainerTest, NothingAndNoWidgetAreIgnored) {
    NoWidget noWidget;
    container.removeChild();
    container.addChild(nullptr);
    container.addChild(&noWidget);
    EXPECT_EQ(container.get_child(), nullptr);
}

TEST_F(ReadOnlySwitchableContainerTest, AFormOfFiveHundredControlsLocksAndUnlocks) {
    std::vector<Gtk::Widget*> controls;
    std::function<void(Gtk::Container&, int)> fill = [&](Gtk::Container& parent, int depth) {
        for (int i = 0; i < 7; ++i) {
            controls.push_back(&put<Gtk::Entry>(parent));
            controls.push_back(&put<Gtk::CheckButton>(parent));
            put<Gtk::Label>(parent);
        }
        if (depth == 0)
            return;
        fill(put<Gtk::Box>(parent), depth - 1);
        auto& scrolled = put<Gtk::ScrolledWindow>(parent);
        fill(put<Gtk::Box>(scrolled), depth - 1);
        auto* const page = Gtk::make_managed<Gtk::Box>();
        put<Gtk::Notebook>(parent).append_page(*page, "page");
        fill(*page, depth - 1);
    };
    container.setIsReadOnly(true);
    fill(box, 3);
    ASSERT_GE(controls.size(), 500u);
    for (const Gtk::Widget* const control : controls)
        ASSERT_FALSE(control->get_sensitive());
    for (const bool isReadOnly : {false, true, false}) {
        container.setIsReadOnly(isReadOnly);
        for (const Gtk::Widget* const control : controls)
            ASSERT_EQ(control->get_sensitive(), !isReadOnly);
    }
}

TEST(ReadOnlySwitchableContainerPresenter, PassesOnToItsView) {
    BoxAsView box;
    ReadOnlySwitchableContainerPresenter presenter;
    auto* const view = dynamic_cast<ReadOnlySwitchableContainer*>(presenter.getView());
    ASSERT_NE(view, nullptr);
    presenter.setIsReadOnly(true); // also before there is a child
    EXPECT_TRUE(view->getIsReadOnly());
    presenter.add(&box);
    EXPECT_EQ(view->get_child(), &box);
    presenter.setIsReadOnly(false);
    EXPECT_FALSE(view->getIsReadOnly());
}

TEST(ReadOnlySwitchableContainerPresenter, AThousandOfThemLeaveNothing) {
    test::Finalised finalised;
    BoxAsView box;
    for (int i = 0; i < 1000; ++i) {
        ReadOnlySwitchableContainerPresenter presenter;
        presenter.add(&box);
        finalised.watch(dynamic_cast<ReadOnlySwitchableContainer&>(*presenter.getView()));
        presenter.setIsReadOnly(i % 2 == 0);
    }
    EXPECT_TRUE(finalised.all());
    // None of the dead ones listens any more.
    auto* const entry = Gtk::make_managed<Gtk::Entry>();
    box.add(*entry);
    EXPECT_TRUE(entry->get_sensitive());
}
