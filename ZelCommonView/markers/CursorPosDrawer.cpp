#include <ZelCommonView/markers/CursorPosDrawer.h>

#include <ZelCommonView/plot/CairoColor.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <gdkmm/cursor.h>
#include <gtkmm/widget.h>

#include <cstdio>
#include <vector>

namespace ZelView {

namespace {

std::string formatNumber(float value) {
    // The buffer cuts long numbers at 9 characters; that is meant.
    char text[10];
    std::snprintf(text, sizeof text, "%.4f", static_cast<double>(value));
    return text;
}

void setPointerShape(Gtk::Widget& widget, Gdk::CursorType type) {
    if (const Glib::RefPtr<Gdk::Window> window = widget.get_window())
        window->set_cursor(Gdk::Cursor::create(window->get_display(), type));
}

} // namespace

CursorPosDrawer::~CursorPosDrawer() = default;

void CursorPosDrawer::initDrawArea() {
    Gtk::Widget& widget = getDrawArea();
    widget.add_events(Gdk::POINTER_MOTION_MASK | Gdk::LEAVE_NOTIFY_MASK);
    widget.signal_motion_notify_event().connect(sigc::mem_fun(*this, &CursorPosDrawer::_onCursorMotion),
                                                true);
    widget.signal_leave_notify_event().connect(sigc::mem_fun(*this, &CursorPosDrawer::_onCursorLeave), true);
}

void CursorPosDrawer::draw(const Cairo::RefPtr<Cairo::Context>& context) {
    static const std::vector<double> dashes{5.0};

    // The pointer's shape changes here and not in the event handlers: it belongs to what is painted.
    Gtk::Widget& widget = getDrawArea();
    context->set_antialias(Cairo::ANTIALIAS_NONE);
    if (hidden) {
        context->show_text("");
        setPointerShape(widget, Gdk::ARROW);
        return;
    }
    setPointerShape(widget, Gdk::CROSSHAIR);

    context->move_to(position.x + 2, position.y - 2);
    const Zel::Color color = cfg.textColor;
    setSource(context, color);
    context->set_font_size(cfg.fontSize);
    context->show_text(_getText());

    context->set_line_width(cfg.lineWidth);
    context->set_dash(dashes, 0);
    context->set_source_rgba(50 / 255.0, 50 / 255.0, 50 / 255.0, 1.0);
    context->move_to(0, position.y);
    context->line_to(widget.get_width(), position.y);
    context->stroke();
    context->move_to(position.x, 0);
    context->line_to(position.x, widget.get_height());
    context->stroke();
}

bool CursorPosDrawer::_onCursorMotion(GdkEventMotion* event) {
    hidden = false;
    position = {static_cast<float>(event->x), static_cast<float>(event->y)};
    getDrawArea().queue_draw();
    return false;
}

bool CursorPosDrawer::_onCursorLeave(GdkEventCrossing*) {
    hidden = true;
    getDrawArea().queue_draw();
    return false;
}

std::string CursorPosDrawer::_getText() const {
    std::string text;
    if (cfg.flags & CursorPosDrawerCfg::ShowX)
        text = formatNumber(converter->getRealX(position.x));
    if (cfg.flags & CursorPosDrawerCfg::ShowY) {
        if (!text.empty())
            text += ", ";
        text += formatNumber(converter->getRealY(position.y));
    }
    return text;
}

} // namespace ZelView
