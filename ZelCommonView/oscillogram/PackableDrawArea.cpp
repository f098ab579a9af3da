#include <ZelCommonView/oscillogram/PackableDrawArea.h>

#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>

#include <gtkmm/adjustment.h>

namespace ZelView {

PackableDrawArea::PackableDrawArea(SeriesGroupDrawArea& value) : drawArea(value), window(value) {
    toolbarGroup.addWidget(window.getToolbar());
    // The canvas shows another part of itself after scrolling.
    window.getWindow().get_vadjustment()->signal_value_changed().connect(
        sigc::mem_fun(drawArea, &SeriesGroupDrawArea::redrawFragmentable), true);
    grid.attach(window, 0, 0, 1, 1);
    grid.attach(window.getToolbar(), 1, 0, 1, 1);
    add(grid);
    show_all();
}

PackableDrawArea::~PackableDrawArea() = default;

void PackableDrawArea::setToolbarGroup(const SizeGroupAdapter& group) {
    toolbarGroup = group;
}

} // namespace ZelView
