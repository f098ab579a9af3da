#pragma once

#include <string>

namespace viewer {

/// What a channel measures, told by its unit.
enum class Quantity { Voltage, Current, Other };

Quantity quantityOf(const std::string& unit);

/// A unit with a prefix that suits the numbers, and what they are multiplied by to be in it.
struct Scale {
    double factor = 1;
    std::string unit;
};

/// The prefix (from micro to giga) with which the largest size lies from 10 to 10,000. The axis of an
/// automatic plot always reaches from -1 to 10, so smaller numbers would be flat lines. Units other than
/// volts, amperes, watts and their like are left as they are, and so is a size of 0.
Scale scaleFor(const std::string& unit, double largest);

} // namespace viewer
