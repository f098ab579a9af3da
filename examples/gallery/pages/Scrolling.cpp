// A content that is dragged like a map and zoomed by the wheel about the pointer, and beside it which part of
// it is in view.

#include "Pages.h"

#include <ZelCommonView/diagrams/ZoomableScrolledWindow.h>

#include <gtkmm.h>

namespace gallery {

namespace {

constexpr unsigned int smallest = 100; // percent of the window
constexpr unsigned int largest = 800;
constexpr unsigned int step = 25;
constexpr int fields = 8; // in each direction

class Scrolling : public Gtk::Box {
public:
    Scrolling() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        board.signal_draw().connect(sigc::mem_fun(*this, &Scrolling::_onDraw));
        board.set_size_request(1, 1); // from now on the window gives it its size
        map.add(board);
        map.signalScaleChanged.connect(sigc::mem_fun(*this, &Scrolling::_onScale));
        for (const auto& adjustment : {map.get_hadjustment(), map.get_vadjustment()}) {
            adjustment->signal_value_changed().connect(sigc::mem_fun(*this, &Scrolling::_onMoved));
            adjustment->signal_changed().connect(sigc::mem_fun(*this, &Scrolling::_onMoved));
        }
        scale.set_range(smallest, largest);
        scale.set_increments(step, step);
        scale.signal_value_changed().connect(sigc::mem_fun(*this, &Scrolling::_onScaleTyped));
        line.pack_start(scaleName, Gtk::PACK_SHRINK);
        line.pack_start(scale, Gtk::PACK_SHRINK);
        line.pack_start(view, Gtk::PACK_SHRINK);
        pack_start(line, Gtk::PACK_SHRINK);
        pack_start(map, Gtk::PACK_EXPAND_WIDGET);
        _onMoved();
    }

private:
    /// A chess board with the names of its fields.
    bool _onDraw(const Cairo::RefPtr<Cairo::Context>& context) {
        const double width = static_cast<double>(board.get_allocated_width()) / fields;
        const double height = static_cast<double>(board.get_allocated_height()) / fields;
        for (int row = 0; row < fields; ++row)
            for (int column = 0; column < fields; ++column) {
                const bool isDark = (row + column) % 2 == 1;
                context->set_source_rgb(isDark ? 0.72 : 0.95, isDark ? 0.79 : 0.95, isDark ? 0.88 : 0.92);
                context->rectangle(column * width, row * height, width + 1, height + 1);
                context->fill();
                context->set_source_rgb(0.2, 0.2, 0.2);
                context->move_to(column * width + 4, (row + 1) * height - 4);
                context->show_text(std::string(1, static_cast<char>('a' + column)) +
                                   std::to_string(fields - row));
            }
        return true;
    }

    void _onScale(unsigned int percent) { scale.set_value(percent); }

    void _onScaleTyped() { map.setSize(static_cast<unsigned int>(scale.get_value_as_int())); }

    void _onMoved() {
        const ZelView::IScrollInfo& info = map.getScrollInfo();
        view.set_text(Glib::ustring::compose(words("In view: %1 x %2 of %3 x %4 pixels, from %5, %6 on",
                                                   "Видно: %1 x %2 из %3 x %4 пикселей, начиная с %5, %6"),
                                             info.getWidthCurrent(), info.getHeightCurrent(),
                                             info.getWidthTotal(), info.getHeightTotal(),
                                             info.getWidthBefore(), info.getHeightBefore()));
    }

    Gtk::Box line{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Label scaleName{words("Scale, percent", "Масштаб, %")};
    Gtk::SpinButton scale;
    Gtk::Label view;
    Gtk::DrawingArea board; ///< outlives the window that shows it
    ZelView::ZoomableScrolledWindow map{smallest, largest, step};
};

} // namespace

std::unique_ptr<Gtk::Widget> makeScrollingPage() {
    return std::make_unique<Scrolling>();
}

} // namespace gallery
