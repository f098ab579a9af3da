/// What paints a recorded signal into its fragment: curves and rows of on and off.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/Drawer.h>
#include <ZelCommonView/plot/Series.h>

struct _GdkEventCrossing;

namespace ZelView {

/// The common base of the two drawers of `Zel::Series`.
class ZEL_API SeriesDrawer : public FragmentableDrawer<Zel::Series> {
public:
    ~SeriesDrawer() override;
};

/// Paints an analog series as a curve of separate segments, in the series' colour and thickness.
///
/// Series of the other type and those of fewer than 2 points paint nothing. Every point counts, none is
/// skipped or merged. A coordinate that is not a number is passed on unchecked, and cairo takes it for 0.
class ZEL_API AnalogSeriesDrawer : public SeriesDrawer {
public:
    void _draw(const Cairo::RefPtr<Cairo::Context>& context, const Zel::Series& series) override;
};

/// Paints a binary series as a row: a box for each run of on, a thin line for each run of off.
///
/// A pointer that enters or leaves the draw area repaints all binary fragments of the area.
class ZEL_API BinarySeriesDrawer : public SeriesDrawer {
public:
    /// Starts to watch the pointer. Throws "getDrawArea", a `const char*`, without a draw area.
    void initDrawArea() override;
    void _draw(const Cairo::RefPtr<Cairo::Context>& context, const Zel::Series& series) override;

protected:
    /// Line width of the series, in pixels.
    float _getSeriesThickness(const Zel::Series& series) const;
    /// The first y that isn't 0, not-a-number included; 0 if there is none.
    float _getFirstNonZeroY(const Zel::Series& series) const;

private:
    bool _onCrossing(_GdkEventCrossing* event);
    /// Emits `changed` of every binary series of the area.
    void _callRedraw();
    void _drawRun(const Cairo::RefPtr<Cairo::Context>& context, const Zel::Series& series, bool isOn,
                  float fromX, float toX) const;
    void _drawOff(const Cairo::RefPtr<Cairo::Context>& context, const Zel::Series& series, float fromX,
                  float toX) const;
    void _drawOn(const Cairo::RefPtr<Cairo::Context>& context, const Zel::Series& series, float fromX,
                 float toX) const;
};

} // namespace ZelView
