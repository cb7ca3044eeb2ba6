// tqRevolvedSolidDefinition: empty from a unit alone, shared profile items, equality and the change of units.
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"

#include "solidsamples.h"

namespace {

using cadcam::tq2dLine;
using cadcam::tqRevolvedSolidDefinition;

const tq2dLine<double>& LineAt(const tqRevolvedSolidDefinition<double>& solid, std::size_t index) {
    return static_cast<const tq2dLine<double>&>(*solid.GetProfile().GetItem(index));
}

TEST(tqRevolvedSolidDefinition, AnEmptySolidNeedsOnlyAUnit) {
    const tqRevolvedSolidDefinition<double> empty(tqtest::kInch);
    EXPECT_EQ(empty.GetUnits(), tqtest::kInch);
    EXPECT_TRUE(empty.GetProfile().IsEmpty());
    EXPECT_EQ(empty, tqRevolvedSolidDefinition<double>(tqtest::kInch));
    EXPECT_NE(empty, tqRevolvedSolidDefinition<double>(tqtest::kMetric));
    EXPECT_TRUE(tqRevolvedSolidDefinition<float>(tqtest::kMetric).GetProfile().IsEmpty());
}

TEST(tqRevolvedSolidDefinition, ACopySharesTheProfileAndEqualityIsByItems) {
    const tqRevolvedSolidDefinition<double> solid(tqtest::kMetric, tqtest::CornerProfile<double>());
    const tqRevolvedSolidDefinition<double> copy(solid);
    EXPECT_EQ(copy.GetProfile().GetItem(0).Get(), solid.GetProfile().GetItem(0).Get());
    EXPECT_EQ(copy, solid);
    EXPECT_EQ(solid, tqRevolvedSolidDefinition<double>(tqtest::kMetric, tqtest::CornerProfile<double>()));
    EXPECT_NE(solid, tqRevolvedSolidDefinition<double>(tqtest::kInch, tqtest::CornerProfile<double>()));
    EXPECT_NE(solid, tqRevolvedSolidDefinition<double>(tqtest::kMetric, tqtest::Polyline<double>({{0, 0}, {3, 0}})));
}

TEST(tqRevolvedSolidDefinition, SetUnitsScalesItsOwnCopyOfTheProfile) {
    const tqRevolvedSolidDefinition<double> solid(tqtest::kMetric, tqtest::CornerProfile<double>());
    tqRevolvedSolidDefinition<double> scaled(solid);
    scaled.SetUnits(tqtest::kInch);
    EXPECT_EQ(scaled.GetUnits(), tqtest::kInch);
    EXPECT_DOUBLE_EQ(LineAt(scaled, 2).GetEnd().y, 10 / 25.4);
    const auto& arc = static_cast<const cadcam::tq2dArc<double>&>(*scaled.GetProfile().GetItem(1));
    EXPECT_DOUBLE_EQ(arc.GetRadius(), 1 / 25.4);
    EXPECT_EQ(arc.GetSweep(), 90);
    // The source that shared the items is untouched.
    EXPECT_EQ(LineAt(solid, 2).GetEnd().y, 10);
    scaled.SetUnits(tqtest::kMetric, true);
    EXPECT_DOUBLE_EQ(LineAt(scaled, 2).GetEnd().y, 10 / 25.4);
}

}  // namespace
