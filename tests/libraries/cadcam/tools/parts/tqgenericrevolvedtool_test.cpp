// tqGenericRevolvedTool: its shared parts, its diameter and profile stacked from theirs, and the change of units.
#include "cadcam/tools/revolved/tqgenericrevolvedtool.h"

#include "cadcam/tools/solids/tqmeshsoliddefinition.h"
#include "libraries/cadcam/tools/revolved/profilecheck.h"
#include "partsamples.h"

namespace {

using namespace cadcam;
using tqtest::Profile;
using PartList = tqGenericRevolvedTool::PartList;

const tqTool::ArborPointer kArbor(new tqArborDefinition<double>(tqtest::kMetric, tqtest::Head(15, 40)));
const tqTool::HolderPointer kHolder(new tqHolderDefinition<double>(tqtest::kMetric, tqtest::Head(30, 60)));

tqGenericRevolvedTool Tool(const PartList& parts) {
    return tqGenericRevolvedTool(tqtest::kMetric, kArbor, kHolder, parts);
}

TEST(tqGenericRevolvedTool, KeepsItsPartsSharedInOrderAndRefusesOthers) {
    const PartList parts = {tqtest::Cutting(tqtest::Head()), tqtest::NonCutting(tqtest::Shank())};
    const tqGenericRevolvedTool tool = Tool(parts);
    EXPECT_TRUE(tqtest::SameParts(tool.GetParts().GetParts(), parts));
    // A copy, as the tool cloner makes, shares the parts too.
    const auto clone = tool.Clone();
    EXPECT_EQ(static_cast<const tqGenericRevolvedTool&>(*clone).GetParts().GetPart(1).Get(), parts[1].Get());
    EXPECT_THROW_CODE(Tool({parts[0], kHolder}), tqcadcamException, 2184, u"Unknown tool part definition.");
    EXPECT_THROW_MSG(Tool({parts[0], tqtest::PartPointer()}), misc::tqException, u"Accessing TQ_NULL pointer");
}

TEST(tqGenericRevolvedTool, TheDiameterIsTwiceTheLargestXOfTheProfiles) {
    const tqtest::SolidPointer mesh(new tqMeshSolidDefinition<double>(tqtest::kMetric));
    const tqtest::SolidPointer empty(new tqRevolvedSolidDefinition<double>(tqtest::kMetric));
    const struct {
        PartList parts;
        double diameter;
    } cases[] = {
        {{}, 0},
        {{tqtest::Cutting(mesh), tqtest::NonCutting(empty)}, 0},
        {{tqtest::Cutting(tqtest::Head(5)), tqtest::NonCutting(tqtest::Shank(5, 6))}, 12},
        {{tqtest::Cutting(tqtest::Head(5)), tqtest::Cutting(mesh)}, 10},
        // A half circle bulging out to x = 7 between end points at x = 4.
        {{tqtest::Cutting(Profile(0, 0).L(4, 0).A(4, 6, 4, 3).L(4, 10).Solid())}, 14},
        // A concave corner whose circle reaches x = 6 outside the arc's sweep.
        {{tqtest::Cutting(Profile(0, 0).L(4, 0).A(5, 1, 5, 0, false).L(5, 10).Solid())}, 10},
    };
    for (std::size_t i = 0; i < sizeof(cases) / sizeof(cases[0]); ++i) {
        EXPECT_EQ(Tool(cases[i].parts).GetDiameter(), cases[i].diameter) << "case " << i;
    }
}

// Each part sits on the heights of those below it; parts without a revolved profile add their height only.
TEST(tqGenericRevolvedTool, StacksThePartsProfilesIntoTheToolProfile) {
    using namespace profilecheck;
    const tqtest::SolidPointer mesh(new tqMeshSolidDefinition<double>(tqtest::kMetric));
    EXPECT_TRUE(Tool({}).GetProfile().IsEmpty());
    EXPECT_TRUE(Tool({tqtest::Cutting(mesh)}).GetProfile().IsEmpty());
    // The shank's bottom face lies inside the tool: the join runs to its end.
    const tqGenericRevolvedTool tool = Tool(
        {tqtest::Cutting(tqtest::Head(5, 20)), tqtest::Cutting(mesh), tqtest::NonCutting(tqtest::Shank(4, 6, 30))});
    ExpectProfile(tool.GetProfile(), Point(0, 0), {L(5, 0), L(5, 20), L(4, 20), L(6, 25), L(6, 50)}, 0);
    // A part that starts with an arc is joined at its start; a bulge counts to its height.
    const tqGenericRevolvedTool bulging = Tool({tqtest::Cutting(Profile(0, 0).L(4, 0).A(4, 6, 4, 3).L(4, 10).Solid()),
                                                tqtest::Cutting(Profile(0, 0).A(3, 3, 0, 3).L(3, 5).Solid())});
    ExpectProfile(bulging.GetProfile(), Point(0, 0),
                  {L(4, 0), A(4, 6, 4, 3, 180), L(4, 10), L(0, 10), A(3, 13, 0, 13, 90), L(3, 15)}, 1e-12);
    // A change of units stacks the scaled parts.
    tqGenericRevolvedTool inch = tool;
    inch.SetUnits(tqtest::kInch);
    const double f = 1 / 25.4;
    ExpectProfile(inch.GetProfile(), Point(0, 0),
                  {L(5 * f, 0), L(5 * f, 20 * f), L(4 * f, 20 * f), L(6 * f, 25 * f), L(6 * f, 50 * f)}, 1e-15);
}

TEST(tqGenericRevolvedTool, SetUnitsScalesCopiesOfItsParts) {
    const PartList parts = {tqtest::Cutting(tqtest::Head()), tqtest::NonCutting(tqtest::Shank())};
    const tqGenericRevolvedTool source = Tool(parts);
    tqGenericRevolvedTool tool = source;
    tool.SetUnits(tqtest::kInch);
    EXPECT_DOUBLE_EQ(tool.GetDiameter(), 12 / 25.4);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const auto& part = tool.GetParts().GetPart(i);
        EXPECT_NE(part.Get(), parts[i].Get());
        EXPECT_EQ(part->GetUnits(), tqtest::kInch);
        EXPECT_EQ(part->GetSolid()->GetUnits(), tqtest::kInch);
    }
    EXPECT_TRUE(tool.GetParts().GetPart(1).DynamicCast<tqNonCuttingPartDefinition<double>>().IsNotNull());
    // The parts the source shares are untouched.
    EXPECT_EQ(parts[0]->GetUnits(), tqtest::kMetric);
    EXPECT_EQ(source, Tool({tqtest::Cutting(tqtest::Head()), tqtest::NonCutting(tqtest::Shank())}));
}

}  // namespace
