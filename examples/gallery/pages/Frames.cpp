// Two resizable frames with a separator between them. The names beside them have one width; a toolbar of our
// own changes the texts.

#include "Pages.h"

#include <ZelCommonView/oscillogram/ButtonsToolbar.h>
#include <ZelCommonView/oscillogram/ResizableWindow.h>
#include <ZelCommonView/oscillogram/SizeGroupAdapter.h>
#include <ZelCommonView/oscillogram/WidgetSeparatorSequence.h>

#include <gtkmm.h>

namespace gallery {

namespace {

/// A framed text between its name and the buttons that change its height.
class Row : public Gtk::Box {
public:
    explicit Row(const char* title) : name(title), frame(text) {
        text.set_markup(Glib::ustring::compose("<span size='xx-large'>%1</span>", title));
        text.set_size_request(-1, 200);
        frame.getWindow().set_shadow_type(Gtk::SHADOW_IN);
        set_spacing(8);
        pack_start(name, Gtk::PACK_SHRINK);
        pack_start(frame, Gtk::PACK_EXPAND_WIDGET);
        // The toolbar is not part of the frame: it stands where the owner wants it.
        pack_start(frame.getToolbar(), Gtk::PACK_SHRINK);
    }

    Gtk::Label name;

private:
    Gtk::Label text;
    ZelView::ResizableWindow frame;
};

class Frames : public Gtk::Box {
public:
    Frames() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        names.addWidget(upper.name);
        names.addWidget(lower.name);
        toolbar.addButton(words("Longer name", "Длиннее"), sigc::mem_fun(*this, &Frames::_onLonger));
        toolbar.addButton(words("Shorter name", "Короче"), sigc::mem_fun(*this, &Frames::_onShorter));
        separators.addWidget(upper);
        separators.addWidget(lower);
        separators.signalSeparatorMoved.connect(sigc::mem_fun(*this, &Frames::_onMoved));
        pack_start(toolbar, Gtk::PACK_SHRINK);
        pack_start(separators, Gtk::PACK_EXPAND_WIDGET);
        pack_start(report, Gtk::PACK_SHRINK);
    }

private:
    void _onLonger() { upper.name.set_text(upper.name.get_text() + "+"); }

    void _onShorter() {
        const Glib::ustring name = upper.name.get_text();
        upper.name.set_text(name.substr(0, std::max<std::size_t>(name.size(), 1) - 1));
    }

    /// Told once for each widget of the sequence.
    void _onMoved(Gtk::Widget& widget) {
        if (&widget == &upper)
            report.set_text(Glib::ustring::compose(
                words("Reports of the separator: %1", "Сообщений разделителя: %1"), ++moves));
    }

    Row upper{words("Currents", "Токи")};
    Row lower{words("Voltages", "Напряжения")};
    ZelView::SizeGroupAdapter names;
    ZelView::ButtonsToolbar toolbar{true};
    ZelView::WidgetSeparatorSequence separators{false};
    Gtk::Label report{words("Drag the separator", "Потяните разделитель")};
    int moves = 0;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeFramesPage() {
    return std::make_unique<Frames>();
}

} // namespace gallery
