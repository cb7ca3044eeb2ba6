// tqBarrelTangentMillConicalShaft: its parameters, their checks and its head.
#include "cadcam/tools/barrel/tqbarreltangentmillconicalshaft.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/barrelshapes.h"

namespace cadcam {
namespace {

/// The tip ball, the barrel over its widest point to where its tangent is the cone's, the neck cone, then
/// straight up to the flute length.
shape::HeadPath Head(const shape::ConicalShaftShape& s) {
    shape::HeadPath head = shape::TangentBarrelPath(s.lower);
    head.ArcTo(s.pt, s.lower.cb, true);
    head.LineTo(s.pc);
    head.LineTo(s.top);
    return head;
}

}  // namespace

using ConicalShaft = tqBarrelTangentMillConicalShaft;

ConicalShaft::tqBarrelTangentMillConicalShaft(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                              const HolderPointer& holder, double diameter, double fluteLength,
                                              double shoulderLength, double taperAngle, double profileRadius,
                                              double lowerRadius, double coneLength)
    : tqBarrelTangentMillConicalShaft(units, arbor, holder, diameter, fluteLength, shoulderLength, taperAngle,
                                      profileRadius, lowerRadius, coneLength, nullptr) {}

ConicalShaft::tqBarrelTangentMillConicalShaft(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                              const HolderPointer& holder, double diameter, double fluteLength,
                                              double shoulderLength, double taperAngle, double profileRadius,
                                              double lowerRadius, double coneLength,
                                              const tqShoulderDefinitionExtender& extender)
    : tqBarrelTangentMillConicalShaft(units, arbor, holder, diameter, fluteLength, shoulderLength, taperAngle,
                                      profileRadius, lowerRadius, coneLength, &extender) {}

ConicalShaft::tqBarrelTangentMillConicalShaft(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                              const HolderPointer& holder, double diameter, double fluteLength,
                                              double shoulderLength, double taperAngle, double profileRadius,
                                              double lowerRadius, double coneLength,
                                              const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_taperAngle(taperAngle),
      m_profileRadius(profileRadius),
      m_lowerRadius(lowerRadius),
      m_coneLength(coneLength) {
    const shape::ConicalShaftShape s =
        shape::MakeConicalShaftShape(diameter, fluteLength, taperAngle, profileRadius, lowerRadius, coneLength);
    const double yb = s.lower.cb.y;
    if (!(profileRadius > 0)) throw tqcadcamException(2166);
    if (!(lowerRadius >= 0)) throw tqcadcamException(2296);
    if (!(diameter > 2 * lowerRadius)) throw tqcadcamException(2281);
    if (!(profileRadius >= diameter / 2)) throw tqcadcamException(2280);
    // Also fails when the barrel's height cannot be solved (an infinite profile radius).
    if (!(profileRadius > yb)) throw tqcadcamException(2284);
    if (!(yb <= fluteLength)) throw tqcadcamException(2297);
    if (!(taperAngle > 0 && taperAngle < 90 && coneLength >= 0)) throw tqcadcamException(2299);
    if (!(s.pc.y <= fluteLength && s.pc.x > 0)) throw tqcadcamException(2298);
    // The file keeps one shoulder length for both, so the default shank reaches its diameter at the shoulder.
    BuildProfiles(Head(s), true);
}

ConicalShaft::~tqBarrelTangentMillConicalShaft() = default;

void ConicalShaft::RebuildProfiles() {
    BuildProfiles(Head(shape::MakeConicalShaftShape(GetDiameter(), GetFluteLength(), m_taperAngle, m_profileRadius,
                                                    m_lowerRadius, m_coneLength)),
                  true);
}

void ConicalShaft::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool ConicalShaft::operator==(const tqBarrelTangentMillConicalShaft& other) const {
    return BaseEquals(other) && m_taperAngle == other.m_taperAngle && m_profileRadius == other.m_profileRadius &&
           m_lowerRadius == other.m_lowerRadius && m_coneLength == other.m_coneLength;
}

void ConicalShaft::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_profileRadius *= factor;
    m_lowerRadius *= factor;
    m_coneLength *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
