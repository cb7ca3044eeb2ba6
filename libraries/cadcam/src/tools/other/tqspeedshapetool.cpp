// tqSpeedShapeTool: its parameters and its envelope; a speed shape tool has no rules.
#include "cadcam/tools/other/tqspeedshapetool.h"

#include <vector>

#include "cadcam/tools/tqtoolbranchvisitor.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/insertshapes.h"

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
      m_depth(depth) {
    BuildCuttingPart(units);
}

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
    BuildCuttingPart(units);
}

void tqSpeedShapeTool::BuildCuttingPart(measures::tqUnitsFactory::Units units) {
    // Only the envelope has a shape; a tool without one still has a part, an extruded solid without contour.
    std::vector<tq2dContour<double>> contours;
    if (m_width > 0 && m_length > 0 && m_depth > 0) {
        const double w = m_width / 2;
        contours.push_back(shape::RoundedContour({{-w, 0}, {w, 0}, {w, m_length}, {-w, m_length}}, {}, false));
    }
    m_cuttingPart = shape::TurningPlanePart(units, contours, 0, m_depth > 0 ? m_depth : 1.0);
}

}  // namespace cadcam
