#include <ZelCommonView/windows/PanelManagerPresenter.h>

#include "PanelTree.h"
#include "support/Finalised.h"
#include "support/Hands.h"
#include "support/LogWatch.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>

namespace {

using namespace Zel;
using Zel::PanelView;

class LabelAsView : public Gtk::Label, public IView {};

/// A child that has a button for the title bar.
class ContributingView : public Gtk::Label, public IView, public IWidget {
public:
    Gtk::Widget* getIcons() override { return &button; }

    Gtk::Button button{"pin"};
};

class PanelManagerTest : public testing::Test {
protected:
    ~PanelManagerTest() override { check(); }

    void check() { EXPECT_EQ(test::findFaults(*manager), std::vector<std::string>()); }

    PanelView* add(const std::string& title, Positions position, PanelView* sibling = nullptr) {
        auto* const panel = dynamic_cast<PanelView*>(manager->newPanel(title, position, newChild(), sibling));
        panel->setProperties(true, true);
        check();
        return panel;
    }

    LabelAsView& newChild() {
        children.push_back(std::make_unique<LabelAsView>());
        return *children.back();
    }

    void drop(PanelView* panel, PanelView* target, Positions position) {
        target->signalDrop.emit(target, panel, position);
        check();
    }

    void toWindow(PanelView* panel) {
        panel->btnToWindow.clicked();
        check();
    }

    void close(PanelView* panel) {
        panel->btnClose.clicked();
        check();
    }

    /// Closes the window of a floating panel as its title bar does.
    void closeWindow(PanelView* panel) {
        auto* const window = dynamic_cast<WindwView*>(panel->get_parent());
        ASSERT_NE(window, nullptr);
        window->btnClose.clicked();
        const std::size_t count = manager->windows.size();
        EXPECT_TRUE(test::waitFor([&] { return manager->windows.size() < count; }));
        check();
    }

    std::string layout() { return test::layoutOf(*manager); }

    std::vector<std::unique_ptr<LabelAsView>> children;
    std::unique_ptr<PanelManagerView> manager = std::make_unique<PanelManagerView>();
};

} // namespace

TEST_F(PanelManagerTest, StartsWithAnEmptyRoot) {
    EXPECT_EQ(layout(), "H(-, -)");
    EXPECT_TRUE(manager->get_style_context()->has_class("panelManager"));
    EXPECT_TRUE(manager->get_hexpand());
    EXPECT_TRUE(manager->get_vexpand());
    EXPECT_EQ(manager->getPanelContainerCollection().size(), 1u);
    EXPECT_TRUE(manager->getPanelCollection().empty());
    EXPECT_TRUE(manager->getWindowCollection().empty());
    const PanelContainerView& root = *manager->mainContainer;
    EXPECT_TRUE(root.get_wide_handle());
    EXPECT_TRUE(root.get_hexpand());
    EXPECT_TRUE(root.get_vexpand());
    EXPECT_TRUE(root.isAllChildsEmpty());
    EXPECT_TRUE(root.hasEmptyChild());
    EXPECT_TRUE(manager->mainContainer->getNotebook1().get_style_context()->has_class("panelTabs"));
    EXPECT_TRUE(manager->mainContainer->getNotebook2().get_style_context()->has_class("panelTabs"));
}

TEST_F(PanelManagerTest, TheFirstPanelTakesThePaneOfItsSide) {
    const std::pair<Positions, std::string> cases[] = {
        {Positions::Left, "H(A, -)"},   {Positions::Right, "H(-, A)"},  {Positions::Top, "V(A, -)"},
        {Positions::Bottom, "V(-, A)"}, {Positions::Center, "H(A, -)"}, {Positions::Default, "H(A, -)"}};
    for (const auto& [position, expected] : cases) {
        manager = std::make_unique<PanelManagerView>();
        add("A", position);
        EXPECT_EQ(layout(), expected);
    }
}

TEST_F(PanelManagerTest, TheSecondPanelTakesItsSideAndTheFirstGivesWay) {
    const std::tuple<Positions, Positions, std::string> cases[] = {
        {Positions::Center, Positions::Left, "H(B, A)"},
        {Positions::Center, Positions::Right, "H(A, B)"},
        {Positions::Center, Positions::Top, "V(B, A)"},
        {Positions::Center, Positions::Bottom, "V(A, B)"},
        {Positions::Center, Positions::Default, "H(B, A)"},
        {Positions::Right, Positions::Left, "H(B, A)"},
        {Positions::Right, Positions::Right, "H(A, B)"},
        {Positions::Bottom, Positions::Top, "V(B, A)"},
        {Positions::Left, Positions::Center, "H([A B], -)"},
        {Positions::Right, Positions::Center, "H(-, [A B])"}};
    for (const auto& [first, second, expected] : cases) {
        manager = std::make_unique<PanelManagerView>();
        add("A", first);
        add("B", second);
        EXPECT_EQ(layout(), expected);
    }
}

TEST_F(PanelManagerTest, PanesNeitherGrowByThemselvesNorShrinkBelowTheirChild) {
    PanelView* const a = add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Right);
    for (PanelView* const panel : {a, b}) {
        EXPECT_FALSE(manager->mainContainer->child_property_resize(*panel).get_value());
        EXPECT_FALSE(manager->mainContainer->child_property_shrink(*panel).get_value());
    }
}

TEST_F(PanelManagerTest, WithTheRootFullANewPanelDocksBesideTheNewest) {
    const std::pair<Positions, std::string> cases[] = {
        {Positions::Left, "H(A, H(C, B))"}, {Positions::Right, "H(A, H(B, C))"},
        {Positions::Top, "H(A, V(C, B))"},  {Positions::Bottom, "H(A, V(B, C))"},
        {Positions::Center, "H(A, [B C])"}, {Positions::Default, "H(A, H(C, B))"}};
    for (const auto& [position, expected] : cases) {
        manager = std::make_unique<PanelManagerView>();
        add("A", Positions::Left);
        add("B", Positions::Right);
        add("C", position);
        EXPECT_EQ(layout(), expected);
    }
}

TEST_F(PanelManagerTest, WithTheRootFullANewPanelDocksBesideItsSibling) {
    PanelView* const a = add("A", Positions::Left);
    add("B", Positions::Right);
    add("C", Positions::Bottom, a);
    EXPECT_EQ(layout(), "H(V(A, C), B)");
    add("D", Positions::Center, a);
    EXPECT_EQ(layout(), "H(V([A D], C), B)");
    add("E", Positions::Left, a);
    EXPECT_EQ(layout(), "H(V(H(E, [A D]), C), B)");
}

TEST_F(PanelManagerTest, ASiblingIsIgnoredWhileTheRootHasAnEmptyPane) {
    PanelView* const a = add("A", Positions::Left);
    add("B", Positions::Center, a);
    EXPECT_EQ(layout(), "H([A B], -)");
    add("C", Positions::Bottom, a);
    EXPECT_EQ(layout(), "V([A B], C)");
}

TEST_F(PanelManagerTest, ANewPanelIsPlacedEvenIfTheNewestOneHasNoPlace) {
    PanelView* const a = add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Right);
    PanelView* const c = add("C", Positions::Right);
    close(c);
    EXPECT_EQ(layout(), "H(A, B)");
    add("D", Positions::Right);
    EXPECT_EQ(layout(), "H(A, H(B, D))");
    toWindow(b);
    add("E", Positions::Bottom, b);
    EXPECT_EQ(layout(), "H(A, V(D, E))");
    close(a);
    add("F", Positions::Center);
    EXPECT_EQ(layout(), "H(-, V(D, [E F]))");
}

TEST_F(PanelManagerTest, ANewPanelIsPlacedEvenIfAllOthersFloat) {
    PanelView* const a = add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Right);
    PanelView* const c = add("C", Positions::Bottom, a);
    drop(b, c, Positions::Right);
    EXPECT_EQ(layout(), "H(V(A, H(C, B)), -)");
    add("D", Positions::Right);
    for (PanelView* const panel : {a, b, c})
        toWindow(panel);
    toWindow(manager->panels.back().get());
    add("E", Positions::Center);
    add("F", Positions::Bottom, a);
    EXPECT_EQ(test::visiblePanels(*manager).size(), 6u);
    EXPECT_EQ(manager->panels.back()->get_parent() != nullptr, true);
}

TEST_F(PanelManagerTest, OfTwoPanelsTheSecondDroppedOnTheSideOfTheFirstChangesPlacesOrOnlyTheDirection) {
    const std::tuple<bool, Positions, std::string> cases[] = {
        {true, Positions::Left, "H(B, A)"},       {true, Positions::Default, "H(B, A)"},
        {true, Positions::Right, "H(A, B)"},      {true, Positions::Top, "V(B, A)"},
        {true, Positions::Bottom, "V(A, B)"},     {false, Positions::Left, "H(A, B)"},
        {false, Positions::Right, "H(B, A)"},     {false, Positions::Top, "V(A, B)"},
        {false, Positions::Bottom, "V(B, A)"},    {true, Positions::Center, "H([A B], -)"},
        {false, Positions::Center, "H([A B], -)"}};
    for (const auto& [isSecondDragged, position, expected] : cases) {
        manager = std::make_unique<PanelManagerView>();
        PanelView* const a = add("A", Positions::Left);
        PanelView* const b = add("B", Positions::Right);
        drop(isSecondDragged ? b : a, isSecondDragged ? a : b, position);
        EXPECT_EQ(layout(), expected) << isSecondDragged << static_cast<int>(position);
    }
}

TEST_F(PanelManagerTest, APanelDroppedBesideOneElsewhereLeavesItsPane) {
    PanelView* const a = add("A", Positions::Left);
    add("B", Positions::Right);
    PanelView* const c = add("C", Positions::Bottom);
    EXPECT_EQ(layout(), "H(A, V(B, C))");
    drop(c, a, Positions::Top);
    EXPECT_EQ(layout(), "H(V(C, A), V(B, -))");
}

TEST_F(PanelManagerTest, AContainerThatLosesBothChildrenIsDeletedButTheRootIsNot) {
    PanelView* const a = add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Right);
    PanelView* const c = add("C", Positions::Bottom);
    drop(c, a, Positions::Center);
    EXPECT_EQ(layout(), "H([A C], V(B, -))");
    const std::size_t count = manager->containers.size();
    drop(b, a, Positions::Center);
    EXPECT_EQ(layout(), "H([A C B], -)");
    EXPECT_EQ(manager->containers.size(), count - 1);
    // The root stays however empty.
    close(c);
    close(a);
    close(b);
    EXPECT_EQ(layout(), "H(-, -)");
}

TEST_F(PanelManagerTest, AParentWithAnEmptyPaneGivesItsRestToItsOwnParent) {
    PanelView* const a = add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Right);
    PanelView* const c = add("C", Positions::Bottom, b);
    PanelView* const d = add("D", Positions::Right, c);
    EXPECT_EQ(layout(), "H(A, V(B, H(C, D)))");
    drop(c, a, Positions::Center);
    EXPECT_EQ(layout(), "H([A C], V(B, H(-, D)))");
    const std::size_t count = manager->containers.size();
    drop(d, a, Positions::Center);
    EXPECT_EQ(layout(), "H([A C D], B)");
    // One container is deleted, the one whose rest moved up stays, empty.
    EXPECT_EQ(manager->containers.size(), count - 1);
}

TEST_F(PanelManagerTest, TheLastTabBecomesAPlainPanelAgain) {
    add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Right);
    PanelView* const c = add("C", Positions::Center);
    PanelView* const d = add("D", Positions::Center);
    EXPECT_EQ(layout(), "H(A, [B C D])");
    close(d);
    EXPECT_EQ(layout(), "H(A, [B C])");
    close(b);
    EXPECT_EQ(layout(), "H(A, C)");
    EXPECT_EQ(c->titleGrid.get_parent(), &c->titleBox);
    EXPECT_EQ(c->titleBox.get_parent(), &c->mainBox);
}

TEST_F(PanelManagerTest, ATabDroppedOnASideLeavesItsTabBook) {
    PanelView* const a = add("A", Positions::Left);
    add("B", Positions::Right);
    PanelView* const c = add("C", Positions::Center);
    PanelView* const d = add("D", Positions::Center);
    drop(c, a, Positions::Bottom);
    EXPECT_EQ(layout(), "H(V(A, C), [B D])");
    drop(d, a, Positions::Left);
    EXPECT_EQ(layout(), "H(V(H(D, A), C), B)");
}

TEST_F(PanelManagerTest, ATabDroppedOnItsNeighbour) {
    add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Right);
    PanelView* const c = add("C", Positions::Center);
    drop(c, b, Positions::Top);
    EXPECT_EQ(layout(), "H(A, V(C, B))");
    drop(c, b, Positions::Center);
    EXPECT_EQ(layout(), "H(A, V([C B], -))");
    drop(b, c, Positions::Center);
    EXPECT_EQ(layout(), "H(A, V([C B], -))");
}

TEST_F(PanelManagerTest, TabsAreExpandedAndCanBeReordered) {
    PanelView* const a = add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Center);
    Gtk::Notebook& notebook = manager->mainContainer->getNotebook1();
    for (PanelView* const panel : {a, b}) {
        EXPECT_TRUE(notebook.child_property_tab_expand(*panel).get_value());
        EXPECT_TRUE(notebook.get_tab_reorderable(*panel));
        EXPECT_EQ(notebook.get_tab_label(*panel), &panel->titleGrid);
    }
}

TEST_F(PanelManagerTest, TheButtonsOfATabbedPanelAreSeenWheneverTheyCome) {
    Gtk::Window window;
    window.set_default_size(700, 400);
    window.add(*manager);
    PanelView* const a = add("A", Positions::Left);
    auto* const b = dynamic_cast<PanelView*>(manager->newPanel("B", Positions::Center, newChild(), nullptr));
    test::present(window);
    b->setProperties(true, true);
    test::settle();
    for (PanelView* const panel : {a, b}) {
        EXPECT_TRUE(panel->btnClose.get_mapped());
        EXPECT_TRUE(panel->btnToWindow.get_mapped());
        EXPECT_TRUE(panel->titleLabel.get_mapped());
    }
    window.remove();
}

TEST_F(PanelManagerTest, AClosedTabIsDeletedAndAClosedPanelIsKeptAside) {
    PanelView* const a = add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Center);
    test::Finalised finalised;
    finalised.watch(static_cast<Gtk::Frame&>(*b));
    close(b);
    EXPECT_EQ(finalised.count, 1);
    EXPECT_EQ(manager->panels.size(), 1u);
    close(a);
    EXPECT_EQ(layout(), "H(-, -)");
    EXPECT_EQ(manager->panels.size(), 1u);
    EXPECT_EQ(a->get_parent(), nullptr);
    // Nobody listens to it any more.
    a->btnClose.clicked();
    a->btnToWindow.clicked();
    EXPECT_TRUE(manager->windows.empty());
}

TEST_F(PanelManagerTest, NullAndAStrangerAreNotDeleted) {
    class Stranger : public IPanelView {
        void setTitle(const std::string&) override {}

        std::string getTitle() override { return ""; }

        void removeTitle() override {}

        void setChild(IView&) override {}

        IView* getChild() override { return nullptr; }

        void removeChild(IView*) override {}

        IView* getTitleBar() override { return nullptr; }

        void setTitleBar() override {}

        void setProperties(bool, bool) override {}

        void setSize(int, int) override {}
    };

    add("A", Positions::Left);
    Stranger stranger;
    manager->deletePanel(nullptr);
    manager->deletePanel(&stranger);
    EXPECT_EQ(layout(), "H(A, -)");
}

TEST_F(PanelManagerTest, AClosedPanelsNeighbourMovesUp) {
    add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Right);
    PanelView* const c = add("C", Positions::Bottom);
    const std::size_t count = manager->containers.size();
    close(b);
    EXPECT_EQ(layout(), "H(A, C)");
    EXPECT_EQ(manager->containers.size(), count - 1);
    close(c);
    EXPECT_EQ(layout(), "H(A, -)");
}

TEST_F(PanelManagerTest, TabsBesideAClosedPanelMoveUp) {
    PanelView* const a = add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Right);
    PanelView* const c = add("C", Positions::Bottom, b);
    add("D", Positions::Center, c);
    EXPECT_EQ(layout(), "H(A, V(B, [C D]))");
    close(b);
    EXPECT_EQ(layout(), "H(A, [C D])");
    // And they are tabs like any others.
    drop(a, c, Positions::Center);
    EXPECT_EQ(layout(), "H(-, [C D A])");
}

TEST_F(PanelManagerTest, APanelDockedBesideATabAndClosedLeavesTheTabs) {
    add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Right);
    add("C", Positions::Center);
    PanelView* const d = add("D", Positions::Bottom, b);
    EXPECT_EQ(layout(), "H(A, V([B C], D))");
    close(d);
    EXPECT_EQ(layout(), "H(A, [B C])");
}

TEST_F(PanelManagerTest, ACentreIsFoundWhereverTheTabBooksOfTheContainerStand) {
    add("A", Positions::Left);
    add("B", Positions::Center);
    // The only tab book of the first pane moves to the second one.
    PanelView* const c = add("C", Positions::Left);
    EXPECT_EQ(layout(), "H(C, [A B])");
    PanelView* const d = add("D", Positions::Center, c);
    EXPECT_EQ(layout(), "H([C D], [A B])");
    PanelView* const e = add("E", Positions::Bottom, d);
    EXPECT_EQ(layout(), "H(V([C D], E), [A B])");
    add("F", Positions::Center, e);
    EXPECT_EQ(layout(), "H(V([C D], [E F]), [A B])");
}

TEST_F(PanelManagerTest, TabsDeeperInTheTreeSurviveTheEndOfTheContainerThatMadeThem) {
    PanelView* const a = add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Right);
    PanelView* const c = add("C", Positions::Bottom, b);
    add("D", Positions::Center, c);
    add("E", Positions::Right, c);
    EXPECT_EQ(layout(), "H(A, V(B, H([C D], E)))");
    // The vertical pair made the tab book; its plain panel is closed.
    close(b);
    EXPECT_EQ(layout(), "H(A, H([C D], E))");
    EXPECT_EQ(test::visiblePanels(*manager).size(), 4u);
    drop(a, c, Positions::Center);
    EXPECT_EQ(layout(), "H(-, H([C D A], E))");
}

TEST_F(PanelManagerTest, ATitleBarThatIsNoWidgetThrows) {
    class PlainView : public IView {};

    class PanelWithoutTitle : public PanelView {
        IView* getTitleBar() override { return &plain; }

        PlainView plain;
    };

    add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Right);
    PanelView* const c = add("C", Positions::Bottom, b);
    add("D", Positions::Center, c);
    manager->panels.push_back(std::make_unique<PanelWithoutTitle>());
    auto* const notebook = dynamic_cast<Gtk::Notebook*>(c->get_parent());
    notebook->append_page(*manager->panels.back());
    EXPECT_THROW(manager->deletePanel(b), std::bad_cast);
    // Nothing was moved by then.
    EXPECT_EQ(layout(), "H(A, V(B, [C D ]))");
    manager = std::make_unique<PanelManagerView>();
}

TEST_F(PanelManagerTest, APanelInAWindowTakesTitleAndContributedWidgetAlong) {
    ContributingView child;
    add("A", Positions::Left);
    auto* const b = dynamic_cast<PanelView*>(manager->newPanel("B", Positions::Right, child, nullptr));
    b->setProperties(true, true);
    EXPECT_EQ(child.button.get_parent(), &b->iconsBox);
    Gtk::Window toplevel;
    toplevel.add(*manager);
    toplevel.show();
    toWindow(b);
    EXPECT_EQ(layout(), "H(A, -)");
    ASSERT_EQ(manager->windows.size(), 1u);
    WindwView& window = *manager->windows.front();
    EXPECT_EQ(window.get_child(), b);
    EXPECT_EQ(window.title.get_label(), "B");
    EXPECT_EQ(window.get_transient_for(), &toplevel);
    EXPECT_EQ(window.property_window_position().get_value(), Gtk::WIN_POS_CENTER_ON_PARENT);
    EXPECT_TRUE(window.get_visible());
    EXPECT_EQ(child.button.get_parent(), &window.userButtons);

    drop(b, manager->panels.front().get(), Positions::Right);
    EXPECT_EQ(layout(), "H(H(A, B), -)");
    EXPECT_TRUE(manager->windows.empty());
    EXPECT_EQ(child.button.get_parent(), &b->iconsBox);
    toplevel.remove();
    // The child goes before the panel that shows it.
    manager->deleteAll();
}

TEST_F(PanelManagerTest, APanelThatFloatsLeavesNoHole) {
    add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Right);
    add("C", Positions::Bottom);
    const std::size_t count = manager->containers.size();
    toWindow(b);
    EXPECT_EQ(layout(), "H(A, C)");
    // The emptied container is kept.
    EXPECT_EQ(manager->containers.size(), count);
    EXPECT_EQ(test::visiblePanels(*manager).size(), 3u);
}

TEST_F(PanelManagerTest, ATabThatFloatsLeavesItsTabBook) {
    add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Right);
    PanelView* const c = add("C", Positions::Center);
    add("D", Positions::Bottom, c);
    EXPECT_EQ(layout(), "H(A, V([B C], D))");
    toWindow(c);
    EXPECT_EQ(layout(), "H(A, V(B, D))");
    drop(c, b, Positions::Center);
    EXPECT_EQ(layout(), "H(A, V([B C], D))");
}

TEST_F(PanelManagerTest, AFloatingPanelHasNoSecondWindow) {
    PanelView* const a = add("A", Positions::Left);
    toWindow(a);
    a->signalToWindow.emit(a);
    EXPECT_EQ(manager->windows.size(), 1u);
    check();
}

TEST_F(PanelManagerTest, ADropBesideOneWithoutAPlaceOrBesideItselfMovesNothing) {
    PanelView* const a = add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Center);
    PanelView* const c = add("C", Positions::Right);
    toWindow(c);
    drop(a, c, Positions::Left);
    drop(b, b, Positions::Left);
    drop(b, a, static_cast<Positions>(17));
    drop(b, a, static_cast<Positions>(-1));
    EXPECT_EQ(layout(), "H([A B], -)");
}

TEST_F(PanelManagerTest, ClosingTheWindowOfAPanelTakesItOutOfTheLayout) {
    add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Right);
    Gtk::Window toplevel;
    toplevel.add(*manager);
    toplevel.show();
    toWindow(b);
    test::Finalised finalised;
    finalised.watch(static_cast<Gtk::Window&>(*manager->windows.front()));
    closeWindow(b);
    EXPECT_TRUE(finalised.all());
    EXPECT_TRUE(manager->windows.empty());
    EXPECT_EQ(b->get_parent(), nullptr);
    EXPECT_EQ(manager->panels.size(), 2u);
    test::settle();
    toplevel.remove();
}

TEST_F(PanelManagerTest, DeleteAllLeavesTheWindowsEmptyInPlace) {
    PanelView* const a = add("A", Positions::Left);
    PanelView* const b = add("B", Positions::Center);
    add("C", Positions::Bottom);
    toWindow(b);
    test::Finalised finalised;
    for (PanelView* const panel : {a, b})
        finalised.watch(static_cast<Gtk::Frame&>(*panel));
    manager->deleteAll();
    check();
    EXPECT_TRUE(finalised.all());
    EXPECT_EQ(layout(), "H(-, -)");
    EXPECT_TRUE(manager->panels.empty());
    EXPECT_EQ(manager->containers.size(), 1u);
    ASSERT_EQ(manager->windows.size(), 1u);
    EXPECT_EQ(manager->windows.front()->get_child(), nullptr);
    add("D", Positions::Left);
    EXPECT_EQ(layout(), "H(D, -)");
}

TEST_F(PanelManagerTest, EndsInAnyStateWithoutALeftover) {
    test::Finalised finalised;
    for (int i = 0; i < 100; ++i) {
        finalised.watch(static_cast<Gtk::Box&>(*manager));
        PanelView* const a = add("A", Positions::Left);
        add("B", Positions::Center);
        PanelView* const c = add("C", Positions::Bottom);
        PanelView* const d = add("D", Positions::Center);
        add("E", Positions::Left, c);
        toWindow(d);
        finalised.watch(static_cast<Gtk::Window&>(*manager->windows.front()));
        for (const auto& panel : manager->panels)
            finalised.watch(static_cast<Gtk::Frame&>(*panel));
        for (const auto& container : manager->containers)
            finalised.watch(*container);
        if (i % 2)
            manager->deletePanel(a);
        if (i % 3 == 0)
            children.clear();
        manager = std::make_unique<PanelManagerView>();
        ASSERT_TRUE(finalised.all()) << i;
        children.clear();
    }
}

TEST(PanelManagerPresenter, HasItsViewFromTheBeginningAndForwards) {
    PanelManagerPresenter presenter;
    auto& manager = dynamic_cast<PanelManagerView&>(*presenter.getView());
    LabelAsView child;
    IPanelView* const a = presenter.newPanel("A", Positions::Left, child, nullptr);
    LabelAsView other;
    presenter.newPanel("B", Positions::Right, other, a);
    EXPECT_EQ(test::layoutOf(manager), "H(A, B)");
    presenter.deletePanel(a);
    EXPECT_EQ(test::layoutOf(manager), "H(-, B)");
    presenter.deleteAll();
    EXPECT_EQ(test::layoutOf(manager), "H(-, -)");
}
