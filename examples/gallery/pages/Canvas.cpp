// A canvas by itself: layers at all four positions and three fragments, each with a picture that is kept
// until the fragment is asked to be repainted. The numbers tell how often each was really painted.

#include "Pages.h"

#include <ZelCommonView/dialogs/DialogPresenter.h>
#include <ZelCommonView/dialogs/FileDialogPresenter.h>
#include <ZelCommonView/fragments/FragmentsDrawArea.h>

#include <gtkmm.h>

#include <array>

namespace gallery {

namespace {

using Context = Cairo::RefPtr<Cairo::Context>;
using ZelView::DrawerPosition;

struct Disc {
    double x, y; ///< of the centre, parts of the canvas
    double red, green, blue;
    int painted = 0;
};

class Canvas : public Gtk::Box {
public:
    Canvas() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        canvas.addPositionDrawer(sigc::mem_fun(*this, &Canvas::_drawStart), DrawerPosition::Start);
        canvas.addPositionDrawer(sigc::mem_fun(*this, &Canvas::_drawGrid), DrawerPosition::BeforeFragments);
        canvas.addPositionDrawer(sigc::mem_fun(*this, &Canvas::_drawFrame), DrawerPosition::AfterFragments);
        canvas.addPositionDrawer(sigc::mem_fun(*this, &Canvas::_drawCounts), DrawerPosition::End);
        for (Disc& disc : discs)
            canvas.addFragment(&disc, [this, &disc](const Context& context) { _drawDisc(context, disc); });
        one.signal_clicked().connect(sigc::mem_fun(*this, &Canvas::_onOne), true);
        freeze.signal_toggled().connect(sigc::mem_fun(*this, &Canvas::_onOptions), true);
        through.signal_toggled().connect(sigc::mem_fun(*this, &Canvas::_onOptions), true);
        save.signal_clicked().connect(sigc::mem_fun(*this, &Canvas::_onSave), true);
        for (Gtk::Button* button : std::initializer_list<Gtk::Button*>{&one, &freeze, &through, &save})
            buttons.pack_start(*button, Gtk::PACK_SHRINK);
        pack_start(buttons, Gtk::PACK_SHRINK);
        pack_start(canvas, Gtk::PACK_EXPAND_WIDGET);
    }

private:
    /// Hidden by the background colour, unless that is transparent.
    void _drawStart(const Context& context) const {
        context->set_source_rgb(1, 0.97, 0.85);
        context->paint();
    }

    void _drawGrid(const Context& context) const {
        context->set_source_rgb(0.8, 0.8, 0.8);
        for (int x = 40; x < canvas.get_allocated_width(); x += 40)
            context->rectangle(x, 0, 1, canvas.get_allocated_height());
        context->fill();
    }

    void _drawDisc(const Context& context, Disc& disc) const {
        ++disc.painted;
        context->arc(disc.x * canvas.get_allocated_width(), disc.y * canvas.get_allocated_height(), 120, 0,
                     2 * G_PI);
        context->set_source_rgb(disc.red, disc.green, disc.blue);
        context->fill();
    }

    void _drawFrame(const Context& context) const {
        context->rectangle(4, 4, canvas.get_allocated_width() - 8, canvas.get_allocated_height() - 8);
        context->set_source_rgb(0.3, 0.3, 0.3);
        context->stroke();
    }

    void _drawCounts(const Context& context) const {
        context->set_font_size(14);
        context->set_source_rgb(0, 0, 0);
        for (const Disc& disc : discs) {
            context->move_to(disc.x * canvas.get_allocated_width() - 40,
                             disc.y * canvas.get_allocated_height());
            context->show_text(words("painted: ", "нарисован: ") + std::to_string(disc.painted));
        }
    }

    void _onOne() { canvas.redraw(&discs.front()); }

    void _onOptions() {
        canvas.setIsFreezed(freeze.get_active());
        canvas.setBackgroundColor(through.get_active() ? Zel::Color{255, 255, 255, 0}
                                                       : Zel::Color{255, 255, 255, 255});
        canvas.redraw();
    }

    void _onSave() {
        Zel::FileDialogPresenter dialog;
        const std::string path = dialog.show(nullptr, save.get_label(), {{"*.png", "PNG"}}, true);
        try {
            if (!path.empty())
                canvas.saveSummaryImage(path, "png");
        } catch (const Glib::Error& error) {
            Zel::DialogPresenter::show(nullptr, error.what(), save.get_label(), Zel::DialogResult::Ok);
        }
    }

    std::array<Disc, 3> discs{
        {{0.3, 0.4, 0.9, 0.4, 0.4}, {0.5, 0.6, 0.4, 0.8, 0.4}, {0.7, 0.4, 0.4, 0.6, 0.9}}};
    ZelView::FragmentsDrawArea canvas;
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Button one{words("Repaint the red disc", "Перерисовать красный")};
    Gtk::CheckButton freeze{words("Freeze", "Заморозить")};
    Gtk::CheckButton through{words("Transparent background", "Прозрачный фон")};
    Gtk::Button save{words("Save...", "Сохранить...")};
};

} // namespace

std::unique_ptr<Gtk::Widget> makeCanvasPage() {
    return std::make_unique<Canvas>();
}

} // namespace gallery
