// A picture of figures without a window: for a report, or for a program that shows none. The file is read
// back and shown here.

#include "Pages.h"

#include <ZelCommonView/diagrams/FiguresDrawManager.h>
#include <ZelCommonView/plot/ImageDrawer.h>

#include <gtkmm.h>

#include <unistd.h>

#include <filesystem>
#include <map>

namespace gallery {

namespace {

class Export : public Gtk::Box {
public:
    Export() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        radius.set_range(1, 12);
        radius.set_increments(1, 1);
        radius.set_value(6);
        paintButton.signal_clicked().connect(sigc::mem_fun(*this, &Export::_onPaint), true);
        for (Gtk::Widget* widget :
             std::initializer_list<Gtk::Widget*>{&radiusName, &radius, &paintButton, &result})
            line.pack_start(*widget, Gtk::PACK_SHRINK);
        pack_start(line, Gtk::PACK_SHRINK);
        picture.signal_draw().connect(sigc::mem_fun(*this, &Export::_onDraw));
        frame.add(picture);
        picture.signal_map().connect(sigc::mem_fun(*this, &Export::_onMapped), true);
        pack_start(frame, Gtk::PACK_EXPAND_WIDGET);
    }

private:
    /// The main loop runs while the picture is made, so this waits until GTK is done with showing the page.
    void _onMapped() {
        if (isFirst)
            Glib::signal_idle().connect_once(sigc::mem_fun(*this, &Export::_onPaint));
        isFirst = false;
    }

    void _onPaint() {
        auto circle = std::make_unique<Zel::Circle>();
        circle->radius = static_cast<float>(radius.get_value());
        circle->color = {170, 200, 240, 160};
        circle->filled = true;
        auto path = std::make_unique<Zel::PointsSequence>();
        path->points = {{-8, -8}, {8, 6}, {2, 10}};
        path->color = {192, 57, 43, 255};
        // They are painted in the order of their keys and moved out.
        std::map<std::string, std::unique_ptr<Zel::Figure>> figures;
        figures["1"] = std::move(circle);
        figures["2"] = std::move(path);

        std::string file;
        try {
            close(Glib::file_open_tmp(file, "zel-figures"));
            Zel::FiguresDrawManager::getInstance().saveToImage(file, figures, words("R, ohm", "R, Ом"),
                                                               words("X, ohm", "X, Ом"));
            const auto pixels = Gdk::Pixbuf::create_from_file(file);
            result.set_text(Glib::ustring::compose(words("%1 x %2 pixels", "%1 x %2 пикселей"),
                                                   pixels->get_width(), pixels->get_height()));
            image.save(pixels);
        } catch (const Glib::Error& error) {
            result.set_text(error.what());
        }
        std::error_code ignored;
        std::filesystem::remove(file, ignored);
        picture.queue_draw();
    }

    bool _onDraw(const Cairo::RefPtr<Cairo::Context>& context) {
        image.draw(context);
        return true;
    }

    bool isFirst = true;
    Gtk::Box line{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Label radiusName{words("Radius", "Радиус")};
    Gtk::SpinButton radius;
    Gtk::Button paintButton{words("Paint the picture", "Нарисовать")};
    Gtk::Label result;
    Gtk::Frame frame;
    Gtk::DrawingArea picture;
    ZelView::ImageDrawer image;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeExportPage() {
    return std::make_unique<Export>();
}

} // namespace gallery
