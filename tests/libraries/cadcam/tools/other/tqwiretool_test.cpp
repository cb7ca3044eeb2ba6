// tqWireTool: any values are taken; lengths scale, the flag does not.
#include "cadcam/tools/other/tqwiretool.h"

#include <limits>

#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "cadcam/tools/solids/tqwiresoliddefinition.h"
#include "othertestsupport.h"

namespace othertest {
namespace {

using cadcam::tqWireTool;

TEST(tqWireTool, TakesAnyValuesAndScalesItsLengths) {
    const tqWireTool wire(kMetric, Arbor(), Holder(), 0.25, 400, false);
    EXPECT_EQ(wire.GetWireDiameter(), 0.25);
    EXPECT_EQ(wire.GetWireLength(), 400);
    EXPECT_FALSE(wire.HasInfiniteLength());
    EXPECT_NO_THROW(
        tqWireTool(kMetric, ArborPointer(), HolderPointer(), -1, std::numeric_limits<double>::quiet_NaN(), true));
    ExpectScaledByUnits<tqWireTool>(
        tqWireTool(kMetric, Arbor(), Holder(), 0.25, 400, true),
        [](const tqWireTool& t) {
            return std::vector<double>{t.GetWireDiameter(), t.GetWireLength()};
        },
        [](const tqWireTool& t) { return std::vector<double>{double(t.HasInfiniteLength())}; });
}

TEST(tqWireTool, ItsCuttingPartIsItsWire) {
    tqWireTool wire(kMetric, Arbor(), Holder(), 0.25, 400, true);
    wire.SetUnits(kInch);
    const auto solid = wire.GetCuttingPart()->GetSolid().DynamicCast<cadcam::tqWireSolidDefinition<double>>();
    ASSERT_TRUE(solid.IsNotNull());
    EXPECT_EQ(*solid, cadcam::tqWireSolidDefinition<double>(kInch, wire.GetWireDiameter(), wire.GetWireLength(), true));
}

}  // namespace
}  // namespace othertest
