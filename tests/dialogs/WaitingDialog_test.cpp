#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/dialogs/WaitingDialog.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>

namespace {

using namespace Zel;

class WindowAsView : public Gtk::Window, public IView {};

class LabelAsView : public Gtk::Label, public IView {};

class WaitingDialogTest : public testing::Test {
protected:
    ~WaitingDialogTest() override { lng::language = 0; }

    void make() { dialog = std::make_unique<WaitingDialog>(&window, "Title", "Message"); }

    WindowAsView window;
    std::unique_ptr<WaitingDialog> dialog;
};

void expectPacking(Gtk::Box& box, Gtk::Widget& child, bool isExpanded, Gtk::PackType pack) {
    EXPECT_EQ(child.get_parent(), &box);
    EXPECT_EQ(box.child_property_expand(child).get_value(), isExpanded);
    EXPECT_EQ(box.child_property_padding(child).get_value(), 0);
    EXPECT_EQ(box.child_property_pack_type(child).get_value(), pack);
    EXPECT_TRUE(box.child_property_fill(child).get_value() || !isExpanded);
}

} // namespace

TEST_F(WaitingDialogTest, IsAWindowOverItsParentThatHasNoCloseButton) {
    make();
    EXPECT_EQ(dialog->get_title(), "Title");
    EXPECT_EQ(dialog->get_transient_for(), &window);
    EXPECT_FALSE(dialog->get_modal());
    EXPECT_FALSE(dialog->get_deletable());
    EXPECT_EQ(dialog->property_window_position().get_value(), Gtk::WIN_POS_CENTER_ON_PARENT);
    int width = 0;
    int height = 0;
    dialog->get_default_size(width, height);
    EXPECT_EQ(width, 400);
    EXPECT_EQ(height, -1);
    EXPECT_EQ(dialog->get_action_area()->get_spacing(), 0);
    EXPECT_FALSE(dialog->get_visible());
}

TEST_F(WaitingDialogTest, BelongsToTheWindowThatItsParentStandsIn) {
    LabelAsView label;
    window.add(label);
    EXPECT_EQ(WaitingDialog(&label, "Title", "Message").get_transient_for(), &window);
}

TEST_F(WaitingDialogTest, BelongsToNoWindowIfItsParentStandsInNone) {
    LabelAsView label;
    EXPECT_EQ(WaitingDialog(&label, "Title", "Message").get_transient_for(), nullptr);
    EXPECT_EQ(WaitingDialog(nullptr, "Title", "Message").get_transient_for(), nullptr);
}

TEST_F(WaitingDialogTest, ShowsASpinnerAndTheMessageInARow) {
    make();
    int width = 0;
    int height = 0;
    dialog->spinner.get_size_request(width, height);
    EXPECT_EQ(width, 128);
    EXPECT_EQ(height, -1);
    EXPECT_FALSE(dialog->spinner.get_hexpand());
    EXPECT_FALSE(dialog->spinner.get_vexpand());
    EXPECT_EQ(dialog->spinner.get_halign(), Gtk::ALIGN_CENTER);
    EXPECT_EQ(dialog->spinner.get_valign(), Gtk::ALIGN_CENTER);
    EXPECT_TRUE(dialog->spinner.property_active().get_value());
    EXPECT_EQ(dialog->message.get_text(), "Message");
    EXPECT_TRUE(dialog->message.get_line_wrap());

    EXPECT_EQ(dialog->row.get_orientation(), Gtk::ORIENTATION_HORIZONTAL);
    EXPECT_EQ(dialog->column.get_orientation(), Gtk::ORIENTATION_VERTICAL);
    EXPECT_EQ(dialog->row.get_spacing(), 10);
    EXPECT_EQ(dialog->row.get_border_width(), 10u);
    expectPacking(dialog->row, dialog->spinner, false, Gtk::PACK_START);
    expectPacking(dialog->row, dialog->message, true, Gtk::PACK_END);
    expectPacking(dialog->column, dialog->row, true, Gtk::PACK_START);
    expectPacking(dialog->column, dialog->cancelButton, false, Gtk::PACK_START);
    expectPacking(*dialog->get_content_area(), dialog->column, true, Gtk::PACK_START);
    EXPECT_TRUE(dialog->spinner.get_visible());
    EXPECT_TRUE(dialog->message.get_visible());
    EXPECT_TRUE(dialog->row.get_visible());
    EXPECT_TRUE(dialog->column.get_visible());

    const void* const fields[] = {&dialog->signalCancel, &dialog->spinner, &dialog->message,
                                  &dialog->row,          &dialog->column,  &dialog->cancelButton};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST_F(WaitingDialogTest, TheButtonIsThereOnlyIfTheJobCanBeCancelled) {
    make();
    EXPECT_FALSE(dialog->cancelButton.get_visible());
    dialog->show_all();
    EXPECT_FALSE(dialog->cancelButton.get_visible());
    dialog->setCancelable(true);
    EXPECT_TRUE(dialog->cancelButton.get_visible());
    EXPECT_FALSE(dialog->cancelButton.get_no_show_all());
    dialog->setCancelable(false);
    EXPECT_FALSE(dialog->cancelButton.get_visible());
    EXPECT_TRUE(dialog->cancelButton.get_no_show_all());
}

TEST_F(WaitingDialogTest, SettingWhetherItCanBeCancelledShowsTheDialog) {
    make();
    dialog->setCancelable(false);
    EXPECT_TRUE(dialog->get_visible());
}

TEST_F(WaitingDialogTest, TheButtonStandsAtTheEndAsTheThemeExpects) {
    make();
    EXPECT_EQ(dialog->cancelButton.get_label(), "Cancel");
    EXPECT_EQ(dialog->cancelButton.get_halign(), Gtk::ALIGN_END);
    EXPECT_TRUE(dialog->cancelButton.get_style_context()->has_class("textAreaPadding"));
    EXPECT_TRUE(dialog->cancelButton.get_style_context()->has_class("standartContentMargin"));
    lng::language = 1;
    make();
    EXPECT_EQ(dialog->cancelButton.get_label(), "Отмена");
}

TEST_F(WaitingDialogTest, ThePressedButtonSaysSoBeforeTheSignalAndCannotBePressedAgain) {
    for (const unsigned char language : {0, 1}) {
        lng::language = language;
        make();
        int calls = 0;
        dialog->signalCancel.connect([&] {
            ++calls;
            EXPECT_EQ(dialog->cancelButton.get_label(), language == 1 ? "Отменяется..." : "Cancelled...");
            EXPECT_FALSE(dialog->cancelButton.get_sensitive());
        });
        dialog->setCancelable(true);
        EXPECT_TRUE(dialog->cancelButton.get_sensitive());
        dialog->cancelButton.clicked();
        EXPECT_EQ(calls, 1);
        EXPECT_TRUE(dialog->get_visible());
    }
}

TEST_F(WaitingDialogTest, ShowsAnotherMessage) {
    make();
    dialog->set_message("Другое");
    EXPECT_EQ(dialog->message.get_text(), "Другое");
}

TEST_F(WaitingDialogTest, StopsTheSpinnerWhenItDies) {
    make();
    GObject* const spinner = G_OBJECT(g_object_ref(dialog->spinner.gobj()));
    gboolean isActive = FALSE;
    g_object_get(spinner, "active", &isActive, nullptr);
    EXPECT_TRUE(isActive);
    dialog.reset();
    g_object_get(spinner, "active", &isActive, nullptr);
    EXPECT_FALSE(isActive);
    g_object_unref(spinner);
}

TEST_F(WaitingDialogTest, IsFinalisedAThousandTimes) {
    int finalised = 0;
    for (int i = 0; i < 1000; ++i) {
        make();
        g_object_weak_ref(
            G_OBJECT(dialog->gobj()), [](gpointer count, GObject*) { ++*static_cast<int*>(count); },
            &finalised);
    }
    dialog.reset();
    EXPECT_EQ(finalised, 1000);
}
