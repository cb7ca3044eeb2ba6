// tqCSink: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqcsink.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {
namespace {

/// The flat of the bottom diameter, the cone up to the tool radius and the side, with the cone–side corner
/// rounded by the corner radius (the full type is refused before).
shape::RoundedCorner Head(double diameter, double fluteLength, double cornerRadius, int cornerRadiusType,
                          double tipAngle, double bottomDiameter) {
    const double radius = diameter / 2;
    const double bottom = bottomDiameter / 2;
    const double cone = shape::ConeHeight(radius - bottom, tipAngle / 2);
    return shape::MakeRoundedCorner({shape::Point(0, 0), shape::Point(bottom, 0), shape::Point(radius, cone),
                                     shape::Point(radius, fluteLength)},
                                    2, cornerRadiusType, cornerRadius);
}

}  // namespace

tqCSink::tqCSink(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                 double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                 CornerRadiusType cornerRadiusType, double tipAngle, double bottomDiameter)
    : tqCSink(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType, tipAngle,
              bottomDiameter, nullptr) {}

tqCSink::tqCSink(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                 double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                 CornerRadiusType cornerRadiusType, double tipAngle, double bottomDiameter,
                 const tqShoulderDefinitionExtender& extender)
    : tqCSink(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType, tipAngle,
              bottomDiameter, &extender) {}

tqCSink::tqCSink(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                 double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                 CornerRadiusType cornerRadiusType, double tipAngle, double bottomDiameter,
                 const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_cornerRadius(cornerRadius),
      m_cornerRadiusType(cornerRadiusType),
      m_tipAngle(tipAngle),
      m_bottomDiameter(bottomDiameter) {
    if (!(cornerRadiusType == CRT_NONE || cornerRadiusType == CRT_CORNER || cornerRadiusType == CRT_FULL)) {
        throw tqcadcamException(2109);
    }
    if (cornerRadiusType == CRT_FULL) throw tqcadcamException(3466);
    if (!(bottomDiameter >= 0)) throw tqcadcamException(2105);
    if (!(bottomDiameter <= diameter)) throw tqcadcamException(3465);
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    const double rounding = cornerRadiusType == CRT_CORNER ? cornerRadius : 0;
    if (!(diameter >= 2 * rounding)) throw tqcadcamException(2117);
    if (!(tipAngle >= 1 && tipAngle <= 180)) throw tqcadcamException(2113);
    const shape::RoundedCorner head =
        Head(diameter, fluteLength, cornerRadius, cornerRadiusType, tipAngle, bottomDiameter);
    // The cone must end within the flutes, and the fillet leave the cone on it and meet the side there.
    const shape::LineLineFillet& fillet = head.fillet.fillet;
    const double coneTop = head.points[2].y;
    if (!(coneTop <= fluteLength && fillet.t2.y <= fluteLength && fillet.t <= head.fillet.la)) {
        throw tqcadcamException(2112);
    }
    BuildProfiles(head.Path());
}

tqCSink::~tqCSink() = default;

void tqCSink::RebuildProfiles() {
    BuildProfiles(
        Head(GetDiameter(), GetFluteLength(), m_cornerRadius, m_cornerRadiusType, m_tipAngle, m_bottomDiameter).Path());
}

void tqCSink::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqCSink::operator==(const tqCSink& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius &&
           m_cornerRadiusType == other.m_cornerRadiusType && m_tipAngle == other.m_tipAngle &&
           m_bottomDiameter == other.m_bottomDiameter;
}

void tqCSink::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    m_bottomDiameter *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
