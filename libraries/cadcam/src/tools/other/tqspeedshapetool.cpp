// tqSpeedShapeTool: its parameters; a speed shape tool has no rules.
#include "cadcam/tools/other/tqspeedshapetool.h"

#include "cadcam/tools/tqtoolbranchvisitor.h"
#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqSpeedShapeTool::tqSpeedShapeTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                   const HolderPointer& holder, double width, double length, double cornerRadius,
                                   double conicLength, double conicAngle, double rampAngle, double arcRadius,
                                   double depth)
    : tqTool(units, arbor, holder),
      m_width(width),
      m_length(length),
      m_cornerRadius(cornerRadius),
      m_conicLength(conicLength),
      m_conicAngle(conicAngle),
      m_rampAngle(rampAngle),
      m_arcRadius(arcRadius),
      m_depth(depth) {}

tqSpeedShapeTool::~tqSpeedShapeTool() = default;

void tqSpeedShapeTool::AcceptBranchVisitor(tqToolBranchVisitor& visitor) const { visitor.Visit(*this); }

void tqSpeedShapeTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqSpeedShapeTool::operator==(const tqSpeedShapeTool& other) const {
    return BaseEquals(other) && m_width == other.m_width && m_length == other.m_length &&
           m_cornerRadius == other.m_cornerRadius && m_conicLength == other.m_conicLength &&
           m_conicAngle == other.m_conicAngle && m_rampAngle == other.m_rampAngle && m_arcRadius == other.m_arcRadius &&
           m_depth == other.m_depth;
}

void tqSpeedShapeTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_width *= factor;
    m_length *= factor;
    m_cornerRadius *= factor;
    m_conicLength *= factor;
    m_arcRadius *= factor;
    m_depth *= factor;
    tqTool::Scale(units, factor);
}

}  // namespace cadcam
