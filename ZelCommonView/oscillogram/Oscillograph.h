#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/oscillogram/IOscillograph.h>

#include <gtkmm/bin.h>

#include <memory>

namespace ZelView {

/// Shows recorded signals over one time axis: curves and rows of on and off on stacked plots, a summary
/// strip, and a navigation that picks the visible part of the record.
class ZEL_API Oscillograph : public Gtk::Bin, public IOscillograph {
public:
    Oscillograph();
    ~Oscillograph() override;

    void getSeriesRange(float& from, float& to) override;
    void getSeriesRange(double& from, double& to) override;
    void setSeriesRange(float from, float to) override;
    void setSeriesRange(double from, double to) override;
    /// Shows exactly this part of the record and emits `signalSeriesRangeChanged` once, also if it is shown
    /// already. What reaches beyond the record is cut; without a duration nothing happens. Throws
    /// "showRange", a `const char*`, unless `from` and `to` are numbers and `from` is not above `to`.
    void showRange(float from, float to);
    int getPixelWidth() override;

    void addSeries(const Zel::Series* series) override;
    void deleteSeries(const Zel::Series* series) override;
    void clearSeries() override;

    void setSeriesDuration(float duration) override;
    void setHorizontalInterval(float from, float to) override;
    bool isActive() override;
    void showAll() override;

private:
    struct Impl;

    void _compose();
    void _onRangeChanged(float from, float to);
    void _onSizeAllocate(const Gtk::Allocation& allocation);
    void _onActiveToggled();

    std::unique_ptr<Impl> impl;
};

} // namespace ZelView
