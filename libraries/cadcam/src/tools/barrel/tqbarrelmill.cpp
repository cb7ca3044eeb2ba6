// tqBarrelMill: its parameters, their checks and its head.
#include "cadcam/tools/barrel/tqbarrelmill.h"

#include <cmath>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/barrelshapes.h"

namespace cadcam {
namespace {

/// The corner fillet, the barrel up to its widest point and on to the upper diameter at the flute length.
shape::HeadPath Head(const shape::BarrelMillShape& s) {
    shape::HeadPath head = shape::LowerFilletPath(s.bottom, s.cb, s.widest);
    head.ArcTo(s.top, s.cb, true);
    return head;
}

}  // namespace

tqBarrelMill::tqBarrelMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                           const HolderPointer& holder, double diameter, double fluteLength, double shoulderLength,
                           double upperDiameter, double cornerRadius, double profileRadius)
    : tqBarrelMill(units, arbor, holder, diameter, fluteLength, shoulderLength, upperDiameter, cornerRadius,
                   profileRadius, nullptr) {}

tqBarrelMill::tqBarrelMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                           const HolderPointer& holder, double diameter, double fluteLength, double shoulderLength,
                           double upperDiameter, double cornerRadius, double profileRadius,
                           const tqShoulderDefinitionExtender& extender)
    : tqBarrelMill(units, arbor, holder, diameter, fluteLength, shoulderLength, upperDiameter, cornerRadius,
                   profileRadius, &extender) {}

tqBarrelMill::tqBarrelMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                           const HolderPointer& holder, double diameter, double fluteLength, double shoulderLength,
                           double upperDiameter, double cornerRadius, double profileRadius,
                           const tqShoulderDefinitionExtender* extender)
    // The flute length raises 2310, and the shoulder must stand strictly above the flutes (2311).
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender,
                          CommonRules{2310, true}),
      m_upperDiameter(upperDiameter),
      m_cornerRadius(cornerRadius),
      m_profileRadius(profileRadius) {
    const double radius = diameter / 2;
    const shape::BarrelMillShape s =
        shape::MakeBarrelMillShape(diameter, fluteLength, upperDiameter, cornerRadius, profileRadius);
    const double yb = s.cb.y;
    if (!(std::isfinite(upperDiameter))) throw tqcadcamException(2164);
    if (!(upperDiameter > 0)) throw tqcadcamException(2309);
    if (!(upperDiameter <= diameter)) throw tqcadcamException(2312);
    if (!(profileRadius > 0)) throw tqcadcamException(2166);
    if (!(radius - upperDiameter / 2 <= profileRadius && yb >= 0 && yb <= profileRadius)) {
        throw tqcadcamException(2313);
    }
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    if (!(cornerRadius < profileRadius)) throw tqcadcamException(2314);
    if (!s.bottom.ok) throw tqcadcamException(2294);
    // The fillet must leave the bottom at or right of the axis and meet the barrel below its widest point.
    if (!(s.bottom.f.x >= 0 && s.bottom.tk.y <= yb)) throw tqcadcamException(2315);
    BuildProfiles(Head(s));
}

tqBarrelMill::~tqBarrelMill() = default;

void tqBarrelMill::RebuildProfiles() {
    BuildProfiles(Head(
        shape::MakeBarrelMillShape(GetDiameter(), GetFluteLength(), m_upperDiameter, m_cornerRadius, m_profileRadius)));
}

void tqBarrelMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBarrelMill::operator==(const tqBarrelMill& other) const {
    return BaseEquals(other) && m_upperDiameter == other.m_upperDiameter && m_cornerRadius == other.m_cornerRadius &&
           m_profileRadius == other.m_profileRadius;
}

void tqBarrelMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_upperDiameter *= factor;
    m_cornerRadius *= factor;
    m_profileRadius *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
