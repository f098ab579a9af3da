#include "support/Hands.h"

#include <ZelCommonView/presentation/GtkWidgetHelper.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using namespace Zel;
using Log = std::vector<std::string>;

class IProbeView : public IView {
public:
    virtual int number() = 0;
};

class ProbeView : public IProbeView {
public:
    ProbeView(Log& givenLog, int givenNumber) : log(givenLog), value(givenNumber) {}

    ~ProbeView() override { log.push_back("view destroyed"); }

    int number() override { return value; }

    Log& log;
    int value;
};

/// Notes its hooks and does in them what the test wants.
class ProbePresenter : public PresenterBase<IProbeView> {
public:
    explicit ProbePresenter(Log& givenLog) : log(givenLog) {}

    std::unique_ptr<IProbeView> _createDefaultView() override {
        log.push_back("create");
        if (throwsInCreate)
            throw "create";
        return givesView ? std::make_unique<ProbeView>(log, 7) : nullptr;
    }

    void _onViewInited() override {
        log.push_back("inited");
        if (inHook)
            inHook();
    }

    void poke() { ++poked; }

    Log& log;
    bool givesView = true;
    bool throwsInCreate = false;
    int poked = 0;
    std::function<void()> inHook;
};

/// As little as a presenter can be.
class PlainPresenter : public PresenterBase<IProbeView> {
public:
    explicit PlainPresenter(Log& givenLog) : log(givenLog) {}

    std::unique_ptr<IProbeView> _createDefaultView() override { return std::make_unique<ProbeView>(log, 1); }

    Log& log;
};

/// Takes the shared base by two ways.
class WithTwoWays : public PlainPresenter, public virtual IPresenter {
public:
    using PlainPresenter::PlainPresenter;
};

class WithIcons : public IWidget {
public:
    Gtk::Widget* getIcons() override { return &icons; }

    Gtk::Grid icons;
};

class WithoutIcons : public IWidget {};

static_assert(std::has_virtual_destructor_v<IView> && std::has_virtual_destructor_v<IWidget> &&
              std::has_virtual_destructor_v<IPresenter>);
static_assert(std::is_abstract_v<IPresenter> && !std::is_abstract_v<IWidget>);
static_assert(std::is_base_of_v<sigc::trackable, IPresenter>);
static_assert(std::is_same_v<decltype(std::declval<ProbePresenter&>().getView()), IProbeView*>);
static_assert(std::is_same_v<decltype(std::declval<IPresenter&>().getView()), IView*>);

} // namespace

TEST(PresenterBase, MakesNoViewUntilItIsAsked) {
    Log log;
    {
        ProbePresenter presenter(log);
        EXPECT_EQ(presenter.view, nullptr);
        EXPECT_FALSE(presenter.viewInited);
    }
    EXPECT_TRUE(log.empty());
}

TEST(PresenterBase, MakesTheViewOnceAndThenPreparesItOnce) {
    Log log;
    ProbePresenter presenter(log);
    IProbeView* const view = presenter.getView();
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->number(), 7);
    EXPECT_EQ(presenter.getView(), view);
    EXPECT_EQ(static_cast<IPresenter&>(presenter).getView(), view);
    EXPECT_EQ(log, (Log{"create", "inited"}));
}

TEST(PresenterBase, TheHookMayAskForTheViewWithoutBeingCalledAgain) {
    Log log;
    ProbePresenter presenter(log);
    IProbeView* seen = nullptr;
    bool flag = false;
    presenter.inHook = [&] {
        flag = presenter.viewInited;
        seen = presenter.getView();
    };
    IProbeView* const view = presenter.getView();
    EXPECT_NE(view, nullptr);
    EXPECT_EQ(seen, view);
    EXPECT_TRUE(flag);
    EXPECT_EQ(log, (Log{"create", "inited"}));
}

TEST(PresenterBase, WithoutAViewReturnsNullAndTriesAgainAtTheNextCall) {
    Log log;
    ProbePresenter presenter(log);
    presenter.givesView = false;
    EXPECT_EQ(presenter.getView(), nullptr);
    EXPECT_FALSE(presenter.viewInited);
    EXPECT_EQ(presenter.getView(), nullptr);
    EXPECT_EQ(log, (Log{"create", "create"}));
    presenter.givesView = true;
    EXPECT_NE(presenter.getView(), nullptr);
    EXPECT_EQ(log, (Log{"create", "create", "create", "inited"}));
}

TEST(PresenterBase, WhatTheMakingThrowsPassesThroughAndTheNextCallTriesAgain) {
    Log log;
    ProbePresenter presenter(log);
    presenter.throwsInCreate = true;
    EXPECT_THROW(presenter.getView(), const char*);
    presenter.throwsInCreate = false;
    EXPECT_NE(presenter.getView(), nullptr);
    EXPECT_EQ(log, (Log{"create", "create", "inited"}));
}

TEST(PresenterBase, WhatTheHookThrowsPassesThroughAndTheHookIsNotRunAgain) {
    Log log;
    ProbePresenter presenter(log);
    presenter.inHook = [] { throw "inited"; };
    EXPECT_THROW(presenter.getView(), const char*);
    EXPECT_TRUE(presenter.viewInited);
    EXPECT_NE(presenter.getView(), nullptr);
    EXPECT_EQ(log, (Log{"create", "inited"}));
}

TEST(PresenterBase, ReturnsTheViewAsTheHookLeavesIt) {
    Log log;
    ProbePresenter presenter(log);
    presenter.inHook = [&] { presenter.view = std::make_unique<ProbeView>(log, 8); };
    ASSERT_NE(presenter.getView(), nullptr);
    EXPECT_EQ(presenter.getView()->number(), 8);
}

TEST(PresenterBase, DestroysTheViewThroughItsInterface) {
    Log log;
    {
        ProbePresenter presenter(log);
        presenter.getView();
    }
    EXPECT_EQ(log, (Log{"create", "inited", "view destroyed"}));
}

TEST(PresenterBase, NeedsNoHook) {
    Log log;
    PlainPresenter presenter(log);
    IProbeView* const view = presenter.getView();
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->number(), 1);
    EXPECT_TRUE(presenter.viewInited);
}

TEST(PresenterBase, SharesItsBaseWithOtherWaysToIt) {
    Log log;
    WithTwoWays presenter(log);
    IPresenter& base = presenter; // would be ambiguous with two of them
    EXPECT_EQ(base.getView(), presenter.getView());
}

TEST(PresenterBase, KeepsTheViewBeforeTheFlag) {
    Log log;
    PlainPresenter presenter(log);
    EXPECT_LT(static_cast<const void*>(&presenter.view), static_cast<const void*>(&presenter.viewInited));
}

TEST(IPresenter, SlotsOfAPresenterDieWithIt) {
    Log log;
    sigc::signal<void> signal;
    auto presenter = std::make_unique<ProbePresenter>(log);
    signal.connect(sigc::mem_fun(*presenter, &ProbePresenter::poke));
    signal.emit();
    EXPECT_EQ(presenter->poked, 1);
    presenter.reset();
    EXPECT_TRUE(signal.empty());
    signal.emit();
}

TEST(IWidget, HasNoIconsUnlessItSaysSo) {
    WithoutIcons without;
    EXPECT_EQ(without.getIcons(), nullptr);
    WithIcons with;
    EXPECT_EQ(static_cast<IWidget&>(with).getIcons(), &with.icons);
}

TEST(IViewWrapper, IsTheContainerAndAView) {
    IViewWrapper<Gtk::Grid> wrapper;
    IView* const view = &wrapper;
    EXPECT_EQ(GtkWidgetHelper::getWidget(view), &wrapper);
    EXPECT_EQ(GtkWidgetHelper::getIView(&wrapper), view);
    Gtk::Label child;
    wrapper.attach(child, 0, 0, 1, 1);
    EXPECT_EQ(child.get_parent(), &wrapper);
}

TEST(IViewWrapper, IsFinalisedWithItsView) {
    int finalised = 0;
    for (int i = 0; i < 1000; ++i) {
        auto wrapper = std::make_unique<IViewWrapper<Gtk::Grid>>();
        g_object_weak_ref(
            G_OBJECT(wrapper->gobj()), [](gpointer count, GObject*) { ++*static_cast<int*>(count); },
            &finalised);
        const std::unique_ptr<IView> view = std::move(wrapper);
    }
    EXPECT_EQ(finalised, 1000);
}
