// tqOpticDiamondTool: its parameters and their checks, with the fit of the nose.
#include "cadcam/tools/other/tqopticdiamondtool.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolbranchvisitor.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/profiletoolkit.h"

namespace cadcam {
namespace {

using shape::Point;

/// The flank's height at half the width: the nose is the corner at the origin.
double FlankHeight(tqOpticDiamondTool::RadiusType type, double includedAngle, double width) {
    const double flankAngle = type == tqOpticDiamondTool::RT_FULL ? includedAngle / 2 : includedAngle;
    return width / 2 / shape::TanDegrees(flankAngle);
}

/// Whether the nose fillet fits the two edges that meet at the sharp tip.
bool NoseFits(tqOpticDiamondTool::RadiusType type, double radius, double width, double length, double hw) {
    const Point tip(0, 0);
    // The neighbours of the tip on the counterclockwise outline; RT_RIGHT mirrors RT_LEFT.
    Point before(-width / 2, hw);
    Point after(width / 2, hw);
    if (type == tqOpticDiamondTool::RT_LEFT) after = Point(0, length);
    if (type == tqOpticDiamondTool::RT_RIGHT) before = Point(0, length);
    const shape::LineLineFillet nose =
        shape::MakeLineLineFillet(tip, shape::Direction(before, tip), (tip - before).Length(),
                                  shape::Direction(tip, after), (after - tip).Length(), radius);
    return nose.fits;
}

}  // namespace

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
    const double hw = FlankHeight(radiusType, includedAngle, width);
    if (!(length > 0 && width > 0 && thickness > 0 && hw < length)) throw tqcadcamException(3404);
    // The nose exists only once the angle and sizes are valid, so its fit is checked last.
    if (!NoseFits(radiusType, radius, width, length, hw)) throw tqcadcamException(3400);
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
}

}  // namespace cadcam
