// tqBarrelTaperMill: its parameters, their checks and its head.
#include "cadcam/tools/barrel/tqbarreltapermill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/barrelshapes.h"

namespace cadcam {
namespace {

/// The lower radius, the barrel over its widest point, the concave upper radius into the neck cone, and the
/// cone up to the flute length.
shape::HeadPath Head(const shape::TaperShape& s) {
    shape::HeadPath head = shape::LowerFilletPath(s.bottom, s.cb, s.widest);
    head.ArcTo(s.tku, s.cb, true);
    head.ArcTo(s.tlu, s.fu, false);
    head.LineTo(s.top);
    return head;
}

}  // namespace

tqBarrelTaperMill::tqBarrelTaperMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                     const HolderPointer& holder, double diameter, double fluteLength,
                                     double shoulderLength, double upperDiameter, double taperAngle, double lowerRadius,
                                     double profileRadius, double upperRadius, double flatnessDiameter)
    : tqBarrelTaperMill(units, arbor, holder, diameter, fluteLength, shoulderLength, upperDiameter, taperAngle,
                        lowerRadius, profileRadius, upperRadius, flatnessDiameter, nullptr) {}

tqBarrelTaperMill::tqBarrelTaperMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                     const HolderPointer& holder, double diameter, double fluteLength,
                                     double shoulderLength, double upperDiameter, double taperAngle, double lowerRadius,
                                     double profileRadius, double upperRadius, double flatnessDiameter,
                                     const tqShoulderDefinitionExtender& extender)
    : tqBarrelTaperMill(units, arbor, holder, diameter, fluteLength, shoulderLength, upperDiameter, taperAngle,
                        lowerRadius, profileRadius, upperRadius, flatnessDiameter, &extender) {}

tqBarrelTaperMill::tqBarrelTaperMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                     const HolderPointer& holder, double diameter, double fluteLength,
                                     double shoulderLength, double upperDiameter, double taperAngle, double lowerRadius,
                                     double profileRadius, double upperRadius, double flatnessDiameter,
                                     const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_upperDiameter(upperDiameter),
      m_taperAngle(taperAngle),
      m_lowerRadius(lowerRadius),
      m_profileRadius(profileRadius),
      m_upperRadius(upperRadius),
      m_flatnessDiameter(flatnessDiameter) {
    const double radius = diameter / 2;
    const shape::TaperShape s = shape::MakeTaperShape(diameter, fluteLength, upperDiameter, taperAngle, lowerRadius,
                                                      profileRadius, upperRadius, flatnessDiameter);
    const double yb = s.cb.y;
    if (!(upperDiameter > 0)) throw tqcadcamException(2309);
    if (!(taperAngle >= 0.1 && taperAngle <= 89)) throw tqcadcamException(2122);
    if (!(profileRadius > 0)) throw tqcadcamException(2166);
    if (!(flatnessDiameter >= 0 && flatnessDiameter < diameter)) throw tqcadcamException(2281);
    // The barrel rises from the end of the flat.
    if (!(profileRadius >= radius - flatnessDiameter / 2)) throw tqcadcamException(2284);
    if (!(lowerRadius >= 0)) throw tqcadcamException(2296);
    if (!(upperRadius >= 0)) throw tqcadcamException(3433);
    if (!(upperDiameter < diameter)) throw tqcadcamException(2312);
    if (!s.bottom.ok) throw tqcadcamException(2297);
    // The lower radius must leave the bottom at or right of the axis and meet the barrel below its widest point.
    if (!(s.bottom.f.x >= 0 && s.bottom.tk.y <= yb)) throw tqcadcamException(2298);
    // The neck must leave the barrel's upper right quarter.
    if (!(upperDiameter / 2 >= s.cb.x && s.disc >= 0)) throw tqcadcamException(3435);
    if (!(s.tku.y >= yb && s.tlu.y <= fluteLength && s.top.x <= radius)) throw tqcadcamException(3437);
    BuildProfiles(Head(s));
}

tqBarrelTaperMill::~tqBarrelTaperMill() = default;

void tqBarrelTaperMill::RebuildProfiles() {
    BuildProfiles(Head(shape::MakeTaperShape(GetDiameter(), GetFluteLength(), m_upperDiameter, m_taperAngle,
                                             m_lowerRadius, m_profileRadius, m_upperRadius, m_flatnessDiameter)));
}

void tqBarrelTaperMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBarrelTaperMill::operator==(const tqBarrelTaperMill& other) const {
    return BaseEquals(other) && m_upperDiameter == other.m_upperDiameter && m_taperAngle == other.m_taperAngle &&
           m_lowerRadius == other.m_lowerRadius && m_profileRadius == other.m_profileRadius &&
           m_upperRadius == other.m_upperRadius && m_flatnessDiameter == other.m_flatnessDiameter;
}

void tqBarrelTaperMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_upperDiameter *= factor;
    m_lowerRadius *= factor;
    m_profileRadius *= factor;
    m_upperRadius *= factor;
    m_flatnessDiameter *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
