#include <ZelCommonView/oscillogram/Oscillograph.h>

#include <ZelCommonView/oscillogram/OscillographImpl.h>

namespace ZelView {

Oscillograph::Oscillograph() : impl(std::make_unique<Impl>()) {
    impl->rangeScrollbar.signalRangeChanged.connect(sigc::mem_fun(*this, &Oscillograph::_onRangeChanged));
    signal_size_allocate().connect(sigc::mem_fun(*this, &Oscillograph::_onSizeAllocate), true);
    impl->activeCheck.set_active(true);
    impl->activeCheck.signal_toggled().connect(sigc::mem_fun(*this, &Oscillograph::_onActiveToggled), true);
    _compose();
    show_all();
}

Oscillograph::~Oscillograph() = default;

void Oscillograph::getSeriesRange(float& from, float& to) {
    impl->rangeScrollbar.getRange(from, to);
}

void Oscillograph::getSeriesRange(double& from, double& to) {
    impl->rangeScrollbar.getRange(from, to);
}

void Oscillograph::setSeriesRange(float from, float to) {
    impl->rangeScrollbar.setRange(from, to);
}

void Oscillograph::setSeriesRange(double from, double to) {
    impl->rangeScrollbar.setRange(from, to);
}

void Oscillograph::showRange(float from, float to) {
    impl->rangeScrollbar.showRange(from, to);
}

int Oscillograph::getPixelWidth() {
    return impl->facade.getPixelWidth();
}

void Oscillograph::addSeries(const Zel::Series* series) {
    impl->facade.addSeries(series);
}

void Oscillograph::deleteSeries(const Zel::Series* series) {
    impl->facade.deleteSeries(series);
}

void Oscillograph::clearSeries() {
    impl->facade.clearSeries();
}

void Oscillograph::setSeriesDuration(float duration) {
    if (duration < 0)
        throw "некорректная длительность серий";
    impl->rangeScrollbar.setMax(duration);
}

void Oscillograph::setHorizontalInterval(float from, float to) {
    impl->facade.setHorizontalInterval(from, to);
}

bool Oscillograph::isActive() {
    return impl->activeCheck.get_active();
}

void Oscillograph::showAll() {
    show_all();
}

void Oscillograph::_compose() {
    ButtonsToolbar& toolbar = impl->rangeScrollbar.getToolbarWidget();
    toolbar.set_halign(Gtk::ALIGN_END);
    impl->grid.attach(toolbar, 0, 0, 1, 1);
    impl->grid.attach(impl->facade, 0, 1, 1, 1);
    impl->grid.attach(impl->rangeScrollbar.getScrollWidget(), 0, 2, 1, 1);
    add(impl->grid);
}

void Oscillograph::_onRangeChanged(float from, float to) {
    impl->facade.setSeriesTime(from, to);
    signalSeriesRangeChanged.emit(from, to);
}

void Oscillograph::_onSizeAllocate(const Gtk::Allocation&) {
    const int width = getPixelWidth();
    if (impl->pixelWidth != -1) {
        if (width == impl->pixelWidth)
            return;
        signalPixelWidthChanged.emit(width);
    }
    impl->pixelWidth = width;
}

void Oscillograph::_onActiveToggled() {
    signalActiveChanged.emit(isActive());
}

} // namespace ZelView
