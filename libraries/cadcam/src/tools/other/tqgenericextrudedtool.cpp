// tqGenericExtrudedTool: its one solid, held as a cutting part.
#include "cadcam/tools/other/tqgenericextrudedtool.h"

#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqGenericExtrudedTool::tqGenericExtrudedTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                             const HolderPointer& holder, const SolidPointer& solid)
    : tqExtrudedTool(units, arbor, holder) {
    if (solid.IsNull()) misc::detail_::ThrowNullPointer();
    m_cuttingPart = CuttingPartPointer(new tqCuttingPartDefinition<double>(units, solid));
}

tqGenericExtrudedTool::~tqGenericExtrudedTool() = default;

const tqGenericExtrudedTool::SolidPointer& tqGenericExtrudedTool::GetSolid() const { return m_cuttingPart->GetSolid(); }

void tqGenericExtrudedTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqGenericExtrudedTool::operator==(const tqGenericExtrudedTool& other) const {
    return BaseEquals(other) && m_cuttingPart->IsEqual(*other.m_cuttingPart);
}

void tqGenericExtrudedTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    // The part may be shared with other tools (a copy of this one): scale a copy of it, which copies the solid.
    CuttingPartPointer scaled(new tqCuttingPartDefinition<double>(*m_cuttingPart));
    ScaleNested(*scaled, units, factor);
    m_cuttingPart = scaled;
    tqExtrudedTool::Scale(units, factor);
}

}  // namespace cadcam
