// Items and their manager.
#include <ZelCommonView/collections/SelectionManagerView.h>
#include <ZelCommonView/collections/SelectionView.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>

namespace {

using namespace Zel;

class BoxAsView : public Gtk::Box, public IView {};

class ButtonAsView : public Gtk::Button, public IView {};

class NoWidget : public IView {};

class Context : public IPresenter {
public:
    IView* getView() override { return nullptr; }
};

/// A manager over a box with items, in an own window without the screen, in which they are mapped.
class SelectionTest : public testing::Test {
protected:
    SelectionTest() {
        manager->setContent(&box);
        manager->signalSelectionChanged().connect([this] { ++managerChanges; });
        window.add(*manager);
        window.show_all();
    }

    SelectionView& add(Gtk::Container& parent) {
        items.push_back(std::make_unique<SelectionView>(true));
        SelectionView& item = *items.back();
        item.signalSelectionChanged().connect([this] { ++itemChanges; });
        parent.add(item);
        item.show_all();
        return item;
    }

    SelectionView& add() { return add(box); }

    static bool isMarked(SelectionView& item) { return item.get_style_context()->has_class("Selected"); }

    /// The numbers of the items that look and say they are selected; they have to agree with the manager.
    std::vector<std::size_t> selected() {
        std::vector<std::size_t> found;
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (!items[i])
                continue;
            EXPECT_EQ(isMarked(*items[i]), items[i]->getIsSelected()) << i;
            EXPECT_EQ(manager->getSelectedView() == items[i].get(), items[i]->getIsSelected()) << i;
            if (items[i]->getIsSelected())
                found.push_back(i);
        }
        return found;
    }

    Gtk::OffscreenWindow window;
    BoxAsView box;
    std::vector<std::unique_ptr<SelectionView>> items;
    std::unique_ptr<SelectionManagerView> manager = std::make_unique<SelectionManagerView>();
    int managerChanges = 0;
    int itemChanges = 0;
};

using Numbers = std::vector<std::size_t>;

} // namespace

TEST(SelectionView, IsAFramedContentWithALayerIfThatIsNotInteractive) {
    for (const bool isInteractive : {true, false}) {
        SelectionView item(isInteractive);
        EXPECT_TRUE(item.get_style_context()->has_class("SelectionView"));
        EXPECT_TRUE(item.frame.get_style_context()->has_class("SelectionFrame"));
        EXPECT_TRUE(item.frame.get_hexpand());
        EXPECT_EQ(item.get_child(), &item.frame);
        EXPECT_EQ(item.frame.get_child(), &item.contentBox);
        EXPECT_EQ(item.eventLayer == nullptr, isInteractive);
        EXPECT_TRUE(isInteractive || item.eventLayer->get_parent() == &item);
        EXPECT_FALSE(item.getIsSelected());
        EXPECT_EQ(item.getContext(), nullptr);
    }
}

TEST(SelectionView, KeepsItsContextAndShowsItsContent) {
    SelectionView item(true);
    Context context;
    NoWidget noWidget;
    BoxAsView content;
    item.setContext(&context);
    EXPECT_EQ(item.getContext(), &context);
    item.setContent(nullptr);
    item.setContent(&noWidget);
    EXPECT_EQ(item.contentBox.get_child(), nullptr);
    item.setContent(&content);
    EXPECT_EQ(item.contentBox.get_child(), &content);
    EXPECT_TRUE(content.get_style_context()->has_class("SelectionContent"));
}

TEST(SelectionView, OutsideAManagerNothingIsSelected) {
    SelectionView item(true);
    int changes = 0;
    item.signalSelectionChanged().connect([&changes] { ++changes; });
    item.setIsSelected(true);
    EXPECT_FALSE(item.getIsSelected());
    EXPECT_EQ(changes, 0);
}

TEST(SelectionManagerView, IgnoresWhatIsNoWidget) {
    SelectionManagerView manager;
    NoWidget noWidget;
    manager.setContent(nullptr);
    manager.setContent(&noWidget);
    EXPECT_EQ(manager.get_child(), nullptr);
    EXPECT_TRUE(manager.get_style_context()->has_class("SelectionManagerView"));
    EXPECT_EQ(manager.getSelectedItem(), nullptr);
    EXPECT_EQ(manager.getSelectedView(), nullptr);
}

TEST(GtkWidgetHelper, FindsChildrenBehindTheirParents) {
    Gtk::Box box;
    SelectionView outer(true);
    SelectionView inner(true);
    Gtk::Box between;
    BoxAsView nested;
    SelectionView last(true);
    box.add(outer);
    outer.setContent(&nested);
    nested.add(inner);
    box.add(between);
    between.add(last);
    std::vector<ISelectionView*> found;
    GtkWidgetHelper::findChildrens<ISelectionView>(nullptr, found);
    EXPECT_TRUE(found.empty());
    GtkWidgetHelper::findChildrens<ISelectionView>(&box, found);
    EXPECT_EQ(found, (std::vector<ISelectionView*>{&outer, &inner, &last}));
    GtkWidgetHelper::findChildrens<ISelectionView>(&last, found);
    EXPECT_EQ(found.size(), 4u);
}

TEST_F(SelectionTest, AtMostOneIsSelected) {
    add();
    auto* const nested = Gtk::make_managed<Gtk::Box>();
    box.add(*nested);
    add(*nested);
    Context context;
    items[1]->setContext(&context);
    EXPECT_EQ(selected(), Numbers());
    items[0]->setIsSelected(true);
    EXPECT_EQ(selected(), Numbers{0});
    EXPECT_EQ(managerChanges, 1);
    EXPECT_EQ(itemChanges, 1);
    EXPECT_EQ(manager->getSelectedItem(), nullptr);
    items[1]->setIsSelected(true);
    EXPECT_EQ(selected(), Numbers{1});
    EXPECT_EQ(managerChanges, 2);
    EXPECT_EQ(itemChanges, 3);
    EXPECT_EQ(manager->getSelectedItem(), &context);
}

TEST_F(SelectionTest, TheOldItemReportsBeforeTheManagerAndThatBeforeTheNewOne) {
    add();
    add();
    items[0]->setIsSelected(true);
    std::string order;
    items[0]->signalSelectionChanged().connect([&order] { order += "old "; });
    manager->signalSelectionChanged().connect([&order] { order += "manager "; });
    items[1]->signalSelectionChanged().connect([&order] { order += "new "; });
    items[1]->setIsSelected(true);
    EXPECT_EQ(order, "old manager new ");
}

TEST_F(SelectionTest, TheSelectedOneCantBeUnselectedFromItsSide) {
    add();
    items[0]->setIsSelected(true);
    itemChanges = managerChanges = 0;
    items[0]->setIsSelected(false);
    items[0]->setIsSelected(true);
    EXPECT_EQ(selected(), Numbers{0});
    EXPECT_EQ(itemChanges + managerChanges, 0);
}

TEST_F(SelectionTest, TheManagerCanTakeTheSelectionAway) {
    add();
    items[0]->setIsSelected(true);
    manager->setSelectedView(nullptr);
    EXPECT_EQ(selected(), Numbers());
    EXPECT_EQ(managerChanges, 2);
    manager->setSelectedView(nullptr);
    EXPECT_EQ(managerChanges, 2);
}

TEST_F(SelectionTest, AutoselectTakesTheFirstOne) {
    manager->setAutoselect(true);
    EXPECT_EQ(selected(), Numbers());
    add();
    EXPECT_EQ(selected(), Numbers{0}); // when it was mapped
    add();
    EXPECT_EQ(selected(), Numbers{0});
}

TEST_F(SelectionTest, SwitchingAutoselectOnTakesTheFirstOneAlsoFromAnother) {
    add();
    add();
    items[1]->setIsSelected(true);
    manager->setAutoselect(true);
    EXPECT_EQ(selected(), Numbers{0});
    items[1]->setIsSelected(true);
    manager->setAutoselect(true);
    EXPECT_EQ(selected(), Numbers{1});
    manager->setAutoselect(false);
    EXPECT_EQ(selected(), Numbers{1});
}

TEST_F(SelectionTest, UpdatingTheStateSelectsOnlyIfNothingIs) {
    add();
    add();
    manager->updateState();
    EXPECT_EQ(selected(), Numbers());
    manager->setAutoselect(true);
    manager->updateState();
    EXPECT_EQ(selected(), Numbers{0});
    items[1]->setIsSelected(true);
    manager->updateState();
    EXPECT_EQ(selected(), Numbers{1});
}

TEST_F(SelectionTest, HidingMovesTheSelectionToTheNextAndAtTheEndToTheOneBefore) {
    for (int i = 0; i < 3; ++i)
        add();
    manager->setAutoselect(true);
    items[1]->setIsSelected(true);
    items[1]->hide();
    EXPECT_EQ(selected(), Numbers{2});
    items[2]->hide();
    // Also to one that is hidden, which is meant.
    EXPECT_EQ(selected(), Numbers{1});
    items[0]->setIsSelected(true);
    items[0]->hide();
    EXPECT_EQ(selected(), Numbers{1});
}

TEST_F(SelectionTest, HidingTheOnlyOneLeavesNothing) {
    add();
    manager->setAutoselect(true);
    items[0]->hide();
    EXPECT_EQ(selected(), Numbers());
    items[0]->show();
    EXPECT_EQ(selected(), Numbers{0});
}

TEST_F(SelectionTest, WithoutAutoselectHidingLeavesNothing) {
    add();
    add();
    items[0]->setIsSelected(true);
    items[0]->hide();
    EXPECT_EQ(selected(), Numbers());
    EXPECT_EQ(managerChanges, 2);
}

TEST_F(SelectionTest, HidingTheManagerLeavesNothingAndShowingItTakesTheFirst) {
    add();
    add();
    manager->setAutoselect(true);
    items[1]->setIsSelected(true);
    manager->hide();
    EXPECT_EQ(selected(), Numbers());
    manager->show();
    EXPECT_EQ(selected(), Numbers{0});
}

TEST_F(SelectionTest, ADyingItemHandsTheSelectionOn) {
    for (int i = 0; i < 3; ++i)
        add();
    manager->setAutoselect(true);
    items[1]->setIsSelected(true);
    managerChanges = itemChanges = 0;
    items[1].reset();
    EXPECT_EQ(selected(), Numbers{2});
    EXPECT_EQ(managerChanges, 2); // for the next one and for the one that went
    EXPECT_EQ(itemChanges, 1);    // nothing of the dying one
    items[2].reset();
    EXPECT_EQ(selected(), Numbers{0});
    items[0].reset();
    EXPECT_EQ(manager->getSelectedView(), nullptr);
    EXPECT_EQ(manager->getSelectedItem(), nullptr);
}

TEST_F(SelectionTest, ItemsOutliveTheirManagerAndFindAnother) {
    add();
    add();
    items[0]->setIsSelected(true);
    managerChanges = itemChanges = 0;
    manager.reset();
    EXPECT_FALSE(items[0]->getIsSelected());
    EXPECT_FALSE(isMarked(*items[0]));
    EXPECT_EQ(managerChanges + itemChanges, 0);
    items[1]->setIsSelected(true);
    EXPECT_FALSE(items[1]->getIsSelected());
    manager = std::make_unique<SelectionManagerView>();
    manager->setContent(&box);
    items[1]->setIsSelected(true);
    EXPECT_EQ(selected(), Numbers{1});
}

TEST_F(SelectionTest, AListenerMaySelectAnother) {
    for (int i = 0; i < 3; ++i)
        add();
    items[0]->setIsSelected(true);
    items[0]->signalSelectionChanged().connect([this] { items[2]->setIsSelected(true); });
    items[1]->setIsSelected(true);
    EXPECT_EQ(selected(), Numbers{2});
}

TEST_F(SelectionTest, AListenerMayDeleteItemsAndManager) {
    add();
    add();
    items[0]->setIsSelected(true);
    items[0]->signalSelectionChanged().connect([this] { items[1].reset(); });
    items[1]->setIsSelected(true);
    EXPECT_EQ(manager->getSelectedView(), nullptr);
    items[0]->setIsSelected(true);
    EXPECT_EQ(selected(), Numbers{0});
    SelectionView& other = add();
    other.signalSelectionChanged().connect([this] { items.clear(); });
    other.setIsSelected(true);
    EXPECT_EQ(manager->getSelectedView(), nullptr);
    add();
    manager->signalSelectionChanged().connect([this] { manager.reset(); });
    items[0]->setIsSelected(true);
    EXPECT_EQ(manager, nullptr);
    EXPECT_FALSE(items[0]->getIsSelected());
}

TEST(Selection, ManyItemsAndManagersLeaveNothing) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        auto manager = std::make_unique<SelectionManagerView>();
        auto item = std::make_unique<SelectionView>(i % 3 == 0);
        BoxAsView box;
        manager->setContent(&box);
        box.add(*item);
        finalised.watch(*manager);
        finalised.watch(*item);
        item->setIsSelected(true);
        if (i % 2)
            manager.reset();
        item.reset();
    }
    EXPECT_TRUE(finalised.all());
}

namespace {

/// Two items with buttons inside, in a window on the screen.
class SelectionClicks : public testing::TestWithParam<bool> {
protected:
    SelectionClicks() {
        manager.setContent(&box);
        for (int i = 0; i < 2; ++i) {
            items[i].setContent(&buttons[i]);
            buttons[i].set_label("inside");
            buttons[i].set_size_request(80, 30);
            buttons[i].set_margin_end(60);
            buttons[i].signal_clicked().connect([this] { ++clicks; });
            box.add(items[i]);
        }
        box.add_events(Gdk::BUTTON_PRESS_MASK);
        outer.add(manager);
        outer.signal_button_press_event().connect(
            [this](GdkEventButton*) {
                ++passedOn;
                return false;
            },
            false);
        window.add(outer);
        window.show_all();
        test::present(window);
    }

    Gtk::Window window;
    Gtk::EventBox outer;
    BoxAsView box;
    ButtonAsView buttons[2];
    SelectionView items[2] = {SelectionView(GetParam()), SelectionView(GetParam())};
    SelectionManagerView manager;
    int clicks = 0;
    int passedOn = 0;
};

INSTANTIATE_TEST_SUITE_P(Interactive, SelectionClicks, testing::Bool());

} // namespace

TEST_P(SelectionClicks, ALeftClickSelects) {
    const int x = items[1].get_allocated_width() - 20;
    test::click(items[1], x, 15);
    EXPECT_TRUE(test::waitFor([this] { return items[1].getIsSelected(); }));
    test::settle();
    EXPECT_EQ(passedOn, 1);
    int changes = 0;
    manager.signalSelectionChanged().connect([&changes] { ++changes; });
    test::wait(500); // not a double click
    test::click(items[1], x, 15);
    test::settle();
    EXPECT_EQ(changes, 0);
}

TEST_P(SelectionClicks, ARightClickSelectsNothingAndGoesOn) {
    test::click(items[0], items[0].get_allocated_width() - 20, 15, 3);
    EXPECT_TRUE(test::waitFor([this] { return passedOn == 1; }));
    EXPECT_FALSE(items[0].getIsSelected());
}

TEST_P(SelectionClicks, AButtonInsideIsPressedOnlyIfTheContentIsInteractive) {
    test::click(buttons[0]);
    if (GetParam()) {
        EXPECT_TRUE(test::waitFor([this] { return clicks == 1; }));
        test::settle();
        EXPECT_FALSE(items[0].getIsSelected());
    } else {
        EXPECT_TRUE(test::waitFor([this] { return items[0].getIsSelected(); }));
        test::settle();
        EXPECT_EQ(clicks, 0);
    }
}
