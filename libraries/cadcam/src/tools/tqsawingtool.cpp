// tqSawingTool and tqTypedSawingTool: the blade thickness and its check.
#include "cadcam/tools/tqsawingtool.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "cadcam/tools/tqtypedsawingtool.h"

namespace cadcam {

tqSawingTool::tqSawingTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                           const HolderPointer& holder, double bladeThickness)
    : tqTool(units, arbor, holder), m_bladeThickness(bladeThickness) {
    if (!(bladeThickness > 0)) throw tqcadcamException(2302);
}

bool tqSawingTool::BaseEquals(const tqSawingTool& other) const {
    return tqTool::BaseEquals(other) && m_bladeThickness == other.m_bladeThickness;
}

void tqSawingTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_bladeThickness *= factor;
    tqTool::Scale(units, factor);
}

tqTypedSawingTool::~tqTypedSawingTool() = default;
void tqTypedSawingTool::AcceptVisitor(tqToolVisitor& visitor) const {
    visitor.Visit(static_cast<const tqTool&>(*this));
}

}  // namespace cadcam
