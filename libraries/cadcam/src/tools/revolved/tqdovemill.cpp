// tqDoveMill: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqdovemill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {
tqDoveMill::tqDoveMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                       CornerRadiusType cornerRadiusType, double taperAngle)
    : tqDoveMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType,
                 taperAngle, nullptr) {}

tqDoveMill::tqDoveMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                       CornerRadiusType cornerRadiusType, double taperAngle,
                       const tqShoulderDefinitionExtender& extender)
    : tqDoveMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType,
                 taperAngle, &extender) {}

tqDoveMill::tqDoveMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                       CornerRadiusType cornerRadiusType, double taperAngle,
                       const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_cornerRadius(cornerRadius),
      m_cornerRadiusType(cornerRadiusType),
      m_taperAngle(taperAngle) {
    if (!(cornerRadiusType == CRT_NONE || cornerRadiusType == CRT_CORNER || cornerRadiusType == CRT_FULL)) {
        throw tqcadcamException(2109);
    }
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    if (!(taperAngle >= 0.1 && taperAngle <= 89)) throw tqcadcamException(2122);

    const shape::RoundedCorner head =
        shape::UndercutHead(diameter, fluteLength, cornerRadius, cornerRadiusType, taperAngle);
    // The side must stay off the axis, and the fillet must fit both the bottom and the side.
    const shape::CornerFillet& corner = head.fillet;
    const double t = corner.fillet.t;
    if (!(head.points.back().x > 0 && t <= corner.la && t <= corner.lb)) throw tqcadcamException(2141);
    BuildProfiles(head.Path());
}

tqDoveMill::~tqDoveMill() = default;

void tqDoveMill::RebuildProfiles() {
    BuildProfiles(
        shape::UndercutHead(GetDiameter(), GetFluteLength(), m_cornerRadius, m_cornerRadiusType, m_taperAngle).Path());
}

void tqDoveMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqDoveMill::operator==(const tqDoveMill& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius &&
           m_cornerRadiusType == other.m_cornerRadiusType && m_taperAngle == other.m_taperAngle;
}

void tqDoveMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
