#include "support/Answer.h"
#include "support/Hands.h"
#include "support/Keyboard.h"

#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/dialogs/WaitingDialog.h>
#include <ZelCommonView/dialogs/WaitingDialogPresenter.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <glibmm/dispatcher.h>
#include <gtest/gtest.h>
#include <gtkmm.h>

#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

namespace {

using namespace std::chrono_literals;
using namespace Zel;
using Log = std::vector<std::string>;

static_assert(!std::is_base_of_v<IPresenter, WaitingDialogPresenter>);
static_assert(std::has_virtual_destructor_v<WaitingDialogPresenter>);

class WindowAsView : public Gtk::Window, public IView {};

class WaitingDialogPresenterTest : public testing::Test {
protected:
    WaitingDialogPresenterTest() {
        ApplicationDispatcherPresenter::getInstance().registerDispatcher();
        presenter = std::make_unique<WaitingDialogPresenter>();
        presenter->signalClosedDialog.connect([this] { log.push_back("closed"); });
        window.set_default_size(600, 300);
        test::present(window);
    }

    ~WaitingDialogPresenterTest() override {
        isReleased = true;
        lng::language = 0;
    }

    void open(const std::function<void()>& work, const std::function<void()>& cancel = {},
              bool modal = false) {
        presenter->open(&window, "Message", "Title", work, modal, cancel);
    }

    /// A job that goes on until `isReleased`.
    std::function<void()> endlessJob() {
        return [this] {
            while (!isReleased)
                std::this_thread::sleep_for(1ms);
            isJobDone = true;
        };
    }

    WindowAsView window;
    Log log; ///< on the GTK thread only
    std::atomic<bool> isReleased{false};
    std::atomic<bool> isJobDone{false};
    std::unique_ptr<WaitingDialogPresenter> presenter;
};

Glib::ustring messageOf(Gtk::Dialog& dialog) {
    return dynamic_cast<WaitingDialog&>(dialog).message.get_text();
}

} // namespace

TEST_F(WaitingDialogPresenterTest, StartsIdle) {
    EXPECT_EQ(presenter->dialog, nullptr);
    EXPECT_FALSE(presenter->worker.joinable());
    EXPECT_FALSE(presenter->isCanceled());
    const void* const fields[] = {&presenter->signalClosedDialog,
                                  &presenter->dialog,
                                  &presenter->work,
                                  &presenter->cancel,
                                  &presenter->worker,
                                  &presenter->guard,
                                  &presenter->canceled};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST_F(WaitingDialogPresenterTest, ShowsTheDialogWhileTheJobRunsOnItsOwnThread) {
    std::atomic<std::thread::id> ranOn{};
    test::Answer person([&](Gtk::Dialog& dialog) {
        EXPECT_EQ(dialog.get_title(), "Title");
        EXPECT_EQ(messageOf(dialog), "Message");
        EXPECT_EQ(dialog.get_transient_for(), &window);
        EXPECT_FALSE(isJobDone);
        isReleased = true;
    });
    open([&] {
        ranOn = std::this_thread::get_id();
        endlessJob()();
    });
    EXPECT_TRUE(isJobDone);
    EXPECT_NE(ranOn.load(), std::thread::id());
    EXPECT_NE(ranOn.load(), std::this_thread::get_id());
    EXPECT_EQ(presenter->dialog, nullptr);
    EXPECT_TRUE(test::findDialogs().empty());
}

TEST_F(WaitingDialogPresenterTest, TheSignalComesBeforeOpenReturnsAndWhenTheDialogIsGone) {
    presenter->signalClosedDialog.connect(
        [this] { log.push_back(presenter->dialog ? "dialog there" : "dialog gone"); });
    open([] {});
    log.push_back("returned");
    EXPECT_EQ(log, (Log{"closed", "dialog gone", "returned"}));
}

TEST_F(WaitingDialogPresenterTest, AJobThatEndsAtOnceStillClosesTheDialog) {
    for (int i = 0; i < 20; ++i)
        open([] {});
    EXPECT_EQ(log.size(), 20u);
    EXPECT_EQ(presenter->dialog, nullptr);
}

TEST_F(WaitingDialogPresenterTest, TheFirstOpenRegistersTheGtkThread) {
    // As in an application that has not done so.
    ApplicationDispatcher& dispatcher = ApplicationDispatcher::getInstance();
    dispatcher.dispatcher.reset();
    dispatcher.mainThread = nullptr;
    presenter->signalClosedDialog.connect([id = std::this_thread::get_id()] {
        EXPECT_EQ(std::this_thread::get_id(), id) << "the dialog was closed on the worker";
    });
    open([] { std::this_thread::sleep_for(50ms); });
    EXPECT_EQ(log, Log{"closed"});
}

TEST_F(WaitingDialogPresenterTest, WithoutAFunctionToCancelThereIsNoButton) {
    test::Answer person([&](Gtk::Dialog& dialog) {
        EXPECT_FALSE(dynamic_cast<WaitingDialog&>(dialog).cancelButton.get_visible());
        isReleased = true;
    });
    open(endlessJob());
}

TEST_F(WaitingDialogPresenterTest, CancellingGoesInItsOrder) {
    for (const unsigned char language : {0, 1}) {
        lng::language = language;
        log.clear();
        isReleased = false;
        presenter = std::make_unique<WaitingDialogPresenter>();
        presenter->signalClosedDialog.connect([this] { log.push_back("closed"); });
        WaitingDialog* waiting = nullptr;
        test::Answer person([&](Gtk::Dialog& dialog) {
            waiting = &dynamic_cast<WaitingDialog&>(dialog);
            test::clickButton(dialog, language == 1 ? "Отмена" : "Cancel");
            EXPECT_TRUE(test::waitFor([&] { return presenter->isCanceled(); }));
            log.push_back("canceled");
            test::wait(100);
            EXPECT_EQ(presenter->dialog.get(), waiting) << "the dialog stays until the job ends";
            isReleased = true;
        });
        const auto gtkThread = std::this_thread::get_id();
        open(endlessJob(), [&] {
            EXPECT_EQ(std::this_thread::get_id(), gtkThread);
            EXPECT_EQ(waiting->cancelButton.get_label(), language == 1 ? "Отменяется..." : "Cancelled...");
            EXPECT_FALSE(waiting->cancelButton.get_sensitive());
            EXPECT_FALSE(presenter->isCanceled());
            log.push_back("cancel");
        });
        log.push_back("returned");
        EXPECT_EQ(log, (Log{"cancel", "canceled", "closed", "returned"}));
        EXPECT_TRUE(presenter->isCanceled());
    }
}

TEST_F(WaitingDialogPresenterTest, TheJobMayPollWhetherItIsCancelled) {
    test::Answer person([](Gtk::Dialog& dialog) { test::clickButton(dialog, "Cancel"); });
    open(
        [this] {
            while (!presenter->isCanceled())
                std::this_thread::sleep_for(1ms);
        },
        [] {});
    EXPECT_EQ(log, Log{"closed"});
}

TEST_F(WaitingDialogPresenterTest, StaysCancelledThroughLaterJobs) {
    {
        test::Answer person([](Gtk::Dialog& dialog) { test::clickButton(dialog, "Cancel"); });
        open(endlessJob(), [this] { isReleased = true; });
    }
    open([] {});
    EXPECT_TRUE(presenter->isCanceled());
    EXPECT_EQ(log, (Log{"closed", "closed"}));
}

TEST_F(WaitingDialogPresenterTest, MessagesOfTheJobShowUpInTheirOrder) {
    test::Answer person([&](Gtk::Dialog& dialog) {
        EXPECT_TRUE(test::waitFor([&] { return messageOf(dialog) == "Last"; })) << messageOf(dialog);
        presenter->setMessage("From the GTK thread");
        EXPECT_EQ(messageOf(dialog), "From the GTK thread");
        isReleased = true;
    });
    open([&] {
        for (int i = 0; i < 100; ++i)
            presenter->setMessage(std::to_string(i));
        presenter->setMessage("Last");
        endlessJob()();
    });
}

TEST_F(WaitingDialogPresenterTest, AMessageAfterTheCloseDoesNothing) {
    open([] {});
    presenter->setMessage("Too late");
    std::thread([this] { presenter->setMessage("Too late"); }).join();
    test::settle();
    EXPECT_EQ(presenter->dialog, nullptr);
    EXPECT_EQ(log, Log{"closed"});
}

TEST_F(WaitingDialogPresenterTest, ClosingWithoutADialogDoesNothing) {
    presenter->close();
    open([] {});
    presenter->close();
    EXPECT_EQ(log, Log{"closed"});
}

TEST_F(WaitingDialogPresenterTest, WithoutAJobTheDialogStaysUntilItIsClosed) {
    test::Answer person([&](Gtk::Dialog&) {
        EXPECT_FALSE(presenter->worker.joinable());
        presenter->close();
    });
    open({});
    EXPECT_TRUE(person.hasActed());
    EXPECT_EQ(log, Log{"closed"});
}

TEST_F(WaitingDialogPresenterTest, ASecondOpenWhileOneRunsIsDropped) {
    std::atomic<int> others{0};
    test::Answer person([&](Gtk::Dialog& dialog) {
        presenter->open(
            &window, "Other", "Other", [&] { ++others; }, true, [&] { ++others; });
        EXPECT_EQ(messageOf(dialog), "Message");
        test::clickButton(dialog, "Cancel");
    });
    open(endlessJob(), [this] { isReleased = true; });
    EXPECT_TRUE(isJobDone);
    EXPECT_EQ(others, 0);
    EXPECT_EQ(log, Log{"closed"});
}

TEST_F(WaitingDialogPresenterTest, AfterEscapeTheDialogAndTheJobGoOnUntilTheJobEnds) {
    test::Answer person([](Gtk::Dialog&) { test::pressKey(GDK_KEY_Escape); });
    open(endlessJob());
    ASSERT_NE(presenter->dialog, nullptr);
    EXPECT_TRUE(presenter->dialog->get_mapped());
    EXPECT_FALSE(isJobDone);
    EXPECT_TRUE(log.empty());

    std::atomic<int> others{0};
    open([&] { ++others; });
    EXPECT_EQ(others, 0) << "the dialog that is still there drops it";

    isReleased = true;
    EXPECT_TRUE(test::waitFor([this] { return !log.empty(); }));
    EXPECT_TRUE(isJobDone);
    EXPECT_EQ(presenter->dialog, nullptr);
    EXPECT_EQ(log, Log{"closed"});
}

TEST_F(WaitingDialogPresenterTest, WhetherItIsModalShowsOutsideItsOwnMainLoopOnly) {
    for (const bool modal : {false, true}) {
        presenter = std::make_unique<WaitingDialogPresenter>();
        test::Answer person([](Gtk::Dialog& dialog) {
            EXPECT_TRUE(dialog.get_modal());
            test::pressKey(GDK_KEY_Escape);
        });
        open({}, {}, modal);
        ASSERT_NE(presenter->dialog, nullptr);
        EXPECT_EQ(presenter->dialog->get_modal(), modal);
        presenter->close();
    }
}

TEST_F(WaitingDialogPresenterTest, ACloseThatIsQueuedWhenThePresenterDiesIsDropped) {
    test::Answer person([](Gtk::Dialog&) { test::pressKey(GDK_KEY_Escape); });
    open(endlessJob());
    isReleased = true;
    presenter.reset(); // waits for the job, which queues the close
    EXPECT_TRUE(isJobDone);
    test::settle();
    EXPECT_TRUE(log.empty());
    EXPECT_TRUE(test::findDialogs().empty());
}

TEST_F(WaitingDialogPresenterTest, ThePresenterMayDieWhileItsDialogIsOpen) {
    test::Answer person([&](Gtk::Dialog&) {
        isReleased = true;
        presenter.reset();
    });
    open(endlessJob());
    EXPECT_TRUE(isJobDone);
    EXPECT_EQ(presenter, nullptr);
    test::settle();
    EXPECT_TRUE(log.empty());
    EXPECT_TRUE(test::findDialogs().empty());
}

TEST_F(WaitingDialogPresenterTest, ThePresenterMayDieOfItsOwnSignal) {
    presenter->signalClosedDialog.connect([this] { presenter.reset(); });
    open([] {});
    EXPECT_EQ(presenter, nullptr);
    EXPECT_EQ(log, Log{"closed"});
}

TEST_F(WaitingDialogPresenterTest, ThePresenterMayDieOfItsCancelFunction) {
    test::Answer person([](Gtk::Dialog& dialog) { test::clickButton(dialog, "Cancel"); });
    const auto witness = std::make_shared<int>(7);
    int seen = 0;
    open(endlessJob(), [this, witness, &seen] {
        isReleased = true;
        presenter.reset();
        seen = *witness; // the function itself is still there
    });
    EXPECT_EQ(presenter, nullptr);
    EXPECT_EQ(seen, 7);
    EXPECT_TRUE(isJobDone);
    EXPECT_TRUE(log.empty());
}

TEST_F(WaitingDialogPresenterTest, TheCancelFunctionMayCloseTheDialog) {
    test::Answer person([](Gtk::Dialog& dialog) { test::clickButton(dialog, "Cancel"); });
    open(endlessJob(), [this] { presenter->close(); });
    EXPECT_FALSE(isJobDone) << "the close doesn't wait for the job";
    EXPECT_TRUE(presenter->isCanceled());
    EXPECT_EQ(presenter->dialog, nullptr);
    EXPECT_EQ(log, Log{"closed"});
    isReleased = true;
    presenter.reset();
}

TEST_F(WaitingDialogPresenterTest, AJobThatOutlivedItsDialogEndsBeforeTheNextOneStarts) {
    test::Answer person([this](Gtk::Dialog&) { presenter->close(); });
    std::atomic<int> order{0};
    std::atomic<int> first{0};
    std::atomic<int> second{0};
    const std::vector<int> data(1000, 3); // what the running job holds must not be taken from it
    open([&, data] {
        std::this_thread::sleep_for(800ms);
        if (data == std::vector<int>(1000, 3))
            first = ++order;
    });
    EXPECT_EQ(first, 0);
    open([&] { second = ++order; });
    presenter.reset();
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 2);
}

TEST_F(WaitingDialogPresenterTest, AJobThatTalksALotMayStillBeWaitedFor) {
    test::Answer person([](Gtk::Dialog&) { test::pressKey(GDK_KEY_Escape); });
    open([this, talker = presenter.get()] {
        while (!isReleased)
            std::this_thread::sleep_for(1ms);
        for (int i = 0; i < 20000; ++i)
            talker->setMessage("Record " + std::to_string(i));
        isJobDone = true;
    });
    isReleased = true;
    presenter.reset(); // blocks the main loop meanwhile
    EXPECT_TRUE(isJobDone);
    test::settle();
    EXPECT_TRUE(log.empty());
}
