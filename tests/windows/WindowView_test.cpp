#include <ZelCommonView/windows/WindowPresenter.h>
#include <ZelCommonView/windows/WindowView.h>

#include "support/Answer.h"
#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>
#include <optional>

namespace {

using namespace Zel;

class LabelAsView : public Gtk::Label, public IView {};

class PlainView : public IView {};

class WindowViewTest : public testing::Test {
protected:
    WindowViewTest() {
        view->signalOpened.connect([this] { events.push_back("opened"); });
        view->signalClosed.connect(
            [this] { events.push_back(view && view->getWindowObject() ? "closed, still there" : "closed"); });
    }

    bool waitForEnd() {
        return test::waitFor([this] { return !view->getWindowObject(); });
    }

    LabelAsView content;
    std::unique_ptr<WindowView> view = std::make_unique<WindowView>();
    std::vector<std::string> events;
};

} // namespace

TEST_F(WindowViewTest, HasNoWindowUntilItIsShown) {
    EXPECT_EQ(view->getWindowObject(), nullptr);
    view->close();
    EXPECT_TRUE(events.empty());
}

TEST_F(WindowViewTest, AppliesAllSettingsWhenItIsShown) {
    LabelAsView label;
    WindowControl parent;
    parent.add(label);
    view->setContentView(&content);
    view->setTitle("Настройки");
    view->setModal(true);
    view->setDefaultSize(320, 210);
    IView* const shown = view->show(&label);
    EXPECT_EQ(shown, view->getWindowObject());
    const WindowControl& window = *view->window;
    EXPECT_EQ(window.get_transient_for(), &parent);
    EXPECT_EQ(view->_getParentWindow(), &parent);
    EXPECT_EQ(window.get_title(), "Настройки");
    EXPECT_TRUE(window.get_modal());
    int width = 0;
    int height = 0;
    window.get_default_size(width, height);
    EXPECT_EQ(width, 320);
    EXPECT_EQ(height, 210);
    EXPECT_EQ(window.get_type_hint(), Gdk::WINDOW_TYPE_HINT_UTILITY);
    EXPECT_EQ(window.property_window_position().get_value(), Gtk::WIN_POS_CENTER_ON_PARENT);
    EXPECT_EQ(window.get_child(), &content);
    EXPECT_TRUE(content.get_style_context()->has_class("StandartContent"));
    EXPECT_TRUE(content.get_visible());
    EXPECT_EQ(events, std::vector<std::string>{"opened"});
}

TEST_F(WindowViewTest, AParentWithoutAWindowIsNone) {
    LabelAsView label;
    view->show(&label);
    EXPECT_EQ(view->window->get_transient_for(), nullptr);
    EXPECT_EQ(view->_getParentWindow(), nullptr);
}

TEST_F(WindowViewTest, ForgetsAParentThatDies) {
    auto parent = std::make_unique<WindowControl>();
    view->show(parent.get());
    EXPECT_EQ(view->_getParentWindow(), parent.get());
    parent.reset();
    EXPECT_EQ(view->_getParentWindow(), nullptr);
}

TEST_F(WindowViewTest, ASecondShowOnlyReturnsTheWindow) {
    WindowControl first;
    WindowControl second;
    IView* const window = view->show(&first);
    EXPECT_EQ(view->show(&second), window);
    EXPECT_EQ(view->window->get_transient_for(), &first);
    EXPECT_EQ(events, std::vector<std::string>{"opened"});
}

TEST_F(WindowViewTest, SettingsReachAnOpenWindowExceptTheSize) {
    view->show(nullptr);
    view->setTitle("later");
    view->setModal(true);
    view->setContentView(&content);
    view->setDefaultSize(555, 444);
    EXPECT_EQ(view->window->get_title(), "later");
    EXPECT_TRUE(view->window->get_modal());
    EXPECT_EQ(view->window->get_child(), &content);
    int width = 0;
    int height = 0;
    view->window->get_default_size(width, height);
    EXPECT_NE(width, 555);
    view->close();
    ASSERT_TRUE(waitForEnd());
    view->show(nullptr);
    view->window->get_default_size(width, height);
    EXPECT_EQ(width, 555);
    EXPECT_EQ(height, 444);
}

TEST_F(WindowViewTest, ANullAndANonWidgetEmptyTheWindow) {
    PlainView plain;
    view->show(nullptr);
    view->setContentView(&content);
    view->setContentView(nullptr);
    EXPECT_EQ(view->window->get_child(), nullptr);
    view->setContentView(&content);
    view->setContentView(&plain);
    EXPECT_EQ(view->window->get_child(), nullptr);
}

TEST_F(WindowViewTest, ClosingTellsOnceWithTheWindowGoneAndTheContentFree) {
    view->setContentView(&content);
    view->show(nullptr);
    test::present(*view->window);
    test::closeByManager(*view->window);
    ASSERT_TRUE(waitForEnd());
    test::settle();
    EXPECT_EQ(events, (std::vector<std::string>{"opened", "closed"}));
    EXPECT_EQ(content.get_parent(), nullptr);
    EXPECT_TRUE(content.get_visible());
}

TEST_F(WindowViewTest, CloseIsAsTheWindowManagersButComesLater) {
    view->show(nullptr);
    test::present(*view->window);
    view->close();
    EXPECT_NE(view->getWindowObject(), nullptr);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(events, (std::vector<std::string>{"opened", "closed"}));
}

TEST_F(WindowViewTest, CanBeShownAgainWithAllItHad) {
    view->setContentView(&content);
    view->setTitle("again");
    for (int i = 0; i < 3; ++i) {
        view->show(nullptr);
        EXPECT_EQ(view->window->get_title(), "again");
        EXPECT_EQ(view->window->get_child(), &content);
        EXPECT_TRUE(content.get_visible());
        test::present(*view->window);
        view->close();
        ASSERT_TRUE(waitForEnd());
    }
    EXPECT_EQ(events.size(), 6u);
}

TEST_F(WindowViewTest, AContentThatDiedIsForgotten) {
    auto shortLived = std::make_unique<LabelAsView>();
    view->setContentView(shortLived.get());
    shortLived.reset();
    view->show(nullptr);
    EXPECT_EQ(view->window->get_child(), nullptr);
    auto another = std::make_unique<LabelAsView>();
    view->setContentView(another.get());
    another.reset();
    EXPECT_EQ(view->window->get_child(), nullptr);
    view->setContentView(&content);
    EXPECT_EQ(view->window->get_child(), &content);
}

TEST_F(WindowViewTest, MayDieWhileItIsShown) {
    view->setContentView(&content);
    view->show(nullptr);
    test::Finalised finalised;
    finalised.watch(*view->window);
    view.reset();
    EXPECT_TRUE(finalised.all());
    EXPECT_EQ(content.get_parent(), nullptr);
    test::settle();
}

TEST_F(WindowViewTest, AListenerOfItsEndMayDeleteIt) {
    view->signalClosed.connect([this] { view.reset(); });
    view->show(nullptr);
    test::present(*view->window);
    view->close();
    EXPECT_TRUE(test::waitFor([this] { return !view; }));
    test::settle();
}

TEST(WindowPresenter, PutsAPlainWindowBehindItself) {
    WindowPresenter presenter;
    EXPECT_EQ(presenter.view, nullptr);
    EXPECT_NE(dynamic_cast<WindowView*>(presenter.getView()), nullptr);
}

TEST(WindowPresenter, TellsWhenTheWindowOpensAndWhenItIsGone) {
    WindowPresenter presenter;
    std::vector<std::string> events;
    presenter.getView()->signalOpened.connect([&] { events.push_back("view opened"); });
    presenter.getView()->signalClosed.connect([&] { events.push_back("view closed"); });
    presenter.signalOpened.connect([&] { events.push_back("opened"); });
    presenter.signalClosed.connect([&] {
        EXPECT_EQ(presenter.getView()->getWindowObject(), nullptr);
        events.push_back("closed");
    });
    presenter.getView()->show(nullptr);
    test::present(dynamic_cast<Gtk::Window&>(*presenter.getView()->getWindowObject()));
    presenter.getView()->close();
    EXPECT_TRUE(test::waitFor([&] { return events.size() == 4; }));
    EXPECT_EQ(events, (std::vector<std::string>{"opened", "view opened", "closed", "view closed"}));
}

TEST(WindowPresenter, AListenerOfTheEndMayDeleteIt) {
    test::Finalised finalised;
    auto presenter = std::make_unique<WindowPresenter>();
    presenter->signalClosed.connect([&presenter] { presenter.reset(); });
    presenter->getView()->show(nullptr);
    auto& window = dynamic_cast<WindowControl&>(*presenter->getView()->getWindowObject());
    finalised.watch(window);
    test::present(window);
    presenter->getView()->close();
    EXPECT_TRUE(test::waitFor([&presenter] { return !presenter; }));
    test::settle();
    EXPECT_TRUE(finalised.all());
}

TEST(WindowPresenter, AThousandOfThemLeaveNothing) {
    test::Finalised finalised;
    LabelAsView content;
    for (int i = 0; i < 1000; ++i) {
        WindowPresenter presenter;
        presenter.getView()->setContentView(&content);
        finalised.watch(dynamic_cast<WindowControl&>(*presenter.getView()->show(nullptr)));
    }
    EXPECT_TRUE(finalised.all());
}
