// tqWireTool: any values are taken, lengths scale, and its cutting part is its wire.
#include "cadcam/tools/other/tqwiretool.h"

#include <limits>

#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "cadcam/tools/solids/tqwiresoliddefinition.h"
#include "othertestsupport.h"

namespace othertest {
namespace {

using cadcam::tqWireTool;

TEST(tqWireTool, TakesAnyValuesAndItsCuttingPartIsItsWire) {
    EXPECT_NO_THROW(tqWireTool(kMetric, {}, {}, -1, std::numeric_limits<double>::quiet_NaN(), true));
    const tqWireTool metric(kMetric, Arbor(), Holder(), 0.25, 400, true);
    ExpectScaledByUnits<tqWireTool>(metric, {&tqWireTool::GetWireDiameter, &tqWireTool::GetWireLength});
    tqWireTool wire(metric);
    wire.SetUnits(kInch);
    const auto solid = wire.GetCuttingPart()->GetSolid().DynamicCast<cadcam::tqWireSolidDefinition<double>>();
    ASSERT_TRUE(solid.IsNotNull());
    EXPECT_EQ(*solid, cadcam::tqWireSolidDefinition<double>(kInch, wire.GetWireDiameter(), wire.GetWireLength(), true));
}

}  // namespace
}  // namespace othertest
