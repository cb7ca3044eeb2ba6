// tqBullMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqbullmill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqBullMill::tqBullMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double cornerRadius)
    : tqBullMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, nullptr) {}

tqBullMill::tqBullMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                       const tqShoulderDefinitionExtender& extender)
    : tqBullMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, &extender) {}

tqBullMill::tqBullMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                       const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_cornerRadius(cornerRadius) {
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    if (!(diameter >= 2 * cornerRadius)) throw tqcadcamException(2117);
    // The corner must fit in the flutes.
    if (!(cornerRadius <= fluteLength)) throw tqcadcamException(3476);
    // The torus ends on the side at the tool radius, at or below the flute length.
    SetDefaultExtender(diameter / 2);
}

tqBullMill::~tqBullMill() = default;

void tqBullMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBullMill::operator==(const tqBullMill& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius;
}

void tqBullMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
