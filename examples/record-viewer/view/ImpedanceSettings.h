#pragma once

#include "impedance/Line.h"
#include "impedance/Zones.h"

#include <ZelCommonView/common/NumericRange.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string>

namespace viewer {

struct Impedances;

/// The numbers that a person may set, in the order in which they are shown and judged.
enum class Field { Z1, Z1Angle, K0, K0Angle, Frequency, Zone1, Zone2, Zone3, Backward };
constexpr std::size_t fieldCount = 9;
constexpr std::array<Field, fieldCount> allFields{Field::Z1,      Field::Z1Angle,   Field::K0,
                                                  Field::K0Angle, Field::Frequency, Field::Zone1,
                                                  Field::Zone2,   Field::Zone3,     Field::Backward};

/// Numbers that are given together or not at all; those of the zones always are.
enum class Group { Line, Compensation, Frequency, Zones };
/// How many groups need not be given.
constexpr std::size_t optionalGroupCount = 3;

Group groupOf(Field field);

/// Ohms for Z1, degrees for angles, hertz for the frequency, percent of the line for zones; k0 has no unit.
const Zel::NumericRange& rangeOf(Field field);

/// The number rounded to the steps of the field's range; a file may hold more digits than can be typed.
double rounded(Field field, double value);

/// A number as it stands in an entry: with a decimal point in every locale and without zeros at its end.
std::string textOf(double value);

/// What impedances and zones are computed from besides the record. All values lie in their ranges, and the
/// zones reach farther one after the other.
struct ImpedanceSettings {
    /// Zones as is usual, nothing else given.
    ImpedanceSettings();

    double operator[](Field field) const { return values[static_cast<std::size_t>(field)]; }

    double& operator[](Field field) { return values[static_cast<std::size_t>(field)]; }

    /// True for the group of the zones.
    bool has(Group group) const;
    void setGiven(Group group, bool value);

    impedance::LineSettings line() const;
    impedance::Reaches reaches() const;

    std::array<double, fieldCount> values;
    /// By the number of the group.
    std::array<bool, optionalGroupCount> isGiven{};
};

bool operator==(const ImpedanceSettings& a, const ImpedanceSettings& b);

/// The settings with what the record tells in place of everything that isn't given: its frequency, and the
/// line up to the fault that was assumed. What is out of range or not told stays as is usual.
ImpedanceSettings withTold(const ImpedanceSettings& settings, const Impedances& impedances);

/// Why settings can't be taken.
struct Veto {
    enum class Reason {
        NoNumber,
        OutOfRange,
        /// The zone before reaches as far or farther.
        NotBeyondFormer,
        /// Zone 3 reaches farther backward than forward.
        BeyondZone3
    };

    Field field = Field::Z1;
    Reason reason = Reason::NoNumber;
    /// What stands in the entry, and what the value is compared with, in the unit of the field.
    double value = 0;
    double other = 0;
};

/// The first value, in the order of the fields, that contradicts another one; empty if none does.
std::optional<Veto> contradictionIn(const ImpedanceSettings& settings);

/// What stands in the entries.
struct SettingsDraft {
    std::array<std::string, fieldCount> texts;
    std::array<bool, optionalGroupCount> isGiven{};
};

struct SettingsVerdict {
    /// Empty if there is a veto.
    std::optional<ImpedanceSettings> settings;
    std::optional<Veto> veto;
};

/// Reads the texts, the decimal point in every locale. What belongs to a group that isn't given is not looked
/// at and stays as is usual. The first text that is wrong is told, then the first contradiction.
SettingsVerdict judge(const SettingsDraft& draft);

} // namespace viewer
