// tqEndMill: only the common parameters and their checks; a cylindrical head.
#include "cadcam/tools/revolved/tqendmill.h"

#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

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
    // The flutes are a cylinder of the tool diameter.
    BuildProfiles(shape::CylinderHead(diameter / 2, fluteLength));
}

tqEndMill::~tqEndMill() = default;

void tqEndMill::RebuildProfiles() {
    BuildProfiles(shape::CylinderHead(GetDiameter() / 2, GetFluteLength()));
}

void tqEndMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqEndMill::operator==(const tqEndMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
