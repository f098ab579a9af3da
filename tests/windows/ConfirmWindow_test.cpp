#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/windows/ConfirmWindowPresenter.h>

#include "support/Answer.h"
#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>

namespace {

using namespace Zel;

class LabelAsView : public Gtk::Label, public IView {};

class ConfirmWindowTest : public testing::Test {
protected:
    ConfirmWindowTest() { content.set_label("content"); }

    ~ConfirmWindowTest() override { lng::language = 0; }

    ConfirmWindowView& view() { return dynamic_cast<ConfirmWindowView&>(*presenter->getView()); }

    void show() {
        view().setContentView(&content);
        view().setDefaultSize(300, 200);
        view().show(nullptr);
        test::present(*view().window);
    }

    bool waitForEnd() {
        return test::waitFor([this] { return !view().getWindowObject(); });
    }

    LabelAsView content;
    std::unique_ptr<ConfirmWindowPresenter> presenter = std::make_unique<ConfirmWindowPresenter>();
};

} // namespace

TEST_F(ConfirmWindowTest, ShowsTheContentAboveTheTwoButtons) {
    show();
    ConfirmWindowView& shown = view();
    EXPECT_EQ(shown.window->get_child(), &shown.grid);
    EXPECT_TRUE(shown.grid.get_hexpand());
    EXPECT_TRUE(shown.grid.get_vexpand());
    EXPECT_EQ(shown.grid.get_child_at(0, 0), &content);
    EXPECT_EQ(shown.grid.get_child_at(0, 1), &shown.buttons);
    EXPECT_EQ(shown.buttons.get_halign(), Gtk::ALIGN_END);
    EXPECT_EQ(shown.buttons.get_orientation(), Gtk::ORIENTATION_HORIZONTAL);
    EXPECT_TRUE(shown.buttons.get_homogeneous());
    EXPECT_EQ(shown.buttons.get_spacing(), 5);
    for (const int margin : {shown.buttons.get_margin_start(), shown.buttons.get_margin_end(),
                             shown.buttons.get_margin_top(), shown.buttons.get_margin_bottom()})
        EXPECT_EQ(margin, 5);
    EXPECT_EQ(shown.buttons.get_children(),
              (std::vector<Gtk::Widget*>{&shown.okButton, &shown.cancelButton}));
    for (Gtk::Button* const button : {&shown.okButton, &shown.cancelButton}) {
        EXPECT_TRUE(button->get_style_context()->has_class("textAreaPadding"));
        EXPECT_TRUE(button->get_style_context()->has_class("dialogButton"));
        EXPECT_TRUE(button->get_mapped());
    }
    EXPECT_TRUE(shown.grid.get_style_context()->has_class("StandartContent"));
}

TEST_F(ConfirmWindowTest, ItsButtonsSpeakTheLanguage) {
    for (const unsigned char language : {0, 1}) {
        lng::language = language;
        presenter = std::make_unique<ConfirmWindowPresenter>();
        show();
        EXPECT_EQ(view().okButton.get_label(), "OK");
        EXPECT_EQ(view().cancelButton.get_label(), language == 1 ? "Отмена" : "Cancel");
    }
}

TEST_F(ConfirmWindowTest, OkWithoutAListenerConfirms) {
    show();
    EXPECT_FALSE(presenter->isConfirmed());
    test::click(view().okButton);
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(presenter->isConfirmed());
}

TEST_F(ConfirmWindowTest, AListenerMayVetoOk) {
    bool mayClose = false;
    int asked = 0;
    presenter->signalApply.connect([&] {
        ++asked;
        return mayClose;
    });
    show();
    test::click(view().okButton);
    EXPECT_TRUE(test::waitFor([&asked] { return asked == 1; }));
    test::settle();
    EXPECT_NE(view().getWindowObject(), nullptr);
    EXPECT_FALSE(presenter->isConfirmed());
    EXPECT_FALSE(view().isFinished);
    mayClose = true;
    test::click(view().okButton);
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(presenter->isConfirmed());
}

TEST_F(ConfirmWindowTest, AListenerOfOkMayDeleteIt) {
    presenter->signalApply.connect([this] {
        presenter.reset();
        return true;
    });
    show();
    test::Finalised finalised;
    finalised.watch(*view().window);
    test::click(view().okButton);
    EXPECT_TRUE(test::waitFor([this] { return !presenter; }));
    test::settle();
    EXPECT_TRUE(finalised.all());
}

TEST_F(ConfirmWindowTest, OfTwoListenersBothRunAndTheLastDecides) {
    for (const bool last : {true, false}) {
        presenter = std::make_unique<ConfirmWindowPresenter>();
        std::vector<int> order;
        presenter->signalApply.connect([&] {
            order.push_back(1);
            return !last;
        });
        presenter->signalApply.connect([&] {
            order.push_back(2);
            return last;
        });
        EXPECT_EQ(view().signalApply.emit(), last);
        EXPECT_EQ(order, (std::vector<int>{1, 2}));
    }
}

TEST_F(ConfirmWindowTest, CancelClosesUnconfirmedWithoutAsking) {
    int asked = 0;
    presenter->signalApply.connect([&] {
        ++asked;
        return true;
    });
    show();
    test::click(view().cancelButton);
    ASSERT_TRUE(waitForEnd());
    EXPECT_FALSE(presenter->isConfirmed());
    EXPECT_EQ(asked, 0);
}

TEST_F(ConfirmWindowTest, OkOfAViewThatNobodyListensToDoesNothing) {
    ConfirmWindowView alone;
    alone.setContentView(&content);
    alone.show(nullptr);
    alone.okButton.clicked();
    test::settle();
    EXPECT_NE(alone.getWindowObject(), nullptr);
    EXPECT_FALSE(alone.isConfirmed());
    EXPECT_FALSE(alone.isFinished);
}

TEST_F(ConfirmWindowTest, WithoutACloseFunctionItHasNoCloseButton) {
    show();
    EXPECT_FALSE(view().window->get_deletable());
}

TEST_F(ConfirmWindowTest, TheCloseFunctionIsAskedEachTimeAndLetsTheWindowEndUnconfirmed) {
    bool mayClose = false;
    std::vector<IConfirmWindowView*> asked;
    std::function<bool(IConfirmWindowView*)> function = [&](IConfirmWindowView* asking) {
        asked.push_back(asking);
        return mayClose;
    };
    view().setCloseButtonFunction(function);
    show();
    EXPECT_TRUE(view().window->get_deletable());
    test::closeByManager(*view().window);
    EXPECT_TRUE(test::waitFor([&asked] { return asked.size() == 1; }));
    EXPECT_EQ(asked.front(), &view());
    test::settle();
    EXPECT_NE(view().getWindowObject(), nullptr);
    mayClose = true;
    test::closeByManager(*view().window);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(asked.size(), 2u);
    EXPECT_FALSE(presenter->isConfirmed());
}

TEST_F(ConfirmWindowTest, TheCloseFunctionIsNotCopied) {
    std::function<bool(IConfirmWindowView*)> function = [](IConfirmWindowView*) { return false; };
    view().setCloseButtonFunction(function);
    show();
    function = [](IConfirmWindowView*) { return true; };
    test::closeByManager(*view().window);
    EXPECT_TRUE(waitForEnd());
}

TEST_F(ConfirmWindowTest, AButtonEndsItWhateverTheCloseFunctionSays) {
    int asked = 0;
    std::function<bool(IConfirmWindowView*)> function = [&](IConfirmWindowView*) {
        ++asked;
        return false;
    };
    view().setCloseButtonFunction(function);
    show();
    test::click(view().cancelButton);
    EXPECT_TRUE(waitForEnd());
    EXPECT_EQ(asked, 0);
}

TEST_F(ConfirmWindowTest, ForReadingOnlyTheButtonsGoAndTheContentStays) {
    show();
    presenter->setIsReadOnly(true);
    EXPECT_FALSE(view().buttons.get_visible());
    EXPECT_TRUE(content.get_mapped());
    presenter->setIsReadOnly(false);
    EXPECT_TRUE(view().buttons.get_mapped());
    EXPECT_TRUE(view().okButton.get_mapped());
}

TEST_F(ConfirmWindowTest, ButtonsThatWereHiddenBeforeTheFirstShowComeBack) {
    presenter->setIsReadOnly(true);
    show();
    EXPECT_FALSE(view().buttons.get_visible());
    EXPECT_TRUE(content.get_mapped());
    presenter->setIsReadOnly(false);
    EXPECT_TRUE(view().okButton.get_mapped());
    EXPECT_TRUE(view().cancelButton.get_mapped());
}

TEST_F(ConfirmWindowTest, TheValueThatStandsAlreadyMakesNoView) {
    presenter->setIsReadOnly(false);
    EXPECT_EQ(presenter->view, nullptr);
    EXPECT_FALSE(presenter->getIsReadOnly());
    EXPECT_EQ(presenter->view, nullptr);
    presenter->setIsReadOnly(true);
    EXPECT_NE(presenter->view, nullptr);
    EXPECT_TRUE(presenter->getIsReadOnly());
}

TEST_F(ConfirmWindowTest, AnotherContentReplacesTheOneBefore) {
    LabelAsView other;
    other.show();
    show();
    view().setContentView(&other);
    EXPECT_EQ(view().grid.get_child_at(0, 0), &other);
    EXPECT_EQ(content.get_parent(), nullptr);
    view().setContentView(nullptr);
    EXPECT_EQ(view().grid.get_child_at(0, 0), nullptr);
    EXPECT_EQ(view().contentWidget, nullptr);
    auto shortLived = std::make_unique<LabelAsView>();
    view().setContentView(shortLived.get());
    shortLived.reset();
    view().setContentView(&content);
    EXPECT_EQ(view().grid.get_child_at(0, 0), &content);
}

TEST_F(ConfirmWindowTest, OneClickIsOneAnswerAlsoWhenItIsShownAgain) {
    int asked = 0;
    bool mayClose = true;
    presenter->signalApply.connect([&] {
        ++asked;
        return mayClose;
    });
    show();
    test::click(view().okButton);
    ASSERT_TRUE(waitForEnd());
    show();
    test::click(view().okButton);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(asked, 2);
}

TEST_F(ConfirmWindowTest, TellsOpeningAndEnd) {
    std::vector<std::string> events;
    presenter->signalOpened.connect([&] { events.push_back("opened"); });
    presenter->signalClosed.connect([&] {
        events.push_back(presenter->isConfirmed() ? "confirmed" : "cancelled");
        presenter.reset();
    });
    show();
    test::click(view().okButton);
    EXPECT_TRUE(test::waitFor([&] { return !presenter; }));
    test::settle();
    EXPECT_EQ(events, (std::vector<std::string>{"opened", "confirmed"}));
}

TEST_F(ConfirmWindowTest, AThousandOfThemLeaveNothing) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        presenter = std::make_unique<ConfirmWindowPresenter>();
        view().setContentView(&content);
        finalised.watch(dynamic_cast<WindowControl&>(*view().show(nullptr)));
        finalised.watch(view().grid);
    }
    presenter.reset();
    EXPECT_TRUE(finalised.all());
}
