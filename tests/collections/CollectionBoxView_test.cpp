// The box of child views and the placeholder.
#include <ZelCommonView/collections/CollectionBoxView.h>
#include <ZelCommonView/collections/EmptyViewPresenter.h>

#include "support/Finalised.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <limits>
#include <memory>
#include <typeinfo>

namespace {

using namespace Zel;

class BoxAsView : public Gtk::Box, public IView {
public:
    BoxAsView() { add(label); }

    Gtk::Label label{"inside"};
};

class NoWidget : public IView {};

class CollectionBoxViewTest : public testing::Test {
protected:
    std::vector<Gtk::Widget*> children() { return view.box->get_children(); }

    BoxAsView a;
    BoxAsView b;
    BoxAsView c;
    CollectionBoxView view;
};

using Widgets = std::vector<Gtk::Widget*>;

} // namespace

TEST_F(CollectionBoxViewTest, IsAColumnWhoseChildrenOverlapByOnePixel) {
    EXPECT_EQ(view.get_child(), view.box);
    EXPECT_EQ(view.box->get_spacing(), -1);
    EXPECT_TRUE(view.get_style_context()->has_class("CollectionView"));
    EXPECT_FALSE(view.getIsHorizontalOrientation());
    EXPECT_EQ(view.box->get_orientation(), Gtk::ORIENTATION_VERTICAL);
}

TEST_F(CollectionBoxViewTest, TurnsAndTellsItsOrientation) {
    for (const bool isHorizontal : {true, false}) {
        view.setIsHorizontalOrientation(isHorizontal);
        EXPECT_EQ(view.getIsHorizontalOrientation(), isHorizontal);
        EXPECT_EQ(view.box->get_orientation(),
                  isHorizontal ? Gtk::ORIENTATION_HORIZONTAL : Gtk::ORIENTATION_VERTICAL);
    }
}

TEST_F(CollectionBoxViewTest, AddsAtTheEndAndShowsAllOfTheChild) {
    view.addChild(a);
    view.addChild(b);
    EXPECT_EQ(children(), (Widgets{&a, &b}));
    EXPECT_TRUE(a.get_visible());
    EXPECT_TRUE(a.label.get_visible());
}

TEST_F(CollectionBoxViewTest, InsertsAtAPlace) {
    view.addChild(a);
    view.insertChild(0, b);
    view.insertChild(1, c);
    EXPECT_EQ(children(), (Widgets{&b, &c, &a}));
    EXPECT_TRUE(b.label.get_visible());
    view.removeChild(b);
    view.insertChild(std::numeric_limits<unsigned long>::max(), b);
    EXPECT_EQ(children(), (Widgets{&c, &a, &b}));
}

TEST_F(CollectionBoxViewTest, MovesAChild) {
    for (BoxAsView* const child : {&a, &b, &c})
        view.addChild(*child);
    view.moveChild(0, c);
    EXPECT_EQ(children(), (Widgets{&c, &a, &b}));
    view.moveChild(2, c);
    EXPECT_EQ(children(), (Widgets{&a, &b, &c}));
    view.moveChild(77, a);
    EXPECT_EQ(children(), (Widgets{&b, &c, &a}));
}

TEST_F(CollectionBoxViewTest, TakesChildrenOutAndDeletesNone) {
    for (BoxAsView* const child : {&a, &b, &c})
        view.addChild(*child);
    view.removeChild(b);
    EXPECT_EQ(children(), (Widgets{&a, &c}));
    EXPECT_EQ(b.get_parent(), nullptr);
    view.clearAll();
    EXPECT_TRUE(children().empty());
    view.clearAll();
    view.addChild(a);
    EXPECT_EQ(children(), Widgets{&a});
}

TEST_F(CollectionBoxViewTest, AViewThatIsNoWidgetIsAnError) {
    NoWidget noWidget;
    EXPECT_THROW(view.addChild(noWidget), std::bad_cast);
    EXPECT_THROW(view.insertChild(0, noWidget), std::bad_cast);
    EXPECT_THROW(view.removeChild(noWidget), std::bad_cast);
    EXPECT_THROW(view.moveChild(0, noWidget), std::bad_cast);
    EXPECT_TRUE(children().empty());
}

TEST(CollectionBoxView, AThousandOfThemLeaveNothing) {
    test::Finalised finalised;
    BoxAsView child;
    for (int i = 0; i < 1000; ++i) {
        CollectionBoxView view;
        view.addChild(child);
        finalised.watch(view);
        finalised.watch(*view.box);
    }
    EXPECT_TRUE(finalised.all());
    EXPECT_EQ(child.get_parent(), nullptr);
}

TEST(EmptyViewPresenter, HasAnEmptyBox) {
    EmptyViewPresenter presenter;
    auto* const view = dynamic_cast<EmptyView*>(presenter.getView());
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->get_orientation(), Gtk::ORIENTATION_HORIZONTAL);
    EXPECT_EQ(view->get_spacing(), 0);
    EXPECT_TRUE(view->get_style_context()->has_class("EmptyView"));
    EXPECT_TRUE(view->get_children().empty());
}
