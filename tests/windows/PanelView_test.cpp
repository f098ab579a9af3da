#include <ZelCommonView/windows/PanelView.h>
#include <ZelCommonView/windows/WindwView.h>

#include "support/Answer.h"
#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>

namespace {

using namespace Zel;

class LabelAsView : public Gtk::Label, public IView {};

class PlainView : public IView {};

class ContributingView : public Gtk::Label, public IView, public IWidget {
public:
    Gtk::Widget* getIcons() override { return icons; }

    Gtk::Button button;
    Gtk::Widget* icons = &button;
};

class SilentContributor : public Gtk::Label, public IView, public IWidget {};

bool hasClass(const Gtk::Widget& widget, const char* name) {
    return widget.get_style_context()->has_class(name);
}

std::vector<Gtk::Widget*> childrenOf(Gtk::Container& container) {
    return container.get_children();
}

} // namespace

TEST(PanelView, IsAFramedBoxOfItsOwnSize) {
    PanelView panel;
    EXPECT_EQ(panel.get_label_widget(), nullptr);
    EXPECT_TRUE(hasClass(panel, "panel"));
    EXPECT_EQ(panel.get_shadow_type(), Gtk::SHADOW_NONE);
    int width = 0;
    int height = 0;
    panel.get_size_request(width, height);
    EXPECT_EQ(width, 300);
    EXPECT_EQ(height, 134);
    panel.setSize(200, 100);
    panel.get_size_request(width, height);
    EXPECT_EQ(width, 200);
    EXPECT_EQ(height, 100);
}

TEST(PanelView, HoldsItsPartsAsDescribed) {
    PanelView panel;
    EXPECT_EQ(panel.get_child(), &panel.overlay);
    EXPECT_EQ(panel.overlay.get_child(), &panel.eventBox);
    EXPECT_EQ(panel.eventBox.get_child(), &panel.mainBox);
    EXPECT_EQ(childrenOf(panel.mainBox), (std::vector<Gtk::Widget*>{&panel.titleBox, &panel.scrolled}));
    EXPECT_EQ(childrenOf(panel.titleBox), (std::vector<Gtk::Widget*>{&panel.titleGrid}));
    EXPECT_EQ(panel.titleGrid.get_child_at(0, 0), &panel.titleLabel);
    EXPECT_EQ(panel.titleGrid.get_child_at(1, 0), &panel.iconsBox);
    EXPECT_EQ(panel.titleGrid.get_child_at(2, 0), &panel.headerButtons);
    EXPECT_EQ(panel.demoBox.get_parent(), &panel.overlay);
    EXPECT_EQ(panel.overlayBox.get_parent(), &panel.overlay);
    EXPECT_TRUE(panel.overlay.get_overlay_pass_through(panel.demoBox));
    EXPECT_TRUE(panel.overlay.get_overlay_pass_through(panel.overlayBox));
    EXPECT_TRUE(childrenOf(panel.headerButtons).empty());
}

TEST(PanelView, LaysOutTitleAndContent) {
    PanelView panel;
    EXPECT_EQ(panel.titleBox.get_halign(), Gtk::ALIGN_FILL);
    EXPECT_TRUE(panel.titleBox.get_hexpand());
    EXPECT_FALSE(panel.titleBox.get_vexpand());
    EXPECT_EQ(panel.titleBox.property_height_request().get_value(), 24);
    EXPECT_EQ(panel.titleGrid.get_orientation(), Gtk::ORIENTATION_HORIZONTAL);
    EXPECT_EQ(panel.titleGrid.get_halign(), Gtk::ALIGN_FILL);
    EXPECT_TRUE(panel.titleGrid.get_hexpand());
    EXPECT_TRUE(panel.titleGrid.get_vexpand());
    EXPECT_EQ(panel.titleLabel.property_height_request().get_value(), 24);
    EXPECT_EQ(panel.titleLabel.get_halign(), Gtk::ALIGN_START);
    EXPECT_EQ(panel.titleLabel.get_valign(), Gtk::ALIGN_CENTER);
    EXPECT_EQ(panel.titleLabel.get_margin_start(), 5);
    EXPECT_TRUE(panel.titleLabel.get_hexpand());
    for (Gtk::Box* const box : {&panel.headerButtons, &panel.iconsBox}) {
        EXPECT_EQ(box->get_halign(), Gtk::ALIGN_END);
        EXPECT_EQ(box->get_valign(), Gtk::ALIGN_CENTER);
        EXPECT_TRUE(hasClass(*box, "headerButtons"));
    }
    EXPECT_EQ(panel.headerButtons.get_margin_end(), 5);
    EXPECT_EQ(panel.iconsBox.get_margin_end(), 0);
    EXPECT_TRUE(hasClass(panel.btnClose, "btnClose"));
    EXPECT_TRUE(hasClass(panel.btnToWindow, "btnToWindow"));
    EXPECT_TRUE(panel.contentBox.get_hexpand());
    EXPECT_TRUE(panel.contentBox.get_vexpand());
    EXPECT_EQ(panel.contentBox.get_orientation(), Gtk::ORIENTATION_VERTICAL);
    EXPECT_EQ(panel.contentBox.property_margin().get_value(), 5);
}

TEST(PanelView, HasATitle) {
    PanelView panel;
    panel.setTitle("Годограф");
    EXPECT_EQ(panel.getTitle(), "Годограф");
    EXPECT_EQ(panel.titleLabel.get_label(), "Годограф");
}

TEST(PanelView, TheTitleRowCanGoAndComesBackAboveTheContent) {
    PanelView panel;
    panel.removeTitle();
    EXPECT_EQ(childrenOf(panel.mainBox), (std::vector<Gtk::Widget*>{&panel.scrolled}));
    panel.hideTitle(false);
    EXPECT_EQ(childrenOf(panel.mainBox), (std::vector<Gtk::Widget*>{&panel.titleBox, &panel.scrolled}));
    EXPECT_TRUE(panel.titleBox.get_visible());
    panel.hideTitle(true);
    panel.hideTitle(true);
    EXPECT_EQ(childrenOf(panel.mainBox), (std::vector<Gtk::Widget*>{&panel.scrolled}));
    panel.hideTitle(false);
    panel.hideTitle(false);
    EXPECT_EQ(childrenOf(panel.mainBox), (std::vector<Gtk::Widget*>{&panel.titleBox, &panel.scrolled}));
}

TEST(PanelView, WidgetsOfTheApplicationStandInTheTitleRow) {
    PanelView panel;
    Gtk::Label label;
    panel.setTitleHomogeneous(true);
    EXPECT_TRUE(panel.titleBox.get_homogeneous());
    panel.addToTitle(label);
    EXPECT_EQ(childrenOf(panel.titleBox), (std::vector<Gtk::Widget*>{&panel.titleGrid, &label}));
    panel.removeFromTitle(label);
    EXPECT_EQ(childrenOf(panel.titleBox), (std::vector<Gtk::Widget*>{&panel.titleGrid}));
}

TEST(PanelView, TakesViewsAndWidgetsAsChildren) {
    PanelView panel;
    LabelAsView both;
    IView& view = both;
    EXPECT_EQ(panel.getChild(), nullptr);
    panel.setChild(view);
    EXPECT_EQ(panel.getChild(), &view);
    panel.removeChild(&view);
    EXPECT_EQ(panel.getChild(), nullptr);
    // A view that is a widget is no riddle for the compiler.
    panel.setChild(both);
    EXPECT_EQ(panel.getChild(), &view);
    panel.removeChild(nullptr);
    EXPECT_EQ(panel.getChild(), &view);
    panel.removeChild(&both);
    Gtk::Label plain;
    panel.setChild(plain);
    EXPECT_EQ(plain.get_parent(), &panel.contentBox);
    EXPECT_EQ(panel.getChild(), nullptr);
}

TEST(PanelView, AViewThatIsNoWidgetLeavesItEmpty) {
    PanelView panel;
    PlainView view;
    panel.setChild(view);
    EXPECT_TRUE(childrenOf(panel.contentBox).empty());
    panel.removeChild(&view);
}

TEST(PanelView, AChildMayPutSomethingIntoTheTitleBar) {
    PanelView panel;
    ContributingView view;
    panel.setChild(static_cast<IView&>(view));
    EXPECT_EQ(view.button.get_parent(), &panel.iconsBox);
    EXPECT_EQ(panel.getUserButtons(), &view.button);
    EXPECT_EQ(view.button.get_parent(), nullptr);
    Gtk::Box elsewhere;
    elsewhere.add(view.button);
    panel.setUserButtons();
    EXPECT_EQ(view.button.get_parent(), &panel.iconsBox);
}

TEST(PanelView, AChildWithoutAnythingForTheTitleBarHasNone) {
    PanelView panel;
    SilentContributor silent;
    ContributingView nothing;
    nothing.icons = nullptr;
    panel.setChild(static_cast<IView&>(silent));
    panel.setChild(static_cast<IView&>(nothing));
    EXPECT_TRUE(childrenOf(panel.iconsBox).empty());
    EXPECT_EQ(panel.getUserButtons(), nullptr);
    panel.hide();
    panel.setUserButtons();
    EXPECT_TRUE(panel.get_visible());
}

TEST(PanelView, ForgetsWhatAChildThatDiedHadInTheTitleBar) {
    PanelView panel;
    auto view = std::make_unique<ContributingView>();
    panel.setChild(static_cast<IView&>(*view));
    view.reset();
    EXPECT_EQ(panel.getUserButtons(), nullptr);
    panel.setUserButtons();
    EXPECT_EQ(panel.getChild(), nullptr);
}

TEST(PanelView, HandsItsTitleToATabAndTakesItBackFromAnywhere) {
    PanelView panel;
    EXPECT_EQ(panel.getTitleBar(), &panel.titleGrid);
    EXPECT_EQ(panel.titleGrid.get_parent(), nullptr);
    Gtk::Box elsewhere;
    elsewhere.add(panel.titleGrid);
    panel.setTitleBar();
    EXPECT_EQ(panel.titleGrid.get_parent(), &panel.titleBox);

    Gtk::Notebook notebook;
    notebook.append_page(panel);
    notebook.set_tab_label(panel, *dynamic_cast<Gtk::Widget*>(panel.getTitleBar()));
    EXPECT_EQ(panel.titleGrid.get_parent(), &notebook);
    panel.setTitleBar();
    EXPECT_EQ(panel.titleGrid.get_parent(), &panel.titleBox);
}

TEST(PanelView, HasNoButtonsUntilItIsGivenThem) {
    PanelView both;
    both.setProperties(true, true);
    EXPECT_EQ(childrenOf(both.headerButtons), (std::vector<Gtk::Widget*>{&both.btnToWindow, &both.btnClose}));
    both.setProperties(false, false);
    EXPECT_TRUE(childrenOf(both.headerButtons).empty());
    both.setProperties(false, true);
    EXPECT_EQ(childrenOf(both.headerButtons), (std::vector<Gtk::Widget*>{&both.btnClose}));
}

TEST(PanelView, ItsButtonsTellWhatTheUserWants) {
    PanelView panel;
    panel.setProperties(true, true);
    std::vector<IPanelView*> deleted;
    std::vector<PanelView*> moved;
    panel.signalDelete.connect([&deleted](IPanelView* who) { deleted.push_back(who); });
    panel.signalToWindow.connect([&moved](PanelView* who) { moved.push_back(who); });
    Gtk::Window window;
    window.set_default_size(400, 300);
    window.add(panel);
    window.show_all();
    test::present(window);
    test::click(panel.btnClose);
    EXPECT_TRUE(test::waitFor([&deleted] { return deleted.size() == 1; }));
    test::click(panel.btnToWindow);
    EXPECT_TRUE(test::waitFor([&moved] { return moved.size() == 1; }));
    EXPECT_EQ(deleted.front(), &panel);
    EXPECT_EQ(moved.front(), &panel);
}

TEST(PanelView, AListenerOfItsCloseButtonMayDeleteIt) {
    auto panel = std::make_unique<PanelView>();
    panel->signalDelete.connect([&panel](IPanelView*) { panel.reset(); });
    panel->btnClose.clicked();
    EXPECT_EQ(panel, nullptr);
}

TEST(PanelView, TheDropZonesAreACrossOf40Pixels) {
    PanelView panel;
    Gtk::OffscreenWindow window;
    window.set_default_size(300, 134);
    window.add(panel);
    window.show_all();
    test::settle();
    ASSERT_EQ(panel.get_allocated_width(), 300);
    ASSERT_EQ(panel.get_allocated_height(), 134);
    const std::tuple<int, int, Positions> cases[] = {
        {150, 67, Positions::Center},
        {150, 10, Positions::Top},
        {150, 130, Positions::Bottom},
        {10, 67, Positions::Left},
        {290, 67, Positions::Right},
        {10, 10, Positions::Default},
        {290, 10, Positions::Default},
        {10, 130, Positions::Default},
        {290, 130, Positions::Default},
        // The limits themselves belong to no zone, their neighbours do.
        {130, 67, Positions::Default},
        {131, 67, Positions::Center},
        {129, 67, Positions::Left},
        {170, 67, Positions::Default},
        {169, 67, Positions::Center},
        {171, 67, Positions::Right},
        {150, 47, Positions::Default},
        {150, 48, Positions::Center},
        {150, 46, Positions::Top},
        {150, 87, Positions::Default},
        {150, 86, Positions::Center},
        {150, 88, Positions::Bottom},
        {131, 46, Positions::Top},
        {130, 46, Positions::Default},
        {170, 46, Positions::Default},
        {129, 47, Positions::Default},
        {129, 48, Positions::Left},
        {129, 87, Positions::Default},
        {171, 86, Positions::Right},
        {171, 87, Positions::Default},
        {-1, 67, Positions::Left},
    };
    for (const auto& [x, y, expected] : cases)
        EXPECT_EQ(panel._getPosition(x, y), expected) << x << ", " << y;
}

TEST(PanelView, HalvesAreRoundedTowardZero) {
    PanelView panel;
    Gtk::OffscreenWindow window;
    window.set_default_size(301, 135);
    window.add(panel);
    window.show_all();
    test::settle();
    ASSERT_EQ(panel.get_allocated_width(), 301);
    EXPECT_EQ(panel._getPosition(131, 67), Positions::Center);
    EXPECT_EQ(panel._getPosition(130, 67), Positions::Default);
    EXPECT_EQ(panel._getPosition(170, 67), Positions::Default);
}

TEST(PanelView, DiesInATabBeforeItsTitle) {
    Gtk::Notebook notebook;
    auto panel = std::make_unique<PanelView>();
    notebook.append_page(*panel);
    notebook.set_tab_label(*panel, *dynamic_cast<Gtk::Widget*>(panel->getTitleBar()));
    panel.reset();
    EXPECT_EQ(notebook.get_n_pages(), 0);
}

TEST(PanelView, EndsCompletely) {
    test::Finalised finalised;
    LabelAsView child;
    for (int i = 0; i < 1000; ++i) {
        PanelView panel;
        panel.setChild(child);
        panel.setProperties(i % 2 == 0, i % 3 == 0);
        finalised.watch(static_cast<Gtk::Frame&>(panel));
        finalised.watch(panel.overlay);
        finalised.watch(panel.titleLabel);
    }
    EXPECT_TRUE(finalised.all());
}

TEST(WindwView, TellsOfItsPanelWhenItIsClosed) {
    WindwView window;
    PanelView panel;
    window.set_default_size(400, 300);
    window.setView(&panel);
    EXPECT_EQ(window.get_child(), &panel);
    window.show_all();
    std::vector<PanelView*> closed;
    window.signalClose.connect([&closed](PanelView* who) { closed.push_back(who); });
    test::present(window);
    test::closeByManager(window);
    EXPECT_TRUE(test::waitFor([&window] { return !window.get_visible(); }));
    EXPECT_EQ(closed, (std::vector<PanelView*>{&panel}));
}

TEST(WindwView, WithoutAPanelItIsSilent) {
    WindwView window;
    Gtk::Label label;
    int count = 0;
    window.signalClose.connect([&count](PanelView*) { ++count; });
    GdkEventAny event{};
    event.type = GDK_DELETE;
    window._onClose(&event);
    window.add(label);
    window._onClose(&event);
    window.remove();
    PanelView panel;
    window.setView(&panel);
    event.type = GDK_DESTROY;
    window._onClose(&event);
    EXPECT_EQ(count, 0);
    event.type = GDK_DELETE;
    window._onClose(&event);
    EXPECT_EQ(count, 1);
}
