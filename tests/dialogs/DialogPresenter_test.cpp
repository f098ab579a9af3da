#include "support/Answer.h"
#include "support/Hands.h"
#include "support/Keyboard.h"

#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/dialogs/DialogPresenter.h>
#include <ZelCommonView/presentation/ApplicationDispatcher.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <chrono>
#include <future>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;
using namespace Zel;
using Texts = std::vector<std::string>;

constexpr DialogResult none{};
constexpr DialogResult all =
    DialogResult::Yes | DialogResult::No | DialogResult::Apply | DialogResult::Ok | DialogResult::Cancel;

class WindowAsView : public Gtk::Window, public IView {};

class LabelAsView : public Gtk::Label, public IView {};

class DialogPresenterTest : public testing::Test {
protected:
    DialogPresenterTest() { ApplicationDispatcherPresenter::getInstance().registerDispatcher(); }

    ~DialogPresenterTest() override { lng::language = 0; }

    /// What comes back when a person does `act` with the dialog.
    DialogResult answer(DialogResult buttons, const std::function<void(Gtk::Dialog&)>& act) {
        test::Answer person(act);
        return DialogPresenter::show(nullptr, "Message", "Title", buttons);
    }

    DialogResult answerByClick(DialogResult buttons, const char* label) {
        return answer(buttons, [label](Gtk::Dialog& dialog) { test::clickButton(dialog, label); });
    }
};

/// The words on the buttons from left to right.
Texts wordsOf(Gtk::Dialog& dialog) {
    Texts words;
    for (Gtk::Button* const button : test::findAll<Gtk::Button>(dialog))
        words.push_back(button->get_label());
    return words;
}

Gtk::Label& messageOf(Gtk::Dialog& dialog) {
    return dynamic_cast<Gtk::Label&>(*dialog.get_content_area()->get_children().front());
}

} // namespace

TEST_F(DialogPresenterTest, ButtonsAreFlags) {
    EXPECT_EQ(static_cast<int>(DialogResult::Yes), 2);
    EXPECT_EQ(static_cast<int>(DialogResult::No), 4);
    EXPECT_EQ(static_cast<int>(DialogResult::Apply), 8);
    EXPECT_EQ(static_cast<int>(DialogResult::Ok), 16);
    EXPECT_EQ(static_cast<int>(DialogResult::Cancel), 32);
    EXPECT_EQ(static_cast<int>(all), 62);
    EXPECT_EQ(all & DialogResult::Apply, DialogResult::Apply);
    EXPECT_EQ((DialogResult::Yes | DialogResult::No) & DialogResult::Ok, none);
}

TEST_F(DialogPresenterTest, ReturnsTheButtonThatWasClicked) {
    EXPECT_EQ(answerByClick(all, "Yes"), DialogResult::Yes);
    EXPECT_EQ(answerByClick(all, "No"), DialogResult::No);
    EXPECT_EQ(answerByClick(all, "Apply"), DialogResult::Apply);
    EXPECT_EQ(answerByClick(all, "OK"), DialogResult::Ok);
    EXPECT_EQ(answerByClick(all, "Cancel"), DialogResult::Cancel);
}

TEST_F(DialogPresenterTest, ReturnsTheButtonThatWasClickedInRussian) {
    lng::language = 1;
    EXPECT_EQ(answerByClick(all, "Да"), DialogResult::Yes);
    EXPECT_EQ(answerByClick(all, "Нет"), DialogResult::No);
    EXPECT_EQ(answerByClick(all, "Применить"), DialogResult::Apply);
    EXPECT_EQ(answerByClick(all, "OK"), DialogResult::Ok);
    EXPECT_EQ(answerByClick(all, "Отмена"), DialogResult::Cancel);
}

TEST_F(DialogPresenterTest, ClosedByTheWindowManagerReturnsNoButton) {
    EXPECT_EQ(answer(DialogResult::Yes | DialogResult::No, test::closeByManager), none);
}

TEST_F(DialogPresenterTest, ClosedByEscapeReturnsNoButton) {
    EXPECT_EQ(answer(all, [](Gtk::Dialog&) { test::pressKey(GDK_KEY_Escape); }), none);
}

TEST_F(DialogPresenterTest, WithoutButtonsOnlyTheWindowsCloseEndsIt) {
    Texts words{"not seen"};
    const DialogResult result = answer(none, [&](Gtk::Dialog& dialog) {
        words = wordsOf(dialog);
        test::closeByManager(dialog);
    });
    EXPECT_EQ(words, Texts{});
    EXPECT_EQ(result, none);
}

TEST_F(DialogPresenterTest, TheDialogIsGoneAfterwards) {
    int finalised = 0;
    answer(DialogResult::Ok, [&](Gtk::Dialog& dialog) {
        g_object_weak_ref(
            G_OBJECT(dialog.gobj()), [](gpointer count, GObject*) { ++*static_cast<int*>(count); },
            &finalised);
        test::clickButton(dialog, "OK");
    });
    EXPECT_EQ(finalised, 1);
    EXPECT_TRUE(test::findDialogs().empty());
}

TEST_F(DialogPresenterTest, AWorkerWaitsForTheAnswerThatIsGivenOnTheGtkThread) {
    test::Answer person([](Gtk::Dialog& dialog) { test::clickButton(dialog, "No"); });
    std::future<DialogResult> result = std::async(std::launch::async, [] {
        return DialogPresenter::show(nullptr, "From a worker", "Title", DialogResult::Yes | DialogResult::No);
    });
    EXPECT_EQ(result.wait_for(100ms), std::future_status::timeout);
    EXPECT_TRUE(test::waitFor([&] { return result.wait_for(0ms) == std::future_status::ready; }, 20000));
    EXPECT_TRUE(person.hasActed());
    EXPECT_EQ(result.get(), DialogResult::No);
}

TEST_F(DialogPresenterTest, WhileItIsOpenOtherFunctionsReachTheGtkThread) {
    bool isServed = false;
    std::thread worker;
    const DialogResult result = answer(DialogResult::Ok, [&](Gtk::Dialog& dialog) {
        worker = std::thread([&] { waitUpdateView([&] { isServed = true; }); });
        EXPECT_TRUE(test::waitFor([&] { return isServed; }));
        test::clickButton(dialog, "OK");
    });
    worker.join();
    EXPECT_TRUE(isServed);
    EXPECT_EQ(result, DialogResult::Ok);
}

TEST_F(DialogPresenterTest, StandsOverTheWindowOfItsParent) {
    WindowAsView window;
    window.set_default_size(300, 200);
    LabelAsView label;
    window.add(label);
    test::present(window);

    for (IView* const parent : {static_cast<IView*>(&window), static_cast<IView*>(&label)}) {
        Gtk::Window* seen = nullptr;
        test::Answer person([&](Gtk::Dialog& dialog) {
            seen = dialog.get_transient_for();
            test::clickButton(dialog, "OK");
        });
        EXPECT_EQ(DialogPresenter::show(parent, "Message", "Title", DialogResult::Ok), DialogResult::Ok);
        EXPECT_EQ(seen, &window);
    }
}

TEST_F(DialogPresenterTest, IsBuiltAsTheThemeExpects) {
    WindowAsView window;
    const auto dialog = DialogView::_createDialog(&window, "Message", "Title", all);
    EXPECT_EQ(dialog->get_title(), "Title");
    EXPECT_EQ(dialog->get_transient_for(), &window);
    EXPECT_EQ(dialog->property_window_position().get_value(), Gtk::WIN_POS_CENTER_ON_PARENT);
    EXPECT_FALSE(dialog->get_modal());
    EXPECT_FALSE(dialog->get_resizable());
    EXPECT_EQ(dialog->get_type_hint(), Gdk::WINDOW_TYPE_HINT_UTILITY);
    EXPECT_TRUE(dialog->get_style_context()->has_class("DialogView"));
    EXPECT_TRUE(dialog->get_visible());
    for (Gtk::Button* const button : test::findAll<Gtk::Button>(*dialog)) {
        EXPECT_TRUE(button->get_style_context()->has_class("dialogButton"));
        EXPECT_TRUE(button->get_visible());
    }

    Gtk::Label& label = messageOf(*dialog);
    EXPECT_EQ(label.get_text(), "Message");
    EXPECT_TRUE(label.get_style_context()->has_class("DialogMessage"));
    EXPECT_TRUE(label.get_line_wrap());
    EXPECT_EQ(label.get_line_wrap_mode(), Pango::WRAP_WORD);
    EXPECT_EQ(label.get_max_width_chars(), 60);
    EXPECT_TRUE(label.get_visible());
    Gtk::Box& content = *dialog->get_content_area();
    EXPECT_TRUE(content.child_property_expand(label).get_value());
    EXPECT_FALSE(content.child_property_fill(label).get_value());
    EXPECT_EQ(content.child_property_padding(label).get_value(), 0);
    EXPECT_EQ(content.child_property_pack_type(label).get_value(), Gtk::PACK_START);
}

TEST_F(DialogPresenterTest, WithoutAParentWindowStandsInTheMiddleOfTheScreen) {
    LabelAsView nowhere;
    for (IView* const parent : {static_cast<IView*>(nullptr), static_cast<IView*>(&nowhere)}) {
        const auto dialog = DialogView::_createDialog(parent, "Message", "Title", DialogResult::Ok);
        EXPECT_EQ(dialog->get_transient_for(), nullptr);
        EXPECT_EQ(dialog->property_window_position().get_value(), Gtk::WIN_POS_CENTER);
        EXPECT_FALSE(dialog->get_modal());
        EXPECT_EQ(dialog->get_title(), "Title");
    }
}

TEST_F(DialogPresenterTest, ShowsTheMessageAsPlainText) {
    const auto dialog = DialogView::_createDialog(nullptr, "_a <b>&amp;</b>", "Title", none);
    EXPECT_EQ(messageOf(*dialog).get_text(), "_a <b>&amp;</b>");
    EXPECT_FALSE(messageOf(*dialog).get_use_underline());
}

TEST_F(DialogPresenterTest, ShowsTheButtonsThatAreAskedForInTheirOrder) {
    const auto words = [](DialogResult buttons) {
        return wordsOf(*DialogView::_createDialog(nullptr, "Message", "Title", buttons));
    };
    EXPECT_EQ(words(all), (Texts{"Yes", "No", "Apply", "OK", "Cancel"}));
    EXPECT_EQ(words(DialogResult::Cancel | DialogResult::Ok), (Texts{"OK", "Cancel"}));
    EXPECT_EQ(words(DialogResult::No), Texts{"No"});
    EXPECT_EQ(words(none), Texts{});
    EXPECT_EQ(words(static_cast<DialogResult>(1 | 64)), Texts{});
    lng::language = 1;
    EXPECT_EQ(words(all), (Texts{"Да", "Нет", "Применить", "OK", "Отмена"}));
}

TEST_F(DialogPresenterTest, EachButtonGivesItsResponse) {
    const auto dialog = DialogView::_createDialog(nullptr, "Message", "Title", all);
    std::vector<int> responses;
    for (Gtk::Button* const button : test::findAll<Gtk::Button>(*dialog))
        responses.push_back(dialog->get_response_for_widget(*button));
    EXPECT_EQ(responses, (std::vector<int>{-8, -9, -10, -5, -6}));
}

TEST_F(DialogPresenterTest, ConvertsTheResponsesOfTheButtonsAndNoOthers) {
    for (int response = -200; response <= 200; ++response) {
        DialogResult expected = none;
        if (response == -8)
            expected = DialogResult::Yes;
        if (response == -9)
            expected = DialogResult::No;
        if (response == -10)
            expected = DialogResult::Apply;
        if (response == -5)
            expected = DialogResult::Ok;
        if (response == -6)
            expected = DialogResult::Cancel;
        EXPECT_EQ(DialogView::_convertResults(response), expected) << response;
    }
}

TEST_F(DialogPresenterTest, IsFinalisedHoweverOften) {
    int finalised = 0;
    for (int i = 0; i < 200; ++i) {
        const auto dialog = DialogView::_createDialog(nullptr, "Message", "Title", all);
        g_object_weak_ref(
            G_OBJECT(dialog->gobj()), [](gpointer count, GObject*) { ++*static_cast<int*>(count); },
            &finalised);
    }
    EXPECT_EQ(finalised, 200);
}
