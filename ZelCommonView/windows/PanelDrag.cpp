// The panel as source and target of a drag.
#include <ZelCommonView/windows/PanelView.h>

#include <ZelCommonView/common/EmitKept.h>

#include <gtkmm/targetentry.h>

#include <array>
#include <cstdlib>
#include <locale>
#include <sstream>

namespace Zel {

namespace {

constexpr const char* target = "panel";
constexpr int payloadFormat = 16;         // bits
constexpr std::size_t payloadLength = 16; // bytes
constexpr int halfCross = OverlayBoxView::iconSize / 2;

} // namespace

void PanelView::_initDrag() {
    const std::vector<Gtk::TargetEntry> targets{Gtk::TargetEntry(target, Gtk::TargetFlags(0), 0)};
    drag_source_set(targets, Gdk::BUTTON1_MASK, Gdk::ACTION_MOVE);
    drag_dest_set(targets, Gtk::DEST_DEFAULT_ALL, Gdk::ACTION_MOVE);

    signal_drag_begin().connect(sigc::mem_fun(*this, &PanelView::_on_drag_begin));
    signal_drag_end().connect(sigc::mem_fun(*this, &PanelView::_on_drag_end));
    signal_drag_data_get().connect(sigc::mem_fun(*this, &PanelView::_on_drag_data_get));
    signal_drag_motion().connect(sigc::mem_fun(*this, &PanelView::_on_drag_motion));
    signal_drag_leave().connect(sigc::mem_fun(*this, &PanelView::_on_drag_leave));
    signal_drag_data_received().connect(sigc::mem_fun(*this, &PanelView::_on_drop_drag_data_received));
    signal_draw().connect(sigc::mem_fun(*this, &PanelView::_onDraw));
}

Positions PanelView::_getPosition(int x, int y) const {
    const int cx = get_allocated_width() / 2;
    const int cy = get_allocated_height() / 2;
    const bool isMiddleX = cx - halfCross < x && x < cx + halfCross;
    const bool isMiddleY = cy - halfCross < y && y < cy + halfCross;
    // All strictly: the lines on a limit belong to no zone.
    if (isMiddleX && isMiddleY)
        return Positions::Center;
    if (isMiddleX && y < cy - halfCross)
        return Positions::Top;
    if (isMiddleX && y > cy + halfCross)
        return Positions::Bottom;
    if (isMiddleY && x < cx - halfCross)
        return Positions::Left;
    if (isMiddleY && x > cx + halfCross)
        return Positions::Right;
    return Positions::Default;
}

void PanelView::_hideOverlay() {
    overlayBox.hide();
    demoBox.hide();
    demoBox.setPanelParams(0.0, 0.0, Gtk::ORIENTATION_HORIZONTAL);
}

void PanelView::_on_drag_begin(const Glib::RefPtr<Gdk::DragContext>&) {
    isDragSource = true;
}

void PanelView::_on_drag_end(const Glib::RefPtr<Gdk::DragContext>&) {
    isDragSource = false;
}

void PanelView::_on_drag_data_get(const Glib::RefPtr<Gdk::DragContext>&, Gtk::SelectionData& selection, guint,
                                  guint) {
    // The address as text: the drag stays inside one process.
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << static_cast<const void*>(this);
    const std::string text = stream.str();
    // All of the bytes are sent, the text ends with the first zero.
    std::array<guint8, payloadLength> payload{};
    std::copy_n(text.begin(), std::min(text.size(), payload.size()), payload.begin());
    selection.set(selection.get_target(), payloadFormat, payload.data(), payload.size());
}

bool PanelView::_on_drag_motion(const Glib::RefPtr<Gdk::DragContext>& context, int x, int y, guint time) {
    if (isDragSource || context->get_actions() != Gdk::ACTION_MOVE)
        return false;
    if (_isFloating()) {
        context->drag_refuse(time);
        return false;
    }
    overlayBox.show();
    const Positions position = _getPosition(x, y);
    demoBox.set(position, position != Positions::Default);
    return false;
}

void PanelView::_on_drag_leave(const Glib::RefPtr<Gdk::DragContext>&, guint) {
    _hideOverlay();
}

void PanelView::_on_drop_drag_data_received(const Glib::RefPtr<Gdk::DragContext>& context, int x, int y,
                                            const Gtk::SelectionData& selection, guint, guint time) {
    _hideOverlay();
    if (_isFloating())
        return;
    if (selection.get_length() >= 0 && selection.get_format() == payloadFormat) {
        const std::string text = selection.get_data_as_string();
        const auto address = static_cast<std::uintptr_t>(std::strtoull(text.c_str(), nullptr, 16));
        if (address == 0 || address == reinterpret_cast<std::uintptr_t>(this))
            return;
        const Positions position = _getPosition(x, y);
        if (position == Positions::Default)
            return;
        // The address came as text. NOLINTNEXTLINE(performance-no-int-to-ptr)
        emitKept(signalDrop, this, reinterpret_cast<PanelView*>(address), position);
    }
    context->drag_finish(false, false, time);
}

} // namespace Zel
