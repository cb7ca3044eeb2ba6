// tqBarrelBarrSecMill: its parameters, their checks and its head.
#include "cadcam/tools/barrel/tqbarrelbarrsecmill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/barrelshapes.h"

namespace cadcam {
namespace {

/// The lower blend, the barrel over its widest point, the concave upper blend into the shaft, and the shaft.
shape::HeadPath Head(const shape::BarrSecShape& s) {
    shape::HeadPath head = shape::LowerFilletPath(s.bottom, s.cb, s.widest);
    head.ArcTo(s.tku, s.cb, true);
    head.ArcTo(s.tlu, s.fu, false);
    head.LineTo(s.top);
    return head;
}

}  // namespace

tqBarrelBarrSecMill::tqBarrelBarrSecMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                         const HolderPointer& holder, double diameter, double fluteLength,
                                         double shoulderLength, double shaftDiameter, double upperBlendRadius,
                                         double profileRadius, double lowerBlendRadius, double centerHeight)
    : tqBarrelBarrSecMill(units, arbor, holder, diameter, fluteLength, shoulderLength, shaftDiameter, upperBlendRadius,
                          profileRadius, lowerBlendRadius, centerHeight, nullptr) {}

tqBarrelBarrSecMill::tqBarrelBarrSecMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                         const HolderPointer& holder, double diameter, double fluteLength,
                                         double shoulderLength, double shaftDiameter, double upperBlendRadius,
                                         double profileRadius, double lowerBlendRadius, double centerHeight,
                                         const tqShoulderDefinitionExtender& extender)
    : tqBarrelBarrSecMill(units, arbor, holder, diameter, fluteLength, shoulderLength, shaftDiameter, upperBlendRadius,
                          profileRadius, lowerBlendRadius, centerHeight, &extender) {}

tqBarrelBarrSecMill::tqBarrelBarrSecMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                         const HolderPointer& holder, double diameter, double fluteLength,
                                         double shoulderLength, double shaftDiameter, double upperBlendRadius,
                                         double profileRadius, double lowerBlendRadius, double centerHeight,
                                         const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_shaftDiameter(shaftDiameter),
      m_upperBlendRadius(upperBlendRadius),
      m_profileRadius(profileRadius),
      m_lowerBlendRadius(lowerBlendRadius),
      m_centerHeight(centerHeight) {
    const shape::BarrSecShape s = shape::MakeBarrSecShape(diameter, fluteLength, shaftDiameter, upperBlendRadius,
                                                          profileRadius, lowerBlendRadius, centerHeight);
    if (!(profileRadius > 0)) throw tqcadcamException(3449);
    if (!(centerHeight >= 0)) throw tqcadcamException(3450);
    if (!(profileRadius > centerHeight)) throw tqcadcamException(2284);
    if (!(shaftDiameter > 0)) throw tqcadcamException(3447);
    if (!(shaftDiameter < diameter)) throw tqcadcamException(3448);
    if (!(centerHeight <= fluteLength)) throw tqcadcamException(3451);
    if (!(lowerBlendRadius >= 0)) throw tqcadcamException(3452);
    if (!(upperBlendRadius >= 0)) throw tqcadcamException(3453);
    if (!(shaftDiameter / 2 > s.cb.x)) throw tqcadcamException(3454);
    if (!s.bottom.ok) throw tqcadcamException(3455);
    // The lower blend must leave the bottom at or right of the axis and meet the barrel below its widest point.
    if (!(s.bottom.f.x >= 0 && s.bottom.tk.y <= centerHeight)) throw tqcadcamException(3456);
    if (!(s.upperRadicand >= 0)) throw tqcadcamException(3457);
    if (!(s.tlu.y <= fluteLength)) throw tqcadcamException(3458);
    BuildProfiles(Head(s));
}

tqBarrelBarrSecMill::~tqBarrelBarrSecMill() = default;

void tqBarrelBarrSecMill::RebuildProfiles() {
    BuildProfiles(Head(shape::MakeBarrSecShape(GetDiameter(), GetFluteLength(), m_shaftDiameter, m_upperBlendRadius,
                                               m_profileRadius, m_lowerBlendRadius, m_centerHeight)));
}

void tqBarrelBarrSecMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBarrelBarrSecMill::operator==(const tqBarrelBarrSecMill& other) const {
    return BaseEquals(other) && m_shaftDiameter == other.m_shaftDiameter &&
           m_upperBlendRadius == other.m_upperBlendRadius && m_profileRadius == other.m_profileRadius &&
           m_lowerBlendRadius == other.m_lowerBlendRadius && m_centerHeight == other.m_centerHeight;
}

void tqBarrelBarrSecMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_shaftDiameter *= factor;
    m_upperBlendRadius *= factor;
    m_profileRadius *= factor;
    m_lowerBlendRadius *= factor;
    m_centerHeight *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
