// Dialogs: a question, a file to open or to save, and a job on a thread of its own behind a waiting dialog.
// Message dialogs may be asked for from any thread.

#include "Pages.h"

#include <ZelCommonView/dialogs/DialogPresenter.h>
#include <ZelCommonView/dialogs/FileDialogPresenter.h>
#include <ZelCommonView/dialogs/WaitingDialogPresenter.h>

#include <gtkmm.h>

#include <atomic>
#include <chrono>
#include <thread>

namespace gallery {

namespace {

class Dialogs : public Gtk::Box, public Zel::IView {
public:
    Dialogs() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        askButton.signal_clicked().connect(sigc::mem_fun(*this, &Dialogs::_onAsk), true);
        openButton.signal_clicked().connect(sigc::bind(sigc::mem_fun(*this, &Dialogs::_onFile), false), true);
        saveButton.signal_clicked().connect(sigc::bind(sigc::mem_fun(*this, &Dialogs::_onFile), true), true);
        jobButton.signal_clicked().connect(sigc::mem_fun(*this, &Dialogs::_onJob), true);
        for (Gtk::Button* button : {&askButton, &openButton, &saveButton, &jobButton})
            buttons.pack_start(*button, Gtk::PACK_SHRINK);
        pack_start(buttons, Gtk::PACK_SHRINK);
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
        int done = 0;
        waiting.open(
            this, words("A job", "Задание"), words("Begins", "Начинается"), true,
            [this, &done] {
                // On a thread of its own: nothing but `setMessage` may touch widgets.
                for (; done < 30 && !isCancelled; ++done) {
                    waiting.setMessage(std::to_string(done) + " / 30");
                    std::this_thread::sleep_for(std::chrono::milliseconds(100));
                }
            },
            [this] { isCancelled = true; });
        result.set_text(words("Steps done: ", "Сделано шагов: ") + std::to_string(done));
    }

    Zel::FileDialogPresenter files;
    Zel::WaitingDialogPresenter waiting;
    std::atomic<bool> isCancelled = false;
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Button askButton{words("Ask", "Спросить")};
    Gtk::Button openButton{words("Open a file", "Открыть файл")};
    Gtk::Button saveButton{words("Save a file", "Сохранить файл")};
    Gtk::Button jobButton{words("A long job", "Долгое задание")};
    Gtk::Label result;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeDialogsPage() {
    return std::make_unique<Dialogs>();
}

} // namespace gallery
