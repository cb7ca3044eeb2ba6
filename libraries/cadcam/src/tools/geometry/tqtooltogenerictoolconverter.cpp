// tqToolToGenericToolConverter: the generic form of every class of tqToolList.
#include "cadcam/tools/geometry/tqtooltogenerictoolconverter.h"

#include <type_traits>

#include "cadcam/tools/geometry/tqsoliddefinitionboundingbox.h"
#include "cadcam/tools/geometry/tqtoolboundingbox.h"
#include "cadcam/tools/parts/tqalltoolpartdefinitions.h"
#include "cadcam/tools/tqalltools.h"

namespace cadcam {
namespace {

using Group = tqGenericTool::Group;
using PartPointer = misc::tqAutoPointer<tqToolPartDefinition<double>>;

/// Appends a part moved by z along the tool axis; a missing part adds nothing.
void Place(Group& group, const PartPointer& part, double z) {
    if (part.IsNull()) return;
    group.push_back({part, misc::tqAutoPointer<tqMatrix<double, 4, 4>>(
                               new tqMatrix<double, 4, 4>(tqMatrix<double, 4, 4>::Translation(0, 0, z)))});
}

/// The Z extent of a part's own solid; 0 without one.
double HeightOfPart(const PartPointer& part) {
    if (part.IsNull() || part->GetSolid().IsNull()) return 0;
    return tqSolidDefinitionBoundingBox::Of(*part->GetSolid()).GetHeight();
}

misc::tqAutoPointer<tqGenericTool> Make(const tqTool& tool, const Group& holder, const Group& arbor,
                                        const Group& nonCutting, const Group& cutting) {
    return misc::tqAutoPointer<tqGenericTool>(new tqGenericTool(tool.GetUnits(), holder, arbor, nonCutting, cutting));
}

/// Holder, arbor and the cutting part (if any) all at the tool's origin.
misc::tqAutoPointer<tqGenericTool> AtOrigin(const tqTool& tool, const PartPointer& cutting) {
    Group holder, arbor, cuttingGroup;
    Place(holder, tool.GetHolder(), 0);
    Place(arbor, tool.GetArbor(), 0);
    Place(cuttingGroup, cutting, 0);
    return Make(tool, holder, arbor, {}, cuttingGroup);
}

/// Flutes at the tip, the shank above them, then the arbor and the holder stacked on the body.
misc::tqAutoPointer<tqGenericTool> TypedRevolvedForm(const tqTypedRevolvedTool& tool) {
    const double zA = tqToolBoundingBox::HeightOf(tool, tqToolBoundingBox::kCutting | tqToolBoundingBox::kNonCutting);
    const double zH = zA + tqToolBoundingBox::HeightOf(tool, tqToolBoundingBox::kArbor);
    Group holder, arbor, nonCutting, cutting;
    Place(holder, tool.GetHolder(), zH);
    Place(arbor, tool.GetArbor(), zA);
    Place(nonCutting, tool.GetNonCuttingPart(), tool.GetFluteLength());
    Place(cutting, tool.GetCuttingPart(), 0);
    return Make(tool, holder, arbor, nonCutting, cutting);
}

/// The parts stacked in list order, each on the height of those below; arbor and holder on top.
misc::tqAutoPointer<tqGenericTool> GenericRevolvedForm(const tqGenericRevolvedTool& tool) {
    Group holder, arbor, nonCutting, cutting;
    double top = 0;
    for (const PartPointer& part : tool.GetParts().GetParts()) {
        Place(part.DynamicCast<tqNonCuttingPartDefinition<double>>().IsNotNull() ? nonCutting : cutting, part, top);
        top += HeightOfPart(part);
    }
    Place(arbor, tool.GetArbor(), top);
    Place(holder, tool.GetHolder(), top + HeightOfPart(tool.GetArbor()));
    return Make(tool, holder, arbor, nonCutting, cutting);
}

}  // namespace

tqToolToGenericToolConverter::tqToolToGenericToolConverter() {
    misc::detail_::KeepSlots<tqToolToGenericToolConverter>(static_cast<tqToolList*>(nullptr));
}

tqToolToGenericToolConverter::~tqToolToGenericToolConverter() = default;

misc::tqAutoPointer<tqGenericTool> tqToolToGenericToolConverter::Convert(const tqTool& tool) {
    tqToolToGenericToolConverter converter;
    tool.AcceptVisitor(converter);
    return converter.GetGenericTool();
}

template <class T>
void tqToolToGenericToolConverter::OnVisit(const T& tool) {
    if constexpr (std::is_same<T, tqGenericTool>::value) {
        m_generic = misc::tqAutoPointer<tqGenericTool>(new tqGenericTool(tool));
    } else if constexpr (std::is_base_of<tqTypedRevolvedTool, T>::value) {
        m_generic = TypedRevolvedForm(tool);
    } else if constexpr (std::is_same<T, tqGenericRevolvedTool>::value) {
        m_generic = GenericRevolvedForm(tool);
    } else if constexpr (std::is_same<T, tqGenericSawingTool>::value) {
        m_generic = AtOrigin(tool, PartPointer());
    } else {
        // Inserts, generic extruded tools, chain saws, wires, speed shapes and optic diamonds: one cutting part.
        m_generic = AtOrigin(tool, tool.GetCuttingPart());
    }
}

void tqToolToGenericToolConverter::OnVisitBase(const tqTool& tool) { DefaultVisit(tool); }

}  // namespace cadcam
