#include <ZelCommonView/presentation/GtkWidgetHelper.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

namespace {

using namespace Zel;

class BareView : public IView {};

class LabelView : public Gtk::Label, public IView {};

class ViewLabel : public IView, public Gtk::Label {};

class WindowAsView : public Gtk::Window, public IView {};

constexpr Gtk::Orientation gtkOrientations[] = {Gtk::ORIENTATION_HORIZONTAL, Gtk::ORIENTATION_VERTICAL};
constexpr Gtk::Align gtkAligns[] = {Gtk::ALIGN_FILL, Gtk::ALIGN_START, Gtk::ALIGN_END, Gtk::ALIGN_CENTER,
                                    Gtk::ALIGN_BASELINE};

} // namespace

TEST(GtkWidgetHelper, CastsAcrossFromViewToWidget) {
    LabelView view;
    ViewLabel other;
    BareView bare;
    EXPECT_EQ(GtkWidgetHelper::getWidget(&view), &view);
    EXPECT_EQ(GtkWidgetHelper::getWidget(&other), &other);
    EXPECT_EQ(GtkWidgetHelper::getWidget(&bare), nullptr);
    EXPECT_EQ(GtkWidgetHelper::getWidget(nullptr), nullptr);
}

TEST(GtkWidgetHelper, CastsAcrossFromWidgetToView) {
    LabelView view;
    ViewLabel other;
    Gtk::Label plain;
    EXPECT_EQ(GtkWidgetHelper::getIView(&view), static_cast<IView*>(&view));
    EXPECT_EQ(GtkWidgetHelper::getIView(&other), static_cast<IView*>(&other));
    EXPECT_EQ(GtkWidgetHelper::getIView(&plain), nullptr);
    EXPECT_EQ(GtkWidgetHelper::getIView(nullptr), nullptr);
}

TEST(GtkWidgetHelper, TheParentWindowOfAWindowIsItself) {
    WindowAsView window;
    EXPECT_EQ(GtkWidgetHelper::getParentWindow(&window), &window);
}

TEST(GtkWidgetHelper, TheParentWindowIsTheOneThatTheViewStandsIn) {
    Gtk::Window window;
    Gtk::Box box;
    LabelView view;
    box.add(view);
    window.add(box);
    EXPECT_EQ(GtkWidgetHelper::getParentWindow(&view), &window);
    box.remove(view);
    EXPECT_EQ(GtkWidgetHelper::getParentWindow(&view), nullptr);
}

TEST(GtkWidgetHelper, OutsideAnyWindowThereIsNoParentWindow) {
    LabelView alone;
    LabelView inBox;
    Gtk::Box box;
    box.add(inBox);
    BareView bare;
    EXPECT_EQ(GtkWidgetHelper::getParentWindow(&alone), nullptr);
    EXPECT_EQ(GtkWidgetHelper::getParentWindow(&inBox), nullptr);
    EXPECT_EQ(GtkWidgetHelper::getParentWindow(&bare), nullptr);
    EXPECT_EQ(GtkWidgetHelper::getParentWindow(nullptr), nullptr);
}

TEST(GtkWidgetHelper, OrientationsHaveTheNumbersOfGtk) {
    EXPECT_EQ(static_cast<int>(Orientations::Horizontal), 0);
    EXPECT_EQ(static_cast<int>(Orientations::Vertical), 1);
    for (const Gtk::Orientation orientation : gtkOrientations) {
        const Orientations ours = GtkWidgetHelper::orientConvert(orientation);
        EXPECT_EQ(static_cast<int>(ours), static_cast<int>(orientation));
        EXPECT_EQ(GtkWidgetHelper::orientConvertToGtk(ours), orientation);
    }
}

TEST(GtkWidgetHelper, AlignsHaveTheNumbersOfGtk) {
    EXPECT_EQ(static_cast<int>(Aligns::Fill), 0);
    EXPECT_EQ(static_cast<int>(Aligns::Start), 1);
    EXPECT_EQ(static_cast<int>(Aligns::End), 2);
    EXPECT_EQ(static_cast<int>(Aligns::Center), 3);
    EXPECT_EQ(static_cast<int>(Aligns::Baseline), 4);
    for (const Gtk::Align align : gtkAligns) {
        const Aligns ours = GtkWidgetHelper::alignConvert(align);
        EXPECT_EQ(static_cast<int>(ours), static_cast<int>(align));
        EXPECT_EQ(GtkWidgetHelper::alignConvertToGtk(ours), align);
    }
}
