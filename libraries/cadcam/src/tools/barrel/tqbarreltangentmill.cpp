// tqBarrelTangentMill: its parameters, their checks and its head.
#include "cadcam/tools/barrel/tqbarreltangentmill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/barrelshapes.h"

namespace cadcam {
namespace {

/// The tip ball, the barrel over its widest point to the upper diameter, then straight up to the flute length.
shape::HeadPath Head(const shape::TangentMillShape& s) {
    shape::HeadPath head = shape::TangentBarrelPath(s.lower);
    head.ArcTo(s.upper, s.lower.cb, true);
    head.LineTo(s.top);
    return head;
}

}  // namespace

tqBarrelTangentMill::tqBarrelTangentMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                         const HolderPointer& holder, double diameter, double fluteLength,
                                         double shoulderLength, double upperDiameter, double profileRadius,
                                         double lowerRadius)
    : tqBarrelTangentMill(units, arbor, holder, diameter, fluteLength, shoulderLength, upperDiameter, profileRadius,
                          lowerRadius, nullptr) {}

tqBarrelTangentMill::tqBarrelTangentMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                         const HolderPointer& holder, double diameter, double fluteLength,
                                         double shoulderLength, double upperDiameter, double profileRadius,
                                         double lowerRadius, const tqShoulderDefinitionExtender& extender)
    : tqBarrelTangentMill(units, arbor, holder, diameter, fluteLength, shoulderLength, upperDiameter, profileRadius,
                          lowerRadius, &extender) {}

tqBarrelTangentMill::tqBarrelTangentMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                         const HolderPointer& holder, double diameter, double fluteLength,
                                         double shoulderLength, double upperDiameter, double profileRadius,
                                         double lowerRadius, const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_upperDiameter(upperDiameter),
      m_profileRadius(profileRadius),
      m_lowerRadius(lowerRadius) {
    const shape::TangentMillShape s =
        shape::MakeTangentMillShape(diameter, fluteLength, upperDiameter, profileRadius, lowerRadius);
    const double yb = s.lower.cb.y;
    if (!(profileRadius > 0)) throw tqcadcamException(2166);
    if (!(lowerRadius >= 0)) throw tqcadcamException(2296);
    if (!(diameter > 2 * lowerRadius)) throw tqcadcamException(2281);
    if (!(profileRadius >= diameter / 2)) throw tqcadcamException(2280);
    // Also fails when the barrel's height cannot be solved (an infinite profile radius).
    if (!(profileRadius > yb)) throw tqcadcamException(2284);
    if (!(yb <= fluteLength)) throw tqcadcamException(2297);
    if (!(upperDiameter > 0 && upperDiameter <= diameter)) throw tqcadcamException(2164);
    if (!(s.upper.y <= fluteLength)) throw tqcadcamException(2298);
    BuildProfiles(Head(s));
}

tqBarrelTangentMill::~tqBarrelTangentMill() = default;

void tqBarrelTangentMill::RebuildProfiles() {
    BuildProfiles(Head(
        shape::MakeTangentMillShape(GetDiameter(), GetFluteLength(), m_upperDiameter, m_profileRadius, m_lowerRadius)));
}

void tqBarrelTangentMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBarrelTangentMill::operator==(const tqBarrelTangentMill& other) const {
    return BaseEquals(other) && m_upperDiameter == other.m_upperDiameter && m_profileRadius == other.m_profileRadius &&
           m_lowerRadius == other.m_lowerRadius;
}

void tqBarrelTangentMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_upperDiameter *= factor;
    m_profileRadius *= factor;
    m_lowerRadius *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
