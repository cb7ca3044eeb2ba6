// tqWireTool: its parameters and its wire solid; a wire has no rules.
#include "cadcam/tools/other/tqwiretool.h"

#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "cadcam/tools/solids/tqwiresoliddefinition.h"
#include "cadcam/tools/tqtoolbranchvisitor.h"
#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqWireTool::tqWireTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double wireDiameter, double wireLength, bool hasInfiniteLength)
    : tqTool(units, arbor, holder),
      m_wireDiameter(wireDiameter),
      m_wireLength(wireLength),
      m_hasInfiniteLength(hasInfiniteLength) {
    BuildCuttingPart(units);
}

tqWireTool::~tqWireTool() = default;

void tqWireTool::AcceptBranchVisitor(tqToolBranchVisitor& visitor) const { visitor.Visit(*this); }

void tqWireTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqWireTool::operator==(const tqWireTool& other) const {
    return BaseEquals(other) && m_wireDiameter == other.m_wireDiameter && m_wireLength == other.m_wireLength &&
           m_hasInfiniteLength == other.m_hasInfiniteLength;
}

void tqWireTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_wireDiameter *= factor;
    m_wireLength *= factor;
    tqTool::Scale(units, factor);
    BuildCuttingPart(units);
}

void tqWireTool::BuildCuttingPart(measures::tqUnitsFactory::Units units) {
    misc::tqAutoPointer<tqSolidDefinition<double>> solid(
        new tqWireSolidDefinition<double>(units, m_wireDiameter, m_wireLength, m_hasInfiniteLength));
    m_cuttingPart = CuttingPartPointer(new tqCuttingPartDefinition<double>(units, solid));
}

}  // namespace cadcam
