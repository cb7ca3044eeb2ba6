// tqGenericExtrudedTool: its one solid as a shared cutting part, the refusals, and scaling a copy of the solid.
#include "cadcam/tools/other/tqgenericextrudedtool.h"

#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "cadcam/tools/solids/tqextrudedsoliddefinition.h"
#include "othertestsupport.h"

namespace othertest {
namespace {

using cadcam::tqGenericExtrudedTool;
using Extruded = cadcam::tqExtrudedSolidDefinition<double>;

TEST(tqGenericExtrudedTool, ItsSolidIsItsSharedCuttingPart) {
    EXPECT_NO_THROW(tqGenericExtrudedTool(kMetric, Arbor(), Holder(), Profile(0, 0).L(5, 0).L(5, 10).Solid()));
    EXPECT_THROW_CODE(tqGenericExtrudedTool(kMetric, Arbor(), Holder(), SolidPointer()), misc::tqException, 0,
                      "Accessing TQ_NULL pointer");
    EXPECT_THROW_CODE(tqGenericExtrudedTool(kMetric, Arbor(), Holder(), Profile(0, 1).L(5, 1).L(5, 10).Solid()), E,
                      2202, "Cutting part profile must start at Y=0");

    const auto square = Profile(0, 0).L(10, 0).L(10, 10).L(0, 10).L(0, 0).Get();
    const SolidPointer plate(new Extruded(kMetric, {0, -25.4, 0}, 0, {0, -1, 0}, {square}));
    const tqGenericExtrudedTool tool(kMetric, Arbor(), Holder(), plate);
    EXPECT_EQ(tool.GetSolid().Get(), plate.Get());
    EXPECT_EQ(tool.GetCuttingPart()->GetSolid().Get(), plate.Get());
    // A change of units scales a copy: the solid the source shares stays.
    tqGenericExtrudedTool inch(tool);
    inch.SetUnits(kInch);
    const auto scaled = inch.GetSolid().DynamicCast<Extruded>();
    ASSERT_TRUE(scaled.IsNotNull());
    EXPECT_EQ(scaled->GetUnits(), kInch);
    EXPECT_EQ(inch.GetCuttingPart()->GetSolid().Get(), scaled.Get());
    EXPECT_DOUBLE_EQ(scaled->GetExtrusionVector().y, -1);
    EXPECT_EQ(plate.DynamicCast<Extruded>()->GetExtrusionVector().y, -25.4);
    EXPECT_EQ(tool.GetSolid().Get(), plate.Get());
}

}  // namespace
}  // namespace othertest
