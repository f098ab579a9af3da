/// The two sections that show signals: curves, and rows of on and off.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/oscillogram/DrawAreaSections.h>
#include <ZelCommonView/oscillogram/PackableDrawArea.h>
#include <ZelCommonView/oscillogram/WidgetSeparatorSequence.h>

#include <list>

namespace ZelView {

/// A section whose plots scroll, have buttons for their height, and are separated by what the user can drag.
///
/// It shows two plots at most, as `WidgetSeparatorSequence` does. This is meant: further ones exist and are
/// kept in step, and aren't seen.
class ZEL_API SeriesSections : public DrawAreaSections {
public:
    SeriesSections();
    ~SeriesSections() override;

protected:
    void _onDrawAreaCreate(SeriesGroupDrawArea& drawArea) override;
    void _onToolbarGroupChange() override;
    /// For a new plot that stands in its place: the place to add drawers. The default does nothing.
    virtual void _onSeriesGroupDrawAreaCreate(SeriesGroupDrawArea& drawArea);

private:
    /// Repaints the plot in the frame; throws `std::bad_cast` for another widget.
    void _onSeparatorMoved(Gtk::Widget& widget);

    WidgetSeparatorSequence separators{false};
    std::list<PackableDrawArea> packableDrawAreas; ///< one for each plot
};

/// Shows analog series as curves over a grid with numbers.
class ZEL_API AnalogSections : public SeriesSections {
public:
    ~AnalogSections() override;

protected:
    float _getDrawAreaMinHeight() const override;
    bool _isCorrectSeries(const Zel::Series* series) const override;
    void _onSeriesGroupDrawAreaCreate(SeriesGroupDrawArea& drawArea) override;
};

/// Shows binary series as rows over vertical grid lines; a y value means nothing here, so there are no
/// horizontal lines or markers and no y in the cursor readout.
class ZEL_API BinarySections : public SeriesSections {
public:
    ~BinarySections() override;

protected:
    float _getDrawAreaMinHeight() const override;
    bool _isCorrectSeries(const Zel::Series* series) const override;
    void _onSeriesGroupDrawAreaCreate(SeriesGroupDrawArea& drawArea) override;
};

} // namespace ZelView
