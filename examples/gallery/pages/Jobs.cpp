// Work on another thread. Gtk may be touched from one thread only, so the worker sends what it has to show
// there, and nothing arrives after the page has gone.

#include "Pages.h"

#include <ZelCommonView/common/AutoResetEvent.h>
#include <ZelCommonView/presentation/ApplicationDispatcher.h>
#include <ZelCommonView/presentation/UpdateViewGuard.h>

#include <gtkmm.h>

#include <atomic>
#include <thread>

namespace gallery {

namespace {

class Jobs : public Gtk::Box {
public:
    Jobs() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        // Once in a program, before another thread is there.
        Zel::ApplicationDispatcherPresenter::getInstance().registerDispatcher();
        limit.set_range(1000, 1000000);
        limit.set_increments(1000, 10000);
        limit.set_value(200000);
        countButton.signal_clicked().connect(sigc::mem_fun(*this, &Jobs::_onCount), true);
        for (Gtk::Widget* widget : std::initializer_list<Gtk::Widget*>{&limitName, &limit, &countButton})
            line.pack_start(*widget, Gtk::PACK_SHRINK);
        pack_start(line, Gtk::PACK_SHRINK);
        progress.set_show_text();
        progress.set_text(words("The worker waits.", "Поток ждёт."));
        pack_start(progress, Gtk::PACK_SHRINK);
        hint.set_xalign(0);
        hint.set_line_wrap();
        pack_start(hint, Gtk::PACK_SHRINK);
    }

    ~Jobs() override {
        isEnding = true;
        wanted.set();
        if (worker.joinable())
            worker.join();
    }

private:
    void _onCount() {
        countButton.set_sensitive(false);
        target = limit.get_value_as_int();
        if (!worker.joinable())
            worker = std::thread([this] { _work(); });
        wanted.set();
    }

    /// On the worker: waits for a task, does it and waits again.
    void _work() {
        for (wanted.waitOne(); !isEnding; wanted.waitOne()) {
            const int last = target;
            int found = 0;
            for (int number = 2; number <= last && !isEnding; ++number) {
                found += _isPrime(number) ? 1 : 0;
                if (number % (last / 20) == 0)
                    // Values, and no references: the worker is somewhere else when this runs.
                    guard.safeBeginUpdateView([this, number, found] { _show(number, found); });
            }
            guard.safeBeginUpdateView([this, last, found] { _finish(last, found); });
        }
    }

    static bool _isPrime(int number) {
        for (int divisor = 2; divisor * divisor <= number; ++divisor)
            if (number % divisor == 0)
                return false;
        return true;
    }

    void _show(int number, int found) {
        progress.set_fraction(static_cast<double>(number) / target);
        progress.set_text(
            Glib::ustring::compose(words("%1 primes up to %2", "%1 простых чисел до %2"), found, number));
    }

    void _finish(int last, int found) {
        _show(last, found);
        countButton.set_sensitive(true);
    }

    Gtk::Box line{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Label limitName{words("Primes up to", "Простые числа до")};
    Gtk::SpinButton limit;
    Gtk::Button countButton{words("Count", "Считать")};
    Gtk::ProgressBar progress;
    Gtk::Label hint{words("A dialog that waits for such a job stands on the page of dialogs.",
                          "Диалог ожидания такого задания показан на странице диалогов.")};
    std::atomic<int> target{0};
    std::atomic<bool> isEnding{false};
    Zel::AutoResetEvent wanted;
    Zel::UpdateViewGuard guard; ///< ends after the worker, which is joined before
    std::thread worker;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeJobsPage() {
    return std::make_unique<Jobs>();
}

} // namespace gallery
