// tqCntrBore: its parameters and their checks.
#include "cadcam/tools/revolved/tqcntrbore.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqCntrBore::tqCntrBore(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength)
    : tqCntrBore(units, arbor, holder, diameter, fluteLength, shoulderLength, nullptr) {}

tqCntrBore::tqCntrBore(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength,
                       const tqShoulderDefinitionExtender& extender)
    : tqCntrBore(units, arbor, holder, diameter, fluteLength, shoulderLength, &extender) {}

tqCntrBore::tqCntrBore(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength,
                       const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()) {
    // The flutes are a cylinder: the top of the cutting profile lies at the tool radius.
    SetDefaultExtender(diameter / 2);
}

tqCntrBore::~tqCntrBore() = default;

void tqCntrBore::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqCntrBore::operator==(const tqCntrBore& other) const { return BaseEquals(other); }

}  // namespace cadcam
