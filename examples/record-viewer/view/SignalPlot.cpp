#include "SignalPlot.h"

#include <ZelCommonView/plot/CoordsDrawer.h>
#include <ZelCommonView/plot/SeriesDrawer.h>

#include <algorithm>
#include <cmath>

namespace viewer {

namespace {

constexpr int namesWidth = 180;            // pixels
constexpr int curveHeight = 260;           // of a plot of curves, pixels
constexpr int nameHeight = 16;             // pixels
constexpr float rowsMargin = 16;           // above the first binary row, pixels
constexpr double maxPicturesBytes = 128e6; // of one plot
constexpr float limitsMargin = 0.05f;      // free space above and below curves, of their span

} // namespace

SignalPlot::SignalPlot(Section value) : Gtk::Box(Gtk::ORIENTATION_HORIZONTAL), section(std::move(value)) {
    const int count = static_cast<int>(section.series.size());
    neededHeight = section.type == Zel::SeriesType::Binary ? (count + 1) * nameHeight
                                                           : std::max(curveHeight, (count + 2) * nameHeight);
    names.set_size_request(namesWidth, -1);
    names.signal_draw().connect(sigc::mem_fun(*this, &SignalPlot::_onDrawNames));
    canvas.set_size_request(200, neededHeight);
    canvas.signal_configure_event().connect(sigc::mem_fun(*this, &SignalPlot::_onConfigure), true);
    pack_start(names, Gtk::PACK_SHRINK);
    pack_start(canvas, Gtk::PACK_EXPAND_WIDGET);

    _addDrawers();
    _setLimits();
    for (const auto& series : section.series) {
        fragmentables.push_back(series.get());
        drawersManager.addFragmentable(*series);
    }
    show_all();
}

bool SignalPlot::_onConfigure(GdkEventConfigure* event) {
    converterProxy.setWidgetSize(static_cast<float>(event->width), static_cast<float>(event->height));
    if (_isPictureForEachWorthwhile(event->width, event->height))
        canvas.redraw(fragmentables.front());
    return false;
}

bool SignalPlot::_isPictureForEachWorthwhile(int width, int height) const {
    // After a new size the canvas paints all signals into one picture at each exposure. With a picture for
    // each it only composes, which is what long curves need; rows are painted quickly, and hundreds of
    // pictures fill the memory.
    const double bytes = 4.0 * width * height * static_cast<double>(section.series.size());
    return section.type == Zel::SeriesType::Analog && !section.series.empty() && bytes < maxPicturesBytes;
}

bool SignalPlot::_onDrawNames(const Cairo::RefPtr<Cairo::Context>& context) {
    context->set_source_rgb(1, 1, 1);
    context->paint();
    context->set_font_size(12);
    context->set_source_rgb(0.2, 0.2, 0.2);
    if (!section.title.empty()) {
        context->move_to(8, nameHeight);
        context->show_text("[" + section.title + "]");
    }
    for (std::size_t i = 0; i < section.series.size(); ++i) {
        const Zel::Color color = section.series[i]->color;
        context->set_source_rgb(color.r / 255.0, color.g / 255.0, color.b / 255.0);
        context->move_to(8, _getNameY(i) + 4);
        context->show_text(section.series[i]->name);
    }
    return true;
}

void SignalPlot::_addDrawers() {
    ZelView::CoordsDrawerCfg grid;
    std::unique_ptr<ZelView::BaseFragmentableDrawer> drawer;
    if (section.type == Zel::SeriesType::Binary) {
        grid.flags = ZelView::CoordsDrawerCfg::AxisY | ZelView::CoordsDrawerCfg::StepLinesX;
        drawer = std::make_unique<ZelView::BinarySeriesDrawer>();
    } else {
        drawer = std::make_unique<ZelView::AnalogSeriesDrawer>();
    }
    grid.color = {150, 150, 150, 255};
    auto gridDrawer = std::make_unique<ZelView::CoordsDrawer>(grid);

    drawer->fragmentables = &fragmentables;
    _initDrawer(*gridDrawer);
    drawersManager.addDrawer(std::move(gridDrawer), ZelView::DrawerPosition::BeforeFragments);
    _initDrawer(*drawer);
    drawersManager.addDrawer(std::move(drawer));
}

void SignalPlot::_initDrawer(ZelView::Drawer& drawer) {
    // The converter is never exchanged here, so there is no listening to that.
    drawer.converter = converterProxy.getConverter();
    drawer.drawerConverterChanged.emit();
    drawer.drawArea = &canvas;
    drawer.initDrawArea();
}

void SignalPlot::_setLimits() {
    float min = -1;
    float max = 1;
    bool isFirst = true;
    for (const auto& series : section.series) {
        float low = 0;
        float high = 0;
        series->getRangeY(low, high);
        if (!(low <= high))
            continue; // no samples
        min = isFirst ? low : std::min(min, low);
        max = isFirst ? high : std::max(max, high);
        isFirst = false;
    }
    const float margin =
        max > min ? (max - min) * limitsMargin : std::max(1.0f, std::fabs(max) * limitsMargin);

    // Set by hand: automatic limits always reach from -1 to 10, which would flatten small signals.
    converterProxy.setXBordersMode(ZelView::BordersMode::Manual);
    converterProxy.setYBordersMode(ZelView::BordersMode::Manual);
    converterProxy.setXBorders(section.xMin, section.xMax);
    converterProxy.setYBorders(min - margin, max + margin);
    if (section.type == Zel::SeriesType::Binary)
        converterProxy.setOffset({0, 0, rowsMargin, 0});
    canvas.redraw();
}

float SignalPlot::_getNameY(std::size_t position) const {
    if (section.type == Zel::SeriesType::Binary)
        return converterProxy.getConverter()->getZeroVisualY(section.series[position]->index);
    return static_cast<float>(nameHeight) * (static_cast<float>(position) + 2);
}

} // namespace viewer
