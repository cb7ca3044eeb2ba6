// tqPotGrinderTool: its parameters and their checks.
#include "cadcam/tools/revolved/tqpotgrindertool.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"

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
    // The grinding envelope is a cylinder: the top of the cutting profile lies at the tool radius.
    SetDefaultExtender(diameter / 2);
}

tqPotGrinderTool::~tqPotGrinderTool() = default;

void tqPotGrinderTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqPotGrinderTool::operator==(const tqPotGrinderTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
