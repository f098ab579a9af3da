#include "view/Quantity.h"

#include <gtest/gtest.h>

using viewer::Quantity;

TEST(Quantity, IsToldByTheUnitWithAnyPrefix) {
    for (const char* unit : {"V", "kV", "mV"})
        EXPECT_EQ(viewer::quantityOf(unit), Quantity::Voltage) << unit;
    for (const char* unit : {"A", "kA", "mA"})
        EXPECT_EQ(viewer::quantityOf(unit), Quantity::Current) << unit;
    for (const char* unit : {"", "VA", "Hz", "deg", "none", "KV"})
        EXPECT_EQ(viewer::quantityOf(unit), Quantity::Other) << unit;
}

TEST(Quantity, GetsAPrefixWithWhichTheNumbersFillAnAxis) {
    const auto expect = [](const char* unit, double largest, const char* scaledUnit, double factor) {
        const viewer::Scale scale = viewer::scaleFor(unit, largest);
        EXPECT_EQ(scale.unit, scaledUnit) << unit << " " << largest;
        EXPECT_DOUBLE_EQ(scale.factor, factor) << unit << " " << largest;
    };
    expect("V", 110000, "kV", 1e-3);
    expect("V", 9999, "V", 1);
    expect("V", 10000, "kV", 1e-3);
    expect("kV", 330, "kV", 1);
    expect("kV", 0.5, "V", 1e3);
    expect("A", 0.3, "mA", 1e3);
    expect("A", 1e-9, "uA", 1e6);
    expect("Hz", 50, "Hz", 1);
    expect("A", 0, "A", 1);
    expect("none", 1e9, "none", 1);
}
