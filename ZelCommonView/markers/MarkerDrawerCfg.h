/// How markers look and what their menu offers; plain values that a host adjusts before the drawer is
/// initialised.
#pragma once

#include <ZelCommonView/plot/Series.h>

#include <cstdint>

namespace ZelView {

/// The look of a marker's label; sizes in pixels.
struct MarkerDrawerTextCfg {
    float fontSize = 12;                                 ///< of the label
    float normalBorderWidth = 2;                         ///< of a label that stands
    float selectedBorderWidth = 4;                       ///< of a label that is moved
    Zel::Color textColor = {0, 0, 0, 255};               ///< of the label
    Zel::Color backgroundColor = {190, 190, 190, 255};   ///< of the label
    Zel::Color normalBorderColor = {0, 0, 255, 255};     ///< of a label that stands
    Zel::Color selectedBorderColor = {255, 0, 191, 255}; ///< of a label that is moved
};

/// The look of markers and the groups of their context menu.
struct MarkerDrawerCfg {
    /// Bits of `menuFlags`.
    enum MenuFlag : std::uint32_t {
        CreateHorizontal = 1, ///< the two items that create horizontal markers
        CreateVertical = 2,   ///< the two items that create vertical markers
        DeleteAndExport = 4,  ///< delete one, delete all, export the picture
    };

    std::uint32_t menuFlags = 0xFFFFFFFF;     ///< bits of `MenuFlag`; all at first
    MarkerDrawerTextCfg text;                 ///< the label
    float lineWidth = 2;                      ///< pixels
    Zel::Color lineColor = {0, 0, 255, 255};  ///< of the lines of all markers
    Zel::Color fillColor = {81, 255, 0, 122}; ///< band of a double marker
};

} // namespace ZelView
