/// How markers look and what their menu offers; plain values that a host adjusts before the drawer is
/// initialised.
#pragma once

#include <ZelCommonView/plot/Series.h>

#include <cstdint>

namespace ZelView {

/// The look of a marker's label; sizes in pixels.
struct MarkerDrawerTextCfg {
    float fontSize = 12;
    float normalBorderWidth = 2;
    float selectedBorderWidth = 4;
    Zel::Color textColor = {0, 0, 0, 255};
    Zel::Color backgroundColor = {190, 190, 190, 255};
    Zel::Color normalBorderColor = {0, 0, 255, 255};
    Zel::Color selectedBorderColor = {255, 0, 191, 255};
};

/// The look of markers and the groups of their context menu.
struct MarkerDrawerCfg {
    /// Bits of `menuFlags`.
    enum MenuFlag : std::uint32_t {
        CreateHorizontal = 1,
        CreateVertical = 2,
        DeleteAndExport = 4,
    };

    std::uint32_t menuFlags = 0xFFFFFFFF;
    MarkerDrawerTextCfg text;
    float lineWidth = 2; ///< pixels
    Zel::Color lineColor = {0, 0, 255, 255};
    Zel::Color fillColor = {81, 255, 0, 122}; ///< band of a double marker
};

} // namespace ZelView
