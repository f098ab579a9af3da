#pragma once

namespace Zel {

/// The place of a panel relative to another one.
enum class Positions {
    Left = 0,
    Right = 1,
    Top = 2,
    Bottom = 3,
    Center = 4,  ///< in tabs with it
    Default = 5, ///< no particular place: as `Left`; during a drag, none where a panel can be dropped
};

} // namespace Zel
