// tqToolToGenericToolConverter: the generic form of every sample; typed tools meet the conditions of the
// tool-to-tree conversion, share their parts and stack holder and arbor on the body.
#include "cadcam/tools/geometry/tqtooltogenerictoolconverter.h"

#include <array>

#include "cadcam/tools/geometry/tqsoliddefinitionboundingbox.h"
#include "cadcam/tools/geometry/tqtoolboundingbox.h"
#include "cadcam/tools/parts/tqalltoolpartdefinitions.h"
#include "cadcam/tools/tqalltools.h"
#include "cadcam/tools/tqtoolcaster.h"
#include "support/tqtest.h"
#include "toolsamples.h"

namespace {

using cadcam::tqGenericTool;
using cadcam::tqToolToGenericToolConverter;
using Matrix = cadcam::tqMatrix4d;

/// A move along +Z or none, compared exactly.
bool IsPlusZTranslation(const Matrix& m) {
    for (std::size_t row = 0; row < 4; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            if (m(row, column) != (row == column ? 1.0 : 0.0)) return false;
    return m(0, 3) == 0 && m(1, 3) == 0 && m(2, 3) >= 0 && m(3, 3) == 1;
}

Matrix Lift(double z) { return Matrix::Translation(0, 0, z); }

std::array<std::size_t, 4> Sizes(const tqGenericTool& g) {
    return {g.GetHolderGroup().size(), g.GetArborGroup().size(), g.GetNonCuttingGroup().size(),
            g.GetCuttingGroup().size()};
}

/// The one element of group is part itself (shared, not cloned), placed by matrix.
void ExpectElement(const tqGenericTool::Group& group, const void* part, const Matrix& matrix) {
    ASSERT_EQ(group.size(), 1u);
    EXPECT_EQ(group.front().m_part.Get(), part);
    EXPECT_EQ(*group.front().m_matrix, matrix);
}

TEST(tqToolToGenericToolConverter, TypedToolsMeetTheTreeConditions) {
    for (const auto& entry : tqtest::AllSamples()) {
        SCOPED_TRACE(entry.first.name());
        const auto& tool = *entry.second.tool;
        const auto generic = tqToolToGenericToolConverter::Convert(tool);
        EXPECT_EQ(generic->GetUnits(), tool.GetUnits());
        if (const auto* typed = cadcam::tqToolCaster::ToTypedRevolvedTool(tool)) {
            EXPECT_EQ(Sizes(*generic), (std::array<std::size_t, 4>{1, 1, 1, 1}));
            const double zA = *typed->PartHeightOf(3), zH = zA + cadcam::tqToolBoundingBox::HeightOf(tool, 4);
            ExpectElement(generic->GetCuttingGroup(), typed->GetCuttingPart().Get(), Matrix());
            ExpectElement(generic->GetNonCuttingGroup(), typed->GetNonCuttingPart().Get(),
                          Lift(typed->GetFluteLength()));
            ExpectElement(generic->GetArborGroup(), tool.GetArbor().Get(), Lift(zA));
            ExpectElement(generic->GetHolderGroup(), tool.GetHolder().Get(), Lift(zH));
            EXPECT_TRUE(IsPlusZTranslation(*generic->GetNonCuttingGroup().front().m_matrix));
        } else if (const auto* insert = cadcam::tqToolCaster::ToTypedExtrudedTool(tool)) {
            EXPECT_EQ(Sizes(*generic), (std::array<std::size_t, 4>{1, 1, 0, 1}));
            ExpectElement(generic->GetCuttingGroup(), insert->GetCuttingPart().Get(), Matrix());
            ExpectElement(generic->GetArborGroup(), tool.GetArbor().Get(), Matrix());
            ExpectElement(generic->GetHolderGroup(), tool.GetHolder().Get(), Matrix());
        } else if (const auto* source = cadcam::tqToolCaster::ToGenericTool(tool)) {
            EXPECT_EQ(*generic, *source);
            EXPECT_NE(generic.Get(), source);
        } else {
            const bool sawing = dynamic_cast<const cadcam::tqGenericSawingTool*>(&tool) != nullptr;
            EXPECT_EQ(generic->GetCuttingGroup().empty(), sawing);
        }
    }
}

TEST(tqToolToGenericToolConverter, GenericRevolvedPartsStackInListOrder) {
    const auto& tool = static_cast<const cadcam::tqGenericRevolvedTool&>(
        *tqtest::AllSamples().at(std::type_index(typeid(cadcam::tqGenericRevolvedTool))).tool);
    const auto generic = tqToolToGenericToolConverter::Convert(tool);
    double top = 0;
    std::size_t cutting = 0, nonCutting = 0;
    for (const auto& part : tool.GetParts().GetParts()) {
        const bool isCutting = part.DynamicCast<cadcam::tqCuttingPartDefinition<double>>().IsNotNull();
        const auto& element =
            isCutting ? generic->GetCuttingGroup().at(cutting++) : generic->GetNonCuttingGroup().at(nonCutting++);
        EXPECT_EQ(element.m_part.Get(), part.Get());
        EXPECT_EQ(*element.m_matrix, Lift(top));
        top += cadcam::tqSolidDefinitionBoundingBox::Of(*part->GetSolid()).GetHeight();
    }
    ExpectElement(generic->GetArborGroup(), tool.GetArbor().Get(), Lift(top));
}

}  // namespace
