// tqWireSolidDefinition: equality by field, and scaling of both lengths.
#include "cadcam/tools/solids/tqwiresoliddefinition.h"

#include "solidsamples.h"

namespace {

using Wire = cadcam::tqWireSolidDefinition<double>;

TEST(tqWireSolidDefinition, EveryFieldTakesPartInEqualityAndLengthsScale) {
    const Wire wire(tqtest::kMetric, 0.25, 80, true);
    EXPECT_EQ(wire, Wire(tqtest::kMetric, 0.25, 80, true));
    EXPECT_NE(wire, Wire(tqtest::kInch, 0.25, 80, true));
    EXPECT_NE(wire, Wire(tqtest::kMetric, 0.3, 80, true));
    EXPECT_NE(wire, Wire(tqtest::kMetric, 0.25, 81, true));
    EXPECT_NE(wire, Wire(tqtest::kMetric, 0.25, 80, false));
    Wire inch(tqtest::kInch, 0.01, 2, true);
    inch.SetUnits(tqtest::kMetric);
    EXPECT_DOUBLE_EQ(inch.GetWireDiameter(), 0.254);
    EXPECT_DOUBLE_EQ(inch.GetWireLength(), 50.8);
    EXPECT_TRUE(inch.HasInfiniteLength());
}

}  // namespace
