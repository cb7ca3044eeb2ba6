// tqOpticDiamondTool: its parameters and their checks, with the fit of the nose.
#include "cadcam/tools/other/tqopticdiamondtool.h"

#include <vector>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolbranchvisitor.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/insertshapes.h"

namespace cadcam {

tqOpticDiamondTool::tqOpticDiamondTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                       const HolderPointer& holder, double radius, double includedAngle,
                                       ClearanceType clearanceType, double clearanceAngle, double rakeAngle,
                                       RadiusType radiusType, double length, double width, double thickness)
    : tqTool(units, arbor, holder),
      m_radius(radius),
      m_includedAngle(includedAngle),
      m_clearanceType(clearanceType),
      m_clearanceAngle(clearanceAngle),
      m_rakeAngle(rakeAngle),
      m_radiusType(radiusType),
      m_length(length),
      m_width(width),
      m_thickness(thickness) {
    if (clearanceType != CT_CONICAL && clearanceType != CT_CYLINDRICAL) throw tqcadcamException(2141);
    if (radiusType != RT_FULL && radiusType != RT_LEFT && radiusType != RT_RIGHT) throw tqcadcamException(2141);
    if (!(radius > 0)) throw tqcadcamException(3400);
    if (!(includedAngle > 0 && includedAngle < 90)) throw tqcadcamException(3401);
    if (!(rakeAngle > -90 && rakeAngle < 90)) throw tqcadcamException(3402);
    if (!(clearanceAngle > 0 && clearanceAngle < 90)) throw tqcadcamException(3403);
    const double hw = shape::OpticFlankHeight(radiusType, includedAngle, width);
    if (!(length > 0 && width > 0 && thickness > 0 && hw < length)) throw tqcadcamException(3404);
    // The nose exists only once the angle and sizes are valid, so its fit is checked last.
    const shape::Polygon outline = shape::OpticDiamondOutline(radiusType, includedAngle, length, width);
    if (!shape::VertexFillet(outline, 0, radius).fits) throw tqcadcamException(3400);
    BuildCuttingPart(units);
}

tqOpticDiamondTool::~tqOpticDiamondTool() = default;

void tqOpticDiamondTool::AcceptBranchVisitor(tqToolBranchVisitor& visitor) const { visitor.Visit(*this); }

void tqOpticDiamondTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqOpticDiamondTool::operator==(const tqOpticDiamondTool& other) const {
    return BaseEquals(other) && m_radius == other.m_radius && m_includedAngle == other.m_includedAngle &&
           m_clearanceType == other.m_clearanceType && m_clearanceAngle == other.m_clearanceAngle &&
           m_rakeAngle == other.m_rakeAngle && m_radiusType == other.m_radiusType && m_length == other.m_length &&
           m_width == other.m_width && m_thickness == other.m_thickness;
}

void tqOpticDiamondTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_radius *= factor;
    m_length *= factor;
    m_width *= factor;
    m_thickness *= factor;
    tqTool::Scale(units, factor);
    BuildCuttingPart(units);
}

void tqOpticDiamondTool::BuildCuttingPart(measures::tqUnitsFactory::Units units) {
    const shape::Polygon outline = shape::OpticDiamondOutline(m_radiusType, m_includedAngle, m_length, m_width);
    std::vector<double> radii(outline.size(), 0.0);
    radii[0] = m_radius;
    m_cuttingPart = shape::TurningPlanePart(units, {shape::RoundedContour(outline, radii, true)}, 0, m_thickness);
}

}  // namespace cadcam
