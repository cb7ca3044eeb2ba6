// tqBarrelLensMill: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqbarrellensmill.h"

#include <cmath>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {

tqBarrelLensMill::tqBarrelLensMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                   const HolderPointer& holder, double diameter, double fluteLength,
                                   double shoulderLength, double cornerRadius, double convexTipRadius)
    : tqBarrelLensMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, convexTipRadius,
                       nullptr) {}

tqBarrelLensMill::tqBarrelLensMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                   const HolderPointer& holder, double diameter, double fluteLength,
                                   double shoulderLength, double cornerRadius, double convexTipRadius,
                                   const tqShoulderDefinitionExtender& extender)
    : tqBarrelLensMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, convexTipRadius,
                       &extender) {}

tqBarrelLensMill::tqBarrelLensMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                   const HolderPointer& holder, double diameter, double fluteLength,
                                   double shoulderLength, double cornerRadius, double convexTipRadius,
                                   const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_cornerRadius(cornerRadius),
      m_convexTipRadius(convexTipRadius) {
    const double radius = diameter / 2;
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    // The lens must reach the diameter, and be a lens: an infinite radius is a flat end.
    if (!(convexTipRadius >= radius && std::isfinite(convexTipRadius))) throw tqcadcamException(3431);
    // The fillet must fit below the tool radius.
    if (!(cornerRadius < radius)) throw tqcadcamException(3432);

    const shape::HeadPath head = shape::ConvexTipHead(radius, convexTipRadius, 0, cornerRadius);
    BuildProfiles(head);
}

tqBarrelLensMill::~tqBarrelLensMill() = default;

void tqBarrelLensMill::RebuildProfiles() {
    BuildProfiles(shape::ConvexTipHead(GetDiameter() / 2, m_convexTipRadius, 0, m_cornerRadius));
}

void tqBarrelLensMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBarrelLensMill::operator==(const tqBarrelLensMill& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius && m_convexTipRadius == other.m_convexTipRadius;
}

void tqBarrelLensMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    m_convexTipRadius *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
