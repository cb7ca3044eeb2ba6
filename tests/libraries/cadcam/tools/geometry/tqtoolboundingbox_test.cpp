// tqToolBoundingBox and tqTool::PartHeightOf: boxes of selected parts, and heights of single parts bit-exact.
#include "cadcam/tools/geometry/tqtoolboundingbox.h"

#include "cadcam/tools/geometry/tqsoliddefinitionboundingbox.h"
#include "cadcam/tools/parts/tqalltoolpartdefinitions.h"
#include "cadcam/tools/solids/tqturningsoliddefinition.h"
#include "cadcam/tools/tqalltools.h"
#include "cadcam/tools/tqtoolcaster.h"
#include "support/tqtest.h"
#include "toolsamples.h"

namespace {

using cadcam::tqToolBoundingBox;

template <class Part>
double OwnHeight(const misc::tqAutoPointer<Part>& part) {
    return cadcam::tqSolidDefinitionBoundingBox::Of(*part->GetSolid()).GetHeight();
}

TEST(tqToolBoundingBox, SinglePartHeightsAndPartHeightOf) {
    for (const auto& entry : tqtest::AllSamples()) {
        SCOPED_TRACE(entry.first.name());
        const auto& tool = *entry.second.tool;
        if (tool.GetHolder().IsNotNull()) {
            EXPECT_EQ(tqToolBoundingBox::HeightOf(tool, 8), OwnHeight(tool.GetHolder()));
        }
        if (tool.GetArbor().IsNotNull()) {
            EXPECT_EQ(tqToolBoundingBox::HeightOf(tool, 4), OwnHeight(tool.GetArbor()));
        }
        if (cadcam::tqToolCaster::IsTypedExtrudedTool(tool)) {
            const auto& holder =
                static_cast<const cadcam::tqTurningSolidDefinition<double>&>(*tool.GetHolder()->GetSolid());
            EXPECT_EQ(tqToolBoundingBox::HeightOf(tool, 8), holder.GetHeight());
        }
        if (cadcam::tqToolCaster::IsTypedRevolvedTool(tool)) continue;  // its own PartHeightOf
        const auto body = tqToolBoundingBox::Of(tool, 3);
        const auto expected = body.IsInitialized() ? std::optional<double>(body.GetHeight()) : std::nullopt;
        EXPECT_EQ(tool.PartHeightOf(3 | 4 | 8), expected);  // holder and arbor bits are not part kinds
        EXPECT_FALSE(tool.PartHeightOf(0).has_value());
    }
}

TEST(tqToolBoundingBox, ATypedRevolvedToolStacksBodyArborAndHolder) {
    const auto& mill = static_cast<const cadcam::tqTypedRevolvedTool&>(
        *tqtest::AllSamples().at(std::type_index(typeid(cadcam::tqEndMill))).tool);
    const double ls = mill.GetShoulderLength(), arbor = OwnHeight(mill.GetArbor()),
                 holder = OwnHeight(mill.GetHolder());
    EXPECT_EQ(tqToolBoundingBox::Of(mill, 15).GetMin().z, 0);
    EXPECT_EQ(tqToolBoundingBox::Of(mill, 15).GetMax().z, ls + arbor + holder);
    EXPECT_EQ(tqToolBoundingBox::Of(mill, 8).GetMin().z, ls + arbor);
    EXPECT_EQ(tqToolBoundingBox::Of(mill, 1).GetMax().z, mill.GetFluteLength());
    EXPECT_EQ(tqToolBoundingBox::HeightOf(mill, 3), ls);
    EXPECT_EQ(tqToolBoundingBox::HeightOf(mill, 12), arbor + holder);
    EXPECT_FALSE(tqToolBoundingBox::Of(mill, 0).IsInitialized());
}

}  // namespace
