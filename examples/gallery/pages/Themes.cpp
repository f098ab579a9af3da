// The look of the widgets comes from a sheet of the theme, by their style classes: for the whole screen, or
// for one widget by itself. It takes its colours from Gtk's theme, so light and dark are right by themselves.

#include "Pages.h"

#include <ZelCommonView/common/Directories.h>
#include <ZelCommonView/diagrams/Style.h>

#include <gtkmm.h>

#include <list>

namespace gallery {

namespace {

/// A box in the colours of a style class, with the name of the class.
struct Sample : Gtk::Box {
    explicit Sample(const char* styleClass) : name(styleClass) {
        pack_start(name, Gtk::PACK_EXPAND_WIDGET);
        try {
            // The sheet reaches the box alone, not what is in it.
            ZelView::Style::setStyleClass(this, styleClass);
        } catch (const Glib::Error& error) {
            name.set_text(error.what());
        }
    }

    Gtk::Label name;
};

class Themes : public Gtk::Box {
public:
    Themes() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 12) {
        folder.set_text(words("The theme's files lie in ", "Файлы темы лежат в ") +
                        _shorten(Zel::getThemesDir()));
        hint.set_text(words("Every program has one such folder; setThemesDir makes another one its own.",
                            "У каждой программы одна такая папка, setThemesDir назначает другую."));
        for (Gtk::Label* label : {&folder, &hint}) {
            label->set_xalign(0);
            label->set_line_wrap();
            pack_start(*label, Gtk::PACK_SHRINK);
        }
        grid.set_row_spacing(8);
        grid.set_column_spacing(8);
        grid.set_column_homogeneous(true);
        for (const char* const styleClass :
             {"stateOkContainer", "stateErrorContainer", "stateUndefinedContainer", "windowTitlebar",
              "standartContentMargin", "textAreaPadding"}) {
            const int place = static_cast<int>(samples.size());
            grid.attach(samples.emplace_back(styleClass), place % 3, place / 3);
        }
        pack_start(grid, Gtk::PACK_SHRINK);

        sheetButton.signal_clicked().connect(sigc::mem_fun(*this, &Themes::_onSheet), true);
        sheetButton.set_halign(Gtk::ALIGN_START);
        pack_start(sheetButton, Gtk::PACK_SHRINK);
        pack_start(result, Gtk::PACK_SHRINK);
        result.set_xalign(0);
    }

private:
    /// The last part of a path, which is the same wherever the program lies.
    static std::string _shorten(const std::string& path) { return ".../" + Glib::path_get_basename(path); }

    /// An application does this once, when it starts. What is loaded is never taken back.
    void _onSheet() {
        try {
            ZelView::Style::setStyle("style.css");
            result.set_text(
                words("The sheet is loaded for all windows.", "Таблица загружена для всех окон."));
        } catch (const Glib::Error& error) {
            result.set_text(error.what());
        }
    }

    Gtk::Label folder;
    Gtk::Label hint;
    Gtk::Grid grid;
    std::list<Sample> samples;
    Gtk::Button sheetButton{words("Load the sheet once more", "Загрузить таблицу ещё раз")};
    Gtk::Label result;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeThemesPage() {
    return std::make_unique<Themes>();
}

} // namespace gallery
