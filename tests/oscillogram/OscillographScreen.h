/// An oscillograph on the screen, as a person sees and touches it.
#pragma once

#include "oscillogram/Sections.h"
#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/markers/ContextMenuAdapter.h>
#include <ZelCommonView/markers/MarkerDrawer.h>
#include <ZelCommonView/markers/MarkersManager.h>
#include <ZelCommonView/oscillogram/Oscillograph.h>
#include <ZelCommonView/oscillogram/OscillographImpl.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace test {

using Range = std::pair<float, float>;

/// Two plots of curves, one of rows and the strip, over a record of 100.
class OscillographScreen : public testing::Test {
protected:
    OscillographScreen() {
        for (const Zel::Series* series : {&analog, &second, &other, &binary})
            oscillograph.addSeries(series);
        oscillograph.setSeriesDuration(100);
        oscillograph.signalSeriesRangeChanged.connect(
            [this](float from, float to) { told.emplace_back(from, to); });
        window.set_default_size(800, 900);
        window.add(oscillograph);
        present(window);
        settle();
    }

    ~OscillographScreen() override {
        movePointerAway();
        settle();
    }

    ZelView::Oscillograph::Impl& impl() { return *oscillograph.impl; }

    ZelView::SeriesGroupDrawArea& analogArea(std::size_t i) {
        return *impl().facade.analogSections.getDrawAreas().at(i);
    }

    ZelView::SeriesGroupDrawArea& binaryArea() { return *impl().facade.binarySections.getDrawAreas().at(0); }

    ZelView::SeriesGroupDrawArea& summaryArea() {
        return *impl().facade.summarySections.getDrawAreas().at(0);
    }

    std::vector<ZelView::SeriesGroupDrawArea*> all() {
        return {&analogArea(0), &analogArea(1), &binaryArea(), &summaryArea()};
    }

    static ZelView::FragmentsDrawArea& canvas(ZelView::SeriesGroupDrawArea& area) {
        return area.getFragmensDrawArea();
    }

    static ZelView::MarkerDrawer& markerDrawer(ZelView::SeriesGroupDrawArea& area) {
        return *findDrawer<ZelView::MarkerDrawer>(area);
    }

    static auto& markers(ZelView::SeriesGroupDrawArea& area) { return markerDrawer(area).manager->markers; }

    /// The world x of a pixel column, the same on all plots.
    float realX(int x) {
        return summaryArea().converterProxy.getConverter()->getRealX(static_cast<float>(x));
    }

    /// Right click at the place and left click on the item.
    static void choose(ZelView::SeriesGroupDrawArea& area, int x, int y, const std::string& text) {
        ZelView::ContextMenuAdapter& menu = *markerDrawer(area).contextMenu;
        click(canvas(area), x, y, 3);
        ASSERT_TRUE(waitFor([&menu] { return menu.menu.get_mapped(); }));
        for (Gtk::MenuItem& item : menu.items)
            if (item.get_label() == text) {
                click(item);
                ASSERT_TRUE(waitFor([&menu] { return !menu.menu.get_mapped(); }));
                settle();
                return;
            }
        FAIL() << "there is no item " << text;
    }

    /// The composed picture of a plot, without the interval and the cursor.
    static Picture composed(ZelView::SeriesGroupDrawArea& area) {
        settle();
        return pictureOf(canvas(area).helper.getBackground());
    }

    /// Whether a marker line runs down the pixel column over most of the plot.
    static bool hasLineAt(ZelView::SeriesGroupDrawArea& area, int x) {
        const Picture seen = composed(area);
        int count = 0;
        for (int y = 0; y < seen.height; ++y) {
            const std::vector<int> pixel = seen.at(x, y);
            count += pixel[0] == 0 && pixel[1] == 0 && pixel[2] == 255;
        }
        return count > seen.height / 2;
    }

    /// Fails unless every plot looks like that of an oscillograph that never showed another range.
    void expectFresh(float from, float to) {
        ZelView::Oscillograph fresh;
        for (const Zel::Series* series : {&analog, &second, &other, &binary})
            fresh.addSeries(series);
        fresh.setSeriesDuration(100);
        fresh.showRange(from, to);
        const auto pictures = [this](ZelView::Oscillograph& shown) {
            std::vector<Picture> seen;
            for (auto* sections : std::vector<ZelView::DrawAreaSections*>{
                     &shown.impl->facade.analogSections, &shown.impl->facade.binarySections,
                     &shown.impl->facade.summarySections})
                for (ZelView::SeriesGroupDrawArea* area : sections->getDrawAreas())
                    seen.push_back(composed(*area));
            return seen;
        };
        settle();
        const std::vector<Picture> seen = pictures(oscillograph);
        Gtk::OffscreenWindow host;
        host.set_default_size(oscillograph.get_allocated_width(), oscillograph.get_allocated_height());
        host.add(fresh);
        host.show_all();
        settle();
        // Fragments that are painted one by one blend a little differently where they cross.
        const auto& own = impl().facade.sectionsSynchronizer.drawAreaSynchronizer.drawAreas;
        const auto& others = fresh.impl->facade.sectionsSynchronizer.drawAreaSynchronizer.drawAreas;
        ASSERT_EQ(own.size(), others.size());
        for (std::size_t i = 0; i < own.size(); ++i) {
            others[i]->getFragmensDrawArea().redraw();
            others[i]->getFragmensDrawArea().redrawAll = own[i]->getFragmensDrawArea().redrawAll;
        }
        settle();
        const std::vector<Picture> expected = pictures(fresh);
        ASSERT_EQ(seen.size(), expected.size());
        for (std::size_t i = 0; i < seen.size(); ++i)
            expectSame(seen[i], expected[i]);
        host.remove();
    }

    Zel::Series analog = makeAnalog(0), second = makeAnalog(0, {0, 0, 200, 255}),
                other = makeAnalog(1, {200, 0, 200, 255}), binary = makeBinary(0, 1);
    std::vector<Range> told;
    ZelView::Oscillograph oscillograph;
    Gtk::Window window;
};

} // namespace test
