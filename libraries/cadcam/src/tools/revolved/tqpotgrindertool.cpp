// tqPotGrinderTool: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqpotgrindertool.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {

tqPotGrinderTool::tqPotGrinderTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                   const HolderPointer& holder, double diameter, double fluteLength,
                                   double shoulderLength)
    : tqPotGrinderTool(units, arbor, holder, diameter, fluteLength, shoulderLength, nullptr) {}

tqPotGrinderTool::tqPotGrinderTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                   const HolderPointer& holder, double diameter, double fluteLength,
                                   double shoulderLength, const tqShoulderDefinitionExtender& extender)
    : tqPotGrinderTool(units, arbor, holder, diameter, fluteLength, shoulderLength, &extender) {}

tqPotGrinderTool::tqPotGrinderTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                   const HolderPointer& holder, double diameter, double fluteLength,
                                   double shoulderLength, const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()) {
    // The grinding envelope is a cylinder of the tool diameter.
    BuildProfiles(shape::CylinderHead(diameter / 2, fluteLength));
}

tqPotGrinderTool::~tqPotGrinderTool() = default;

void tqPotGrinderTool::RebuildProfiles() {
    BuildProfiles(shape::CylinderHead(GetDiameter() / 2, GetFluteLength()));
}

void tqPotGrinderTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqPotGrinderTool::operator==(const tqPotGrinderTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
