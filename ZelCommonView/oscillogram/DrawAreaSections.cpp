#include <ZelCommonView/oscillogram/DrawAreaSections.h>

#include <ZelCommonView/plot/Series.h>

#include <iterator>

namespace ZelView {

DrawAreaSections::DrawAreaSections() = default;

DrawAreaSections::~DrawAreaSections() = default;

void DrawAreaSections::addSeries(const Zel::Series* series) {
    if (!_isCorrectSeries(series))
        return;
    SeriesGroupDrawArea& drawArea = _getSeriesGroupDrawArea(series->drawAreaIndex);
    drawArea.addBorderable(*series);
    drawArea.addFragmentable(*series);
}

void DrawAreaSections::deleteSeries(const Zel::Series* series) {
    if (!_isCorrectSeries(series))
        return;
    SeriesGroupDrawArea& drawArea = _getSeriesGroupDrawArea(series->drawAreaIndex);
    drawArea.deleteBorderable(*series);
    drawArea.deleteFragmentable(*series);
}

void DrawAreaSections::clearSeries() {
    for (SeriesGroupDrawArea& drawArea : drawAreas) {
        drawArea.clearFragmentable();
        drawArea.clearBorderable();
    }
}

void DrawAreaSections::redrawSeries() {
    for (SeriesGroupDrawArea& drawArea : drawAreas)
        drawArea.redrawFragmentable();
}

void DrawAreaSections::setToolbarGroup(SizeGroupAdapter& group) {
    toolbarGroup = group;
    _onToolbarGroupChange();
}

std::vector<SeriesGroupDrawArea*> DrawAreaSections::getDrawAreas() {
    std::vector<SeriesGroupDrawArea*> all;
    all.reserve(drawAreas.size());
    for (SeriesGroupDrawArea& drawArea : drawAreas)
        all.push_back(&drawArea);
    return all;
}

void DrawAreaSections::_onDrawAreaCreate(SeriesGroupDrawArea&) {}

void DrawAreaSections::_onToolbarGroupChange() {}

SeriesGroupDrawArea& DrawAreaSections::_getSeriesGroupDrawArea(unsigned long index) {
    while (index >= drawAreas.size())
        _createDrawArea();
    return *std::next(drawAreas.begin(), static_cast<std::ptrdiff_t>(index));
}

void DrawAreaSections::_createDrawArea() {
    SeriesGroupDrawArea& drawArea = drawAreas.emplace_back();
    // Pointer and markers move over curves that stay as they are.
    drawArea.getFragmensDrawArea().setIsRetaining(true);
    drawArea.show();
    drawArea.set_size_request(-1, static_cast<int>(_getDrawAreaMinHeight()));
    _onDrawAreaCreate(drawArea);
    // Whoever keeps the plots in step finds all drawers of the new one in place.
    signalDrawAreaCreated.emit(drawArea);
}

} // namespace ZelView
