#include <ZelCommonView/collections/SelectionManagerPresenter.h>
#include <ZelCommonView/collections/SelectionPresenter.h>

#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>

namespace {

using namespace Zel;

class BoxAsView : public Gtk::Box, public IView {};

class BoxPresenter : public IPresenter {
public:
    IView* getView() override { return &box; }

    BoxAsView box;
};

class SelectionPresentersTest : public testing::Test {
protected:
    SelectionPresentersTest() {
        auto child = std::make_unique<BoxPresenter>();
        box = &child->box;
        manager->setChild(std::move(child));
        manager->signalSelectionChanged.connect([this] { ++managerChanges; });
    }

    SelectionPresenter& make() {
        items.push_back(std::make_unique<SelectionPresenter>(object, std::make_unique<BoxPresenter>(), true));
        items.back()->signalSelectionChanged.connect([this] { ++itemChanges; });
        return *items.back();
    }

    static Gtk::Widget& widgetOf(IPresenter& presenter) {
        return dynamic_cast<Gtk::Widget&>(*presenter.getView());
    }

    void show() {
        window.add(widgetOf(*manager));
        window.show_all();
    }

    Object* const object = reinterpret_cast<Object*>(&managerChanges); // only handed back
    Gtk::OffscreenWindow window;
    BoxAsView* box = nullptr;
    std::vector<std::unique_ptr<SelectionPresenter>> items;
    std::unique_ptr<SelectionManagerPresenter> manager = std::make_unique<SelectionManagerPresenter>();
    int managerChanges = 0;
    int itemChanges = 0;
};

} // namespace

TEST_F(SelectionPresentersTest, AnItemHandsOutItsContextAndContent) {
    SelectionPresenter& item = make();
    EXPECT_EQ(item.getContext(), object);
    auto& content = dynamic_cast<BoxPresenter&>(*item.getContentPresenter());
    auto& view = dynamic_cast<SelectionView&>(*item.getView());
    EXPECT_EQ(view.getContext(), &item);
    EXPECT_EQ(view.contentBox.get_child(), &content.box);
    EXPECT_EQ(view.eventLayer, nullptr);
    SelectionPresenter closed(nullptr, std::make_unique<BoxPresenter>(), false);
    EXPECT_NE(dynamic_cast<SelectionView&>(*closed.getView()).eventLayer, nullptr);
    SelectionPresenter empty(nullptr, nullptr, true);
    EXPECT_EQ(dynamic_cast<SelectionView&>(*empty.getView()).contentBox.get_child(), nullptr);
}

TEST_F(SelectionPresentersTest, TheManagerShowsItsChild) {
    auto& view = dynamic_cast<SelectionManagerView&>(*manager->getView());
    EXPECT_EQ(view.get_child(), box);
    EXPECT_FALSE(view.autoselect);
}

TEST_F(SelectionPresentersTest, TheManagerTakesAContentAndMakesItsView) {
    SelectionManagerPresenter other;
    BoxAsView content;
    other.setContent(&content);
    EXPECT_EQ(content.get_parent(), dynamic_cast<SelectionManagerView*>(other.getView()));
}

TEST_F(SelectionPresentersTest, BeforeThereAreViewsNothingIsSelected) {
    SelectionPresenter& item = make();
    item.setIsSelected(true);
    EXPECT_FALSE(item.getIsSelected());
    EXPECT_EQ(manager->getSelectedItem(), nullptr);
    EXPECT_TRUE(item.pendingSelected);
}

TEST_F(SelectionPresentersTest, SelectsAndReports) {
    SelectionPresenter& item = make();
    box->add(widgetOf(item));
    show();
    item.setIsSelected(true);
    EXPECT_TRUE(item.getIsSelected());
    EXPECT_EQ(manager->getSelectedItem(), &item);
    EXPECT_EQ(managerChanges, 1);
    EXPECT_EQ(itemChanges, 1);
}

TEST_F(SelectionPresentersTest, APendingSelectionWaitsForAManager) {
    SelectionPresenter& item = make();
    SelectionPresenter& other = make();
    item.setIsSelected(true);
    Gtk::OffscreenWindow elsewhere;
    elsewhere.add(widgetOf(item)); // makes the view, under no manager
    elsewhere.show_all();
    EXPECT_FALSE(item.getIsSelected());
    elsewhere.remove();
    box->add(widgetOf(item));
    box->add(widgetOf(other));
    show();
    EXPECT_TRUE(item.getIsSelected());
    EXPECT_EQ(manager->getSelectedItem(), &item);
    // Only once.
    other.setIsSelected(true);
    widgetOf(item).hide();
    widgetOf(item).show();
    EXPECT_TRUE(other.getIsSelected());
    EXPECT_FALSE(item.getIsSelected());
}

TEST_F(SelectionPresentersTest, APendingSelectionCanBeTakenBack) {
    SelectionPresenter& item = make();
    item.setIsSelected(true);
    box->add(widgetOf(item));
    item.setIsSelected(false);
    show();
    EXPECT_FALSE(item.getIsSelected());
}

TEST_F(SelectionPresentersTest, AutoselectCountsOnlyBeforeThereIsAView) {
    SelectionPresenter& item = make();
    box->add(widgetOf(item));
    manager->setAutoselect(true);
    show();
    EXPECT_TRUE(item.getIsSelected());
    manager->setAutoselect(false);
    EXPECT_TRUE(dynamic_cast<SelectionManagerView&>(*manager->getView()).autoselect);
}

TEST_F(SelectionPresentersTest, ItemsAndManagersMayDieInAnyOrder) {
    for (int order = 0; order < 3; ++order) {
        SelectionManagerPresenter own;
        auto child = std::make_unique<BoxPresenter>();
        Gtk::Box& place = child->box;
        own.setChild(std::move(child));
        own.setAutoselect(true);
        auto first = std::make_unique<SelectionPresenter>(nullptr, std::make_unique<BoxPresenter>(), true);
        auto second = std::make_unique<SelectionPresenter>(nullptr, std::make_unique<BoxPresenter>(), true);
        place.add(widgetOf(*first));
        place.add(widgetOf(*second));
        Gtk::OffscreenWindow host;
        host.add(widgetOf(own));
        host.show_all();
        ASSERT_TRUE(first->getIsSelected());
        if (order == 0) {
            first.reset();
            EXPECT_EQ(own.getSelectedItem(), second.get());
        } else if (order == 1) {
            own.setChild(nullptr); // the place of the items goes
            EXPECT_EQ(first->getIsSelected() + second->getIsSelected(), 1);
        }
    }
}

TEST_F(SelectionPresentersTest, AListenerMayDeleteThePresenter) {
    SelectionPresenter& item = make();
    box->add(widgetOf(item));
    show();
    item.signalSelectionChanged.connect([this] { items.clear(); });
    item.setIsSelected(true);
    EXPECT_TRUE(items.empty());
    EXPECT_EQ(manager->getSelectedItem(), nullptr);
    manager->signalSelectionChanged.connect([this] { manager.reset(); });
    SelectionPresenter& other = make();
    box->add(widgetOf(other));
    other.setIsSelected(true);
    EXPECT_EQ(manager, nullptr);
}

TEST_F(SelectionPresentersTest, ThousandsOfThemLeaveNothing) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        SelectionPresenter item(nullptr, std::make_unique<BoxPresenter>(), i % 2 == 0);
        finalised.watch(widgetOf(item));
        item.setIsSelected(true);
        SelectionManagerPresenter own;
        finalised.watch(widgetOf(own));
    }
    EXPECT_TRUE(finalised.all());
}
