// tqRevolvedSolidDefinition: shared profile items, equality by items and units, and the change of units.
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"

#include "solidsamples.h"

namespace {

using Revolved = cadcam::tqRevolvedSolidDefinition<double>;

const cadcam::tq2dLine<double>& LineAt(const Revolved& solid, std::size_t index) {
    return static_cast<const cadcam::tq2dLine<double>&>(*solid.GetProfile().GetItem(index));
}

TEST(tqRevolvedSolidDefinition, ACopySharesTheProfileAndEqualityIsByItemsAndUnits) {
    EXPECT_EQ(Revolved(tqtest::kInch), Revolved(tqtest::kInch));
    EXPECT_NE(Revolved(tqtest::kInch), Revolved(tqtest::kMetric));
    const Revolved solid(tqtest::kMetric, tqtest::CornerProfile<double>());
    EXPECT_EQ(Revolved(solid).GetProfile().GetItem(0).Get(), solid.GetProfile().GetItem(0).Get());
    EXPECT_EQ(solid, Revolved(tqtest::kMetric, tqtest::CornerProfile<double>()));
    EXPECT_NE(solid, Revolved(tqtest::kInch, tqtest::CornerProfile<double>()));
    EXPECT_NE(solid, Revolved(tqtest::kMetric, tqtest::Profile(0, 0).L(3, 0).Get()));
}

TEST(tqRevolvedSolidDefinition, SetUnitsScalesItsOwnCopyOfTheProfile) {
    const Revolved solid(tqtest::kMetric, tqtest::CornerProfile<double>());
    Revolved scaled(solid);
    scaled.SetUnits(tqtest::kInch);
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
