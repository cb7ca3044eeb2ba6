// tqToolBoundingBox: boxes and heights of the selected parts of a tool.
#include "cadcam/tools/geometry/tqtoolboundingbox.h"

#include <vector>

#include "cadcam/geometry/tqmatrix.h"
#include "cadcam/tools/geometry/tqsoliddefinitionboundingbox.h"
#include "cadcam/tools/geometry/tqtooltogenerictoolconverter.h"
#include "cadcam/tools/other/tqgenerictool.h"
#include "cadcam/tools/parts/tqalltoolpartdefinitions.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "cadcam/tools/tqtoolcaster.h"
#include "cadcam/tools/tqtypedrevolvedtool.h"

namespace cadcam {
namespace {

/// A selected part: the box of its own solid, that box placed in the tool, and whether the placement keeps
/// the axes (so that the own box's Z extent is the part's height, bit for bit).
struct SelectedPart {
    tq3dBoundingBox own;
    tq3dBoundingBox placed;
    bool keepsAxes;
};

template <class Part>
tq3dBoundingBox BoxOf(const misc::tqAutoPointer<Part>& part) {
    if (part.IsNull() || part->GetSolid().IsNull()) return tq3dBoundingBox();
    return tqSolidDefinitionBoundingBox::Of(*part->GetSolid());
}

tq3dBoundingBox Moved(const tq3dBoundingBox& box, double z) {
    return box.Transformed(tqMatrix<double, 4, 4>::Translation(0, 0, z));
}

bool KeepsAxes(const tqMatrix<double, 4, 4>& m) {
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            if (m(row, column) != (row == column ? 1.0 : 0.0)) return false;
    return true;
}

/// Flutes and shank in tool coordinates, the arbor on the body and the holder on the arbor.
std::vector<SelectedPart> TypedRevolvedParts(const tqTypedRevolvedTool& tool, unsigned mask) {
    const tq3dBoundingBox cutting = BoxOf(tool.GetCuttingPart());
    const tq3dBoundingBox shank = tqSolidDefinitionBoundingBox::Of(
        tqRevolvedSolidDefinition<double>(tool.GetUnits(), tool.GetNonCuttingToolProfile()));
    std::vector<SelectedPart> parts;
    if (mask & tqToolBoundingBox::kCutting) parts.push_back({cutting, cutting, true});
    if (mask & tqToolBoundingBox::kNonCutting) parts.push_back({BoxOf(tool.GetNonCuttingPart()), shank, true});
    if ((mask & (tqToolBoundingBox::kArbor | tqToolBoundingBox::kHolder)) == 0) return parts;

    tq3dBoundingBox body = cutting;
    body.Add(shank);
    const double zA = body.GetHeight();
    const tq3dBoundingBox arbor = BoxOf(tool.GetArbor());
    const double zH = zA + (tool.GetArbor().IsNull() ? 0.0 : arbor.GetHeight());
    if ((mask & tqToolBoundingBox::kArbor) && tool.GetArbor().IsNotNull())
        parts.push_back({arbor, Moved(arbor, zA), true});
    if ((mask & tqToolBoundingBox::kHolder) && tool.GetHolder().IsNotNull()) {
        const tq3dBoundingBox holder = BoxOf(tool.GetHolder());
        parts.push_back({holder, Moved(holder, zH), true});
    }
    return parts;
}

void AddGroup(std::vector<SelectedPart>& parts, const tqGenericTool::Group& group) {
    for (const tqGenericTool::PositionedPart& element : group) {
        const tq3dBoundingBox own = BoxOf(element.m_part);
        parts.push_back({own, own.Transformed(*element.m_matrix), KeepsAxes(*element.m_matrix)});
    }
}

std::vector<SelectedPart> SelectedParts(const tqTool& tool, unsigned mask) {
    if (const tqTypedRevolvedTool* typed = tqToolCaster::ToTypedRevolvedTool(tool))
        return TypedRevolvedParts(*typed, mask);
    const misc::tqAutoPointer<tqGenericTool> generic = tqToolToGenericToolConverter::Convert(tool);
    std::vector<SelectedPart> parts;
    if (mask & tqToolBoundingBox::kCutting) AddGroup(parts, generic->GetCuttingGroup());
    if (mask & tqToolBoundingBox::kNonCutting) AddGroup(parts, generic->GetNonCuttingGroup());
    if (mask & tqToolBoundingBox::kArbor) AddGroup(parts, generic->GetArborGroup());
    if (mask & tqToolBoundingBox::kHolder) AddGroup(parts, generic->GetHolderGroup());
    return parts;
}

}  // namespace

constexpr unsigned tqToolBoundingBox::kCutting;
constexpr unsigned tqToolBoundingBox::kNonCutting;
constexpr unsigned tqToolBoundingBox::kArbor;
constexpr unsigned tqToolBoundingBox::kHolder;

tq3dBoundingBox tqToolBoundingBox::Of(const tqTool& tool, unsigned mask) {
    tq3dBoundingBox box;
    for (const SelectedPart& part : SelectedParts(tool, mask)) box.Add(part.placed);
    return box;
}

double tqToolBoundingBox::HeightOf(const tqTool& tool, unsigned mask) {
    const std::vector<SelectedPart> parts = SelectedParts(tool, mask);
    // One part that is only moved: its own solid's extent, untouched by the addition of the move.
    if (parts.size() == 1 && parts.front().keepsAxes) return parts.front().own.GetHeight();
    tq3dBoundingBox box;
    for (const SelectedPart& part : parts) box.Add(part.placed);
    return box.GetHeight();
}

}  // namespace cadcam
