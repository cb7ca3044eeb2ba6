// tqReamer: its parameters and their checks.
#include "cadcam/tools/revolved/tqreamer.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqReamer::tqReamer(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                   double diameter, double fluteLength, double shoulderLength, double factor)
    : tqReamer(units, arbor, holder, diameter, fluteLength, shoulderLength, factor, nullptr) {}

tqReamer::tqReamer(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                   double diameter, double fluteLength, double shoulderLength, double factor,
                   const tqShoulderDefinitionExtender& extender)
    : tqReamer(units, arbor, holder, diameter, fluteLength, shoulderLength, factor, &extender) {}

tqReamer::tqReamer(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                   double diameter, double fluteLength, double shoulderLength, double factor,
                   const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_factor(factor) {
    if (!(factor >= 0 && factor <= 1)) throw tqcadcamException(3469);
    const double radius = diameter / 2;
    if (!(factor * radius <= fluteLength)) throw tqcadcamException(3470);
    // The chamfer reaches the tool radius within the flutes.
    SetDefaultExtender(radius);
}

tqReamer::~tqReamer() = default;

void tqReamer::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqReamer::operator==(const tqReamer& other) const { return BaseEquals(other) && m_factor == other.m_factor; }

}  // namespace cadcam
