/// What the tests of sections and oscillograms share: series, failures as texts, and what a plot holds.
#pragma once

#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>
#include <ZelCommonView/plot/Series.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>

namespace test {

/// What the action throws, as a text.
inline std::string thrownBy(const std::function<void()>& action) {
    try {
        action();
    } catch (const char* text) {
        return text;
    } catch (const std::out_of_range& error) {
        return std::string("out of range: ") + error.what();
    }
    return "nothing";
}

/// A wave over 0 to 100.
inline Zel::Series makeAnalog(std::uint32_t drawAreaIndex = 0, Zel::Color color = {200, 0, 0, 255}) {
    Zel::Series series;
    series.name = "curve";
    series.color = color;
    series.drawAreaIndex = drawAreaIndex;
    for (int i = 0; i <= 100; ++i) {
        const auto x = static_cast<float>(i);
        series.points.push_back({x, 5 * std::sin(x / 6) + x / 20});
    }
    return series;
}

/// A row that changes every seven units over 0 to 100.
inline Zel::Series makeBinary(std::uint32_t drawAreaIndex = 0, std::uint64_t index = 0) {
    Zel::Series series;
    series.name = "binary";
    series.type = Zel::SeriesType::Binary;
    series.color = {0, 120, 0, 255};
    series.index = index;
    series.drawAreaIndex = drawAreaIndex;
    for (int i = 0; i <= 100; ++i)
        series.points.push_back({static_cast<float>(i), static_cast<float>(i / 7 % 2)});
    return series;
}

/// A series that no section knows.
inline Zel::Series makeUnknown() {
    Zel::Series series = makeAnalog();
    series.type = static_cast<Zel::SeriesType>(2);
    return series;
}

inline std::size_t countSeries(const ZelView::SeriesGroupDrawArea& area) {
    return area.fragmentableCollection.getFragmentableCollection().size();
}

/// The drawer of a type on a plot, null if there is none.
template <typename T>
T* findDrawer(const ZelView::SeriesGroupDrawArea& area) {
    for (ZelView::Drawer* drawer : area.getDrawers())
        if (T* const found = dynamic_cast<T*>(drawer))
            return found;
    return nullptr;
}

} // namespace test
