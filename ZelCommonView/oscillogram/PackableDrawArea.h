#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/oscillogram/ResizableWindow.h>
#include <ZelCommonView/oscillogram/SizeGroupAdapter.h>

#include <gtkmm/bin.h>
#include <gtkmm/grid.h>

namespace ZelView {

class SeriesGroupDrawArea;

/// The frame of one plot of a section: the plot in a window that scrolls vertically, and right of it the
/// buttons that change the plot's height.
class ZEL_API PackableDrawArea : public Gtk::Bin {
public:
    /// Frames the plot, which stays the section's and must live as long as it may be asked for.
    explicit PackableDrawArea(SeriesGroupDrawArea& drawArea);
    ~PackableDrawArea() override;

    /// The plot that is packed.
    SeriesGroupDrawArea& getDrawArea() const { return drawArea; }

    /// Gives the buttons the width of others.
    void setToolbarGroup(const SizeGroupAdapter& group);

private:
    SeriesGroupDrawArea& drawArea;
    SizeGroupAdapter toolbarGroup; ///< one of its own until the section's is assigned
    Gtk::Grid grid;
    ResizableWindow window;
};

} // namespace ZelView
