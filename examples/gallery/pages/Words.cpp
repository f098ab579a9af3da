// Common services: the language of the library's words, numbers kept in a range, and the vetting of a number
// while it is typed.

#include "Pages.h"

#include <ZelCommonView/common/ApproximateLogic.h>
#include <ZelCommonView/common/DialogLocalization.h>
#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/common/NumericHelper.h>

#include <gtkmm.h>

#include <array>

namespace gallery {

namespace {

namespace Texts = Zel::DialogLocalization;

class Words : public Gtk::Box {
public:
    Words() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 12) {
        languages.append("English");
        languages.append("Русский");
        languages.set_active(lng::index());
        languages.signal_changed().connect(sigc::mem_fun(*this, &Words::_onLanguage), true);
        line.pack_start(languages, Gtk::PACK_SHRINK);
        for (Gtk::Label& label : labels) {
            label.set_selectable();
            line.pack_start(label, Gtk::PACK_SHRINK);
        }
        pack_start(line, Gtk::PACK_SHRINK);

        value.set_range(-20, 20);
        value.set_value(3.4);
        value.set_digits(2);
        value.signal_value_changed().connect(sigc::mem_fun(*this, &Words::_onValue), true);
        typed.signal_changed().connect(sigc::mem_fun(*this, &Words::_onTyped), true);
        typed.set_text("1e");
        grid.set_row_spacing(8);
        grid.set_column_spacing(12);
        grid.attach(value, 0, 0);
        grid.attach(limited, 1, 0);
        grid.attach(typed, 0, 1);
        grid.attach(verdict, 1, 1);
        for (Gtk::Label* label : {&limited, &verdict})
            label->set_xalign(0);
        pack_start(grid, Gtk::PACK_SHRINK);
        _retext();
    }

private:
    /// What other pages show already stays: an application chooses the language before it builds windows.
    void _onLanguage() {
        lng::language = static_cast<unsigned char>(languages.get_active_row_number());
        _retext();
    }

    void _retext() {
        const char* (*const all[])() = {&Texts::ok, &Texts::cancel, &Texts::apply, &Texts::yes,
                                        &Texts::no, &Texts::save,   &Texts::open,  &Texts::cancelled};
        for (std::size_t i = 0; i < labels.size(); ++i)
            labels[i].set_text(all[i]());
        _onValue();
        _onTyped();
    }

    void _onValue() {
        const Zel::NumericRange range(-10, 10, 0.5);
        const Zel::ApproximateTolerance tolerance{1e-9, 1};
        const double inRange =
            Zel::ApproximateLogic::limitValue(value.get_value(), range, tolerance, false, false);
        const double onStep =
            Zel::ApproximateLogic::limitValue(value.get_value(), range, tolerance, false, true);
        limited.set_text(Glib::ustring::compose(words("kept between %1 and %2: %3, and on steps of %4: %5",
                                                      "в пределах от %1 до %2: %3, с шагом %4: %5"),
                                                range.getMin(), range.getMax(), inRange, range.getStep(),
                                                onStep));
    }

    void _onTyped() {
        const std::string text = typed.get_text();
        if (!Zel::NumericHelper::isNumericInput(text))
            verdict.set_text(words("no number, whatever follows", "не число, что бы ни следовало"));
        else if (Zel::NumericHelper::isIncompleteNumericInput(text))
            verdict.set_text(words("the beginning of a number", "начало числа"));
        else
            verdict.set_text(words("a number", "число"));
    }

    Gtk::Box line{Gtk::ORIENTATION_HORIZONTAL, 16};
    Gtk::ComboBoxText languages;
    std::array<Gtk::Label, 8> labels;
    Gtk::Grid grid;
    Gtk::SpinButton value{0.1, 2};
    Gtk::Label limited;
    Gtk::Entry typed;
    Gtk::Label verdict;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeWordsPage() {
    return std::make_unique<Words>();
}

} // namespace gallery
