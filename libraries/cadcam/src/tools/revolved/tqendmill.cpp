// tqEndMill: only the common parameters and their checks.
#include "cadcam/tools/revolved/tqendmill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqEndMill::tqEndMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double diameter, double fluteLength, double shoulderLength)
    : tqEndMill(units, arbor, holder, diameter, fluteLength, shoulderLength, nullptr) {}

tqEndMill::tqEndMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double diameter, double fluteLength, double shoulderLength,
                     const tqShoulderDefinitionExtender& extender)
    : tqEndMill(units, arbor, holder, diameter, fluteLength, shoulderLength, &extender) {}

tqEndMill::tqEndMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double diameter, double fluteLength, double shoulderLength,
                     const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()) {
    // The flutes are a cylinder: the top of the cutting profile lies at the tool radius.
    SetDefaultExtender(diameter / 2);
}

tqEndMill::~tqEndMill() = default;

void tqEndMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqEndMill::operator==(const tqEndMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
