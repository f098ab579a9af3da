// Dialogs: a question, a file to open or to save, and a job on a thread of its own behind a waiting dialog.
// Message dialogs may be asked for from any thread.

#include "Pages.h"

#include <ZelCommonView/dialogs/DialogPresenter.h>
#include <ZelCommonView/dialogs/FileDialogPresenter.h>
#include <ZelCommonView/dialogs/WaitingDialogPresenter.h>
#include <ZelCommonView/presentation/ApplicationDispatcher.h>

#include <gtkmm.h>

#include <atomic>
#include <chrono>
#include <thread>

namespace gallery {

namespace {

class Dialogs : public Gtk::Box, public Zel::IView {
public:
    Dialogs() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        // Once in a program, before another thread is there.
        Zel::ApplicationDispatcherPresenter::getInstance().registerDispatcher();
        askButton.signal_clicked().connect(sigc::mem_fun(*this, &Dialogs::_onAsk), true);
        openButton.signal_clicked().connect(sigc::bind(sigc::mem_fun(*this, &Dialogs::_onFile), false), true);
        saveButton.signal_clicked().connect(sigc::bind(sigc::mem_fun(*this, &Dialogs::_onFile), true), true);
        jobButton.signal_clicked().connect(sigc::mem_fun(*this, &Dialogs::_onJob), true);
        for (Gtk::Button* button : {&askButton, &openButton, &saveButton, &jobButton})
            buttons.pack_start(*button, Gtk::PACK_SHRINK);
        pack_start(buttons, Gtk::PACK_SHRINK);
        hint.set_xalign(0);
        hint.set_line_wrap(true);
        pack_start(hint, Gtk::PACK_SHRINK);
        result.set_xalign(0);
        result.set_text(words("Nothing yet.", "Пока ничего."));
        pack_start(result, Gtk::PACK_SHRINK);
    }

private:
    void _onAsk() {
        using Zel::DialogResult;
        const DialogResult answer = Zel::DialogPresenter::show(
            this, words("Write the settings to the device?", "Записать настройки в прибор?"),
            words("Question", "Вопрос"), DialogResult::Yes | DialogResult::No | DialogResult::Cancel);
        result.set_text(answer == DialogResult::Yes  ? words("Yes", "Да")
                        : answer == DialogResult::No ? words("No", "Нет")
                                                     : words("Neither", "Ни то ни другое"));
    }

    void _onFile(bool save) {
        // A name to save gets the extension of the first pattern if it has none that matches.
        const std::string path =
            files.show(this, save ? words("Save", "Сохранить") : words("Open", "Открыть"),
                       {{"*.csv|*.txt", words("Tables", "Таблицы")}}, save);
        result.set_text(path.empty() ? words("No file", "Файл не выбран") : path);
    }

    void _onJob() {
        isCancelled = false;
        done = 0;
        {
            Zel::WaitingDialogPresenter waiting; // a new one for each job
            waiting.open(
                this, words("Begins", "Начинается"), words("A job", "Задание"),
                [this, &waiting] {
                    // On a thread of its own: nothing but `setMessage` may touch widgets.
                    for (; done < 30 && !isCancelled; ++done) {
                        waiting.setMessage(std::to_string(done) + " / 30");
                        std::this_thread::sleep_for(std::chrono::milliseconds(100));
                    }
                },
                true, [this] { isCancelled = true; });
            // Escape ends the dialog but not the job, for which the end of the block waits.
            isCancelled = true;
        }
        result.set_text(words("Steps done: ", "Сделано шагов: ") + std::to_string(done));
    }

    Zel::FileDialogPresenter files;
    std::atomic<bool> isCancelled{false};
    std::atomic<int> done{0};
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Button askButton{words("Ask", "Спросить")};
    Gtk::Button openButton{words("Open a file", "Открыть файл")};
    Gtk::Button saveButton{words("Save a file", "Сохранить файл")};
    Gtk::Button jobButton{words("A long job", "Долгое задание")};
    Gtk::Label hint{words("The job counts to thirty in three seconds; Cancel ends it before.",
                          "Задание считает до тридцати за три секунды, «Отмена» прерывает его.")};
    Gtk::Label result;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeDialogsPage() {
    return std::make_unique<Dialogs>();
}

} // namespace gallery
