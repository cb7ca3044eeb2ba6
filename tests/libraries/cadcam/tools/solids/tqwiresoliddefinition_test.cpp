// tqWireSolidDefinition: fields, equality by field, and scaling of both lengths.
#include "cadcam/tools/solids/tqwiresoliddefinition.h"

#include "solidsamples.h"

namespace {

using Wire = cadcam::tqWireSolidDefinition<double>;

TEST(tqWireSolidDefinition, FieldsAndEquality) {
    const Wire wire(tqtest::kMetric, 0.25, 80, true);
    EXPECT_EQ(wire.GetWireDiameter(), 0.25);
    EXPECT_EQ(wire.GetWireLength(), 80);
    EXPECT_TRUE(wire.HasInfiniteLength());
    EXPECT_EQ(wire, Wire(tqtest::kMetric, 0.25, 80, true));
    EXPECT_NE(wire, Wire(tqtest::kInch, 0.25, 80, true));
    EXPECT_NE(wire, Wire(tqtest::kMetric, 0.3, 80, true));
    EXPECT_NE(wire, Wire(tqtest::kMetric, 0.25, 81, true));
    EXPECT_NE(wire, Wire(tqtest::kMetric, 0.25, 80, false));
}

TEST(tqWireSolidDefinition, SetUnitsScalesDiameterAndLength) {
    Wire wire(tqtest::kInch, 0.01, 2, true);
    wire.SetUnits(tqtest::kMetric);
    EXPECT_DOUBLE_EQ(wire.GetWireDiameter(), 0.254);
    EXPECT_DOUBLE_EQ(wire.GetWireLength(), 50.8);
    EXPECT_TRUE(wire.HasInfiniteLength());
}

}  // namespace
