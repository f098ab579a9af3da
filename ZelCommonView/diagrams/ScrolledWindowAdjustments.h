#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/diagrams/IScrollInfo.h>

#include <gtkmm/adjustment.h>

#include <utility>

namespace ZelView {

/// Holds the place of a scrolled view as an anchor: a point of the content, relative to the size of the
/// content, and the point of the viewport where it is to be seen. So the place survives a change of either
/// size: `refresh` scrolls the anchored point back to where it was.
class ZEL_API ScrolledWindowAdjustments : public IScrollInfo {
public:
    /// The adjustments of both directions, which are shared with whoever scrolls.
    ScrolledWindowAdjustments(Glib::RefPtr<Gtk::Adjustment> hAdjustment,
                              Glib::RefPtr<Gtk::Adjustment> vAdjustment);
    ~ScrolledWindowAdjustments() override;

    int getWidthBefore() const override;
    int getHeightBefore() const override;
    int getWidthCurrent() const override;
    int getHeightCurrent() const override;
    int getWidthAfter() const override;
    int getHeightAfter() const override;
    int getWidthTotal() const override;
    int getHeightTotal() const override;

    /// Anchors the point of the content that is seen at this place of the viewport, in pixels from its top
    /// left corner. Before the first allocation it anchors the top left corner.
    void setProgress(float x, float y);
    /// Anchors what is seen in the middle of the viewport; before the first allocation the middle of the
    /// content.
    void setProgressCenter();
    /// Scrolls so that the anchored point is seen where it was, as far as the content reaches.
    void refresh();
    /// Scrolls by pixels times `speed` and anchors what is seen in the middle of the viewport then.
    void move(float dx, float dy);

    /// Anchors what is seen in the middle if the view was scrolled horizontally by others since the last
    /// allocation: by a scrollbar, a key or the program. Otherwise the next `refresh` would undo that.
    /// To be called whenever the value of the horizontal adjustment has changed.
    void followX();
    /// The same for the vertical adjustment.
    void followY();
    /// Takes the sizes that both adjustments have for settled. Until this is called after a change of size,
    /// values are the work of the allocation and not followed.
    void settle();

    float speed = 1; ///< multiplier of `move`; 0 or above

private:
    void _anchorMiddle(float dx, float dy);

    Glib::RefPtr<Gtk::Adjustment> hAdjustment;
    Glib::RefPtr<Gtk::Adjustment> vAdjustment;
    float progressX = 0; ///< where the anchored point is in the viewport; 0 left, 1 right
    float progressY = 0;
    float anchorX = 0; ///< the anchored point of the content; 0 left, 1 right
    float anchorY = 0;
    std::pair<double, double> hSizes; ///< upper and page when last settled
    std::pair<double, double> vSizes;
};

} // namespace ZelView
