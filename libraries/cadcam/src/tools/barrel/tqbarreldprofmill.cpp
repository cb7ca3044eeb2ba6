// tqBarrelDProfMill: its parameters, their checks and its head.
#include "cadcam/tools/barrel/tqbarreldprofmill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/barrelshapes.h"

namespace cadcam {
namespace {

/// The blend ball, the lower profile up to the widest point, the upper profile on to the flute length.
shape::HeadPath Head(const shape::DProfShape& s) {
    shape::HeadPath head = shape::TangentBarrelPath(s.lower);
    head.ArcTo(s.top, s.upperCentre, true);
    return head;
}

}  // namespace

tqBarrelDProfMill::tqBarrelDProfMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                     const HolderPointer& holder, double diameter, double fluteLength,
                                     double shoulderLength, double upperProfileRadius, double blendRadius,
                                     double lowerProfileRadius)
    : tqBarrelDProfMill(units, arbor, holder, diameter, fluteLength, shoulderLength, upperProfileRadius, blendRadius,
                        lowerProfileRadius, nullptr) {}

tqBarrelDProfMill::tqBarrelDProfMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                     const HolderPointer& holder, double diameter, double fluteLength,
                                     double shoulderLength, double upperProfileRadius, double blendRadius,
                                     double lowerProfileRadius, const tqShoulderDefinitionExtender& extender)
    : tqBarrelDProfMill(units, arbor, holder, diameter, fluteLength, shoulderLength, upperProfileRadius, blendRadius,
                        lowerProfileRadius, &extender) {}

tqBarrelDProfMill::tqBarrelDProfMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                     const HolderPointer& holder, double diameter, double fluteLength,
                                     double shoulderLength, double upperProfileRadius, double blendRadius,
                                     double lowerProfileRadius, const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_upperProfileRadius(upperProfileRadius),
      m_blendRadius(blendRadius),
      m_lowerProfileRadius(lowerProfileRadius) {
    const double radius = diameter / 2;
    const shape::DProfShape s =
        shape::MakeDProfShape(diameter, fluteLength, upperProfileRadius, blendRadius, lowerProfileRadius);
    const double yk = s.lower.cb.y;
    if (!(lowerProfileRadius >= radius)) throw tqcadcamException(3439);
    if (!(blendRadius >= 0 && blendRadius < radius)) throw tqcadcamException(3441);
    // The upper arc must reach the flute length without crossing the axis; an unsolvable lower arc fails here too.
    if (!(upperProfileRadius > 0 && yk <= fluteLength && fluteLength - yk < upperProfileRadius && s.top.x >= 0)) {
        throw tqcadcamException(3440);
    }
    BuildProfiles(Head(s));
}

tqBarrelDProfMill::~tqBarrelDProfMill() = default;

void tqBarrelDProfMill::RebuildProfiles() {
    BuildProfiles(Head(shape::MakeDProfShape(GetDiameter(), GetFluteLength(), m_upperProfileRadius, m_blendRadius,
                                             m_lowerProfileRadius)));
}

void tqBarrelDProfMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBarrelDProfMill::operator==(const tqBarrelDProfMill& other) const {
    return BaseEquals(other) && m_upperProfileRadius == other.m_upperProfileRadius &&
           m_blendRadius == other.m_blendRadius && m_lowerProfileRadius == other.m_lowerProfileRadius;
}

void tqBarrelDProfMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_upperProfileRadius *= factor;
    m_blendRadius *= factor;
    m_lowerProfileRadius *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
