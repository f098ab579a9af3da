// Panels dragged by the pointer, as a person does it.
#include <ZelCommonView/windows/PanelManagerView.h>

#include "PanelTree.h"
#include "support/Hands.h"
#include "support/Keyboard.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>
#include <stdexcept>

namespace {

using namespace Zel;

class LabelAsView : public Gtk::Label, public IView {};

class PanelDrag : public testing::Test {
protected:
    PanelDrag() {
        window.set_default_size(1000, 600);
        window.add(manager);
        a = add("A", Positions::Left);
        b = add("B", Positions::Right);
        window.show_all();
        test::present(window);
        window.move(50, 50);
        test::settle();
    }

    ~PanelDrag() override {
        EXPECT_EQ(test::findFaults(manager), std::vector<std::string>());
        EXPECT_FALSE(anyOverlay());
    }

    PanelView* add(const std::string& title, Positions position, PanelView* sibling = nullptr) {
        children.push_back(std::make_unique<LabelAsView>());
        auto* const panel =
            dynamic_cast<PanelView*>(manager.newPanel(title, position, *children.back(), sibling));
        panel->setProperties(true, true);
        test::settle();
        return panel;
    }

    bool anyOverlay() {
        for (const auto& panel : manager.panels)
            if (panel->overlayBox.get_visible() || panel->demoBox.get_visible() || panel->isDragSource)
                return true;
        return false;
    }

    /// Presses on the content of the panel and moves a little, so that a drag begins.
    void take(PanelView* panel) {
        if (auto* const notebook = dynamic_cast<Gtk::Notebook*>(panel->get_parent())) {
            notebook->set_current_page(notebook->page_num(*panel));
            test::settle();
        }
        const int x = panel->get_allocated_width() / 2;
        const int y = panel->get_allocated_height() - 20;
        test::movePointer(*panel, x, y);
        test::pressButton();
        for (int i = 1; i <= 5; ++i) {
            test::movePointer(*panel, x + 8 * i, y - 4 * i);
            test::wait(20);
        }
        if (!test::waitFor([panel] { return panel->isDragSource; })) {
            test::releaseButton();
            throw std::runtime_error("no drag began");
        }
    }

    /// Moves what was taken to a place of the panel.
    static void carry(PanelView* panel, int x, int y) {
        test::movePointer(*panel, x - 6, y - 3);
        test::wait(60);
        test::movePointer(*panel, x, y);
        test::wait(150);
    }

    void release() {
        test::releaseButton();
        EXPECT_TRUE(test::waitFor([this] { return !anyOverlay(); }));
        test::wait(300);
    }

    /// The middle of the zone, in pixels of the panel.
    static std::pair<int, int> zone(PanelView* panel, Positions position) {
        const int width = panel->get_allocated_width();
        const int height = panel->get_allocated_height();
        switch (position) {
        case Positions::Left:
            return {30, height / 2};
        case Positions::Right:
            return {width - 30, height / 2};
        case Positions::Top:
            return {width / 2, 15};
        case Positions::Bottom:
            return {width / 2, height - 15};
        case Positions::Center:
            return {width / 2, height / 2};
        default:
            return {width - 20, height - 20};
        }
    }

    void drag(PanelView* panel, PanelView* target, Positions position) {
        take(panel);
        const auto [x, y] = zone(target, position);
        carry(target, x, y);
        release();
    }

    std::string layout() { return test::layoutOf(manager); }

    std::vector<std::unique_ptr<LabelAsView>> children;
    Gtk::Window window;
    PanelManagerView manager;
    PanelView* a = nullptr;
    PanelView* b = nullptr;
};

} // namespace

TEST_F(PanelDrag, ShowsTheCrossAndShadesWhereThePanelWouldLand) {
    take(a);
    EXPECT_FALSE(a->overlayBox.get_visible());
    for (const Positions position :
         {Positions::Left, Positions::Right, Positions::Top, Positions::Bottom, Positions::Center}) {
        const auto [x, y] = zone(b, position);
        carry(b, x, y);
        EXPECT_TRUE(b->overlayBox.get_mapped());
        EXPECT_TRUE(b->demoBox.get_mapped());
        const bool isFirst = position == Positions::Left || position == Positions::Top;
        if (position != Positions::Center) {
            EXPECT_NEAR(b->demoBox.first.get_opacity(), isFirst ? 0.2 : 0.0, 0.005);
            EXPECT_NEAR(b->demoBox.second.get_opacity(), isFirst ? 0.0 : 0.2, 0.005);
        }
        EXPECT_NEAR(b->demoBox.get_opacity(), position == Positions::Center ? 0.2 : 1.0, 0.005);
    }
    // In a corner there is the cross and no shade.
    carry(b, 20, 20);
    EXPECT_TRUE(b->overlayBox.get_mapped());
    EXPECT_FALSE(b->demoBox.get_visible());
    // Over itself there is nothing.
    carry(a, 100, 100);
    EXPECT_FALSE(b->overlayBox.get_visible());
    EXPECT_FALSE(a->overlayBox.get_visible());
    release();
    EXPECT_EQ(layout(), "H(A, B)");
}

TEST_F(PanelDrag, ToEachSideOfItsNeighbour) {
    drag(a, b, Positions::Right);
    EXPECT_EQ(layout(), "H(B, A)");
    drag(a, b, Positions::Top);
    EXPECT_EQ(layout(), "V(A, B)");
    drag(a, b, Positions::Bottom);
    EXPECT_EQ(layout(), "V(B, A)");
    drag(a, b, Positions::Left);
    EXPECT_EQ(layout(), "H(A, B)");
    drag(b, a, Positions::Center);
    EXPECT_EQ(layout(), "H([A B], -)");
}

TEST_F(PanelDrag, ToEachSideOfAPanelInTabs) {
    const std::pair<Positions, std::string> cases[] = {{Positions::Left, "H(-, H(A, [B C]))"},
                                                       {Positions::Right, "H(-, H([B C], A))"},
                                                       {Positions::Top, "H(-, V(A, [B C]))"},
                                                       {Positions::Bottom, "H(-, V([B C], A))"},
                                                       {Positions::Center, "H(-, [B C A])"}};
    for (const auto& [position, expected] : cases) {
        manager.deleteAll();
        a = add("A", Positions::Left);
        b = add("B", Positions::Right);
        add("C", Positions::Center);
        ASSERT_EQ(layout(), "H(A, [B C])");
        drag(a, b, position);
        EXPECT_EQ(layout(), expected);
    }
}

TEST_F(PanelDrag, OfATabOntoASide) {
    PanelView* const c = add("C", Positions::Center);
    EXPECT_EQ(layout(), "H(A, [B C])");
    drag(c, a, Positions::Bottom);
    EXPECT_EQ(layout(), "H(V(A, C), B)");
}

TEST_F(PanelDrag, ReleasedInACornerOrOnItselfMovesNothing) {
    drag(a, b, Positions::Default);
    EXPECT_EQ(layout(), "H(A, B)");
    take(a);
    carry(a, a->get_allocated_width() / 2, 15);
    release();
    EXPECT_EQ(layout(), "H(A, B)");
}

TEST_F(PanelDrag, CancelledByEscapeMovesNothing) {
    take(a);
    const auto [x, y] = zone(b, Positions::Top);
    carry(b, x, y);
    EXPECT_TRUE(b->overlayBox.get_visible());
    test::pressKey(GDK_KEY_Escape);
    EXPECT_TRUE(test::waitFor([this] { return !anyOverlay(); }));
    test::releaseButton();
    test::wait(300);
    EXPECT_EQ(layout(), "H(A, B)");
}

TEST_F(PanelDrag, AFloatingPanelIsNoTargetAndComesBackByADrag) {
    b->btnToWindow.clicked();
    test::settle();
    ASSERT_EQ(manager.windows.size(), 1u);
    WindwView& floating = *manager.windows.front();
    floating.move(1150, 300);
    test::wait(300);
    EXPECT_EQ(layout(), "H(A, -)");

    drag(a, b, Positions::Left);
    EXPECT_EQ(layout(), "H(A, -)");
    EXPECT_EQ(b->get_parent(), &floating);

    drag(b, a, Positions::Right);
    EXPECT_EQ(layout(), "H(H(A, B), -)");
    EXPECT_TRUE(manager.windows.empty());
}

TEST_F(PanelDrag, ManyInARowKeepTheTreeSound) {
    PanelView* const c = add("C", Positions::Bottom);
    for (const Positions position : {Positions::Left, Positions::Center, Positions::Top, Positions::Right}) {
        drag(c, a, position);
        EXPECT_EQ(test::findFaults(manager), std::vector<std::string>());
        drag(c, b, position);
        EXPECT_EQ(test::findFaults(manager), std::vector<std::string>());
    }
    EXPECT_EQ(test::visiblePanels(manager).size(), 3u);
}
