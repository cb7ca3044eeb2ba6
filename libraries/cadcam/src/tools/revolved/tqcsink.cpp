// tqCSink: its parameters and their checks.
#include "cadcam/tools/revolved/tqcsink.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/drillingshapes.h"

namespace cadcam {

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
    const double radius = diameter / 2;
    const double bottom = bottomDiameter / 2;
    const double cone = shape::ConeHeight(radius - bottom, tipAngle / 2);
    const shape::SideCorner corner =
        shape::MakeSideCorner(shape::Point(bottom, 0), radius, cone, fluteLength, rounding, false);
    if (!(corner.top <= fluteLength && corner.t <= corner.la)) throw tqcadcamException(2112);
    // The rounded cone ends on the side at the tool radius, within the flutes.
    SetDefaultExtender(radius);
}

tqCSink::~tqCSink() = default;

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
