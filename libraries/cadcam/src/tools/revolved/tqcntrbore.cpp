// tqCntrBore: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqcntrbore.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

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
    // The flutes are a cylinder of the tool diameter.
    BuildProfiles(shape::CylinderHead(diameter / 2, fluteLength));
}

tqCntrBore::~tqCntrBore() = default;

void tqCntrBore::RebuildProfiles() {
    BuildProfiles(shape::CylinderHead(GetDiameter() / 2, GetFluteLength()));
}

void tqCntrBore::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqCntrBore::operator==(const tqCntrBore& other) const { return BaseEquals(other); }

}  // namespace cadcam
