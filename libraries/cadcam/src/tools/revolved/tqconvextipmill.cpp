// tqConvexTipMill: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqconvextipmill.h"

#include <cmath>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {

tqConvexTipMill::tqConvexTipMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                 const HolderPointer& holder, double diameter, double fluteLength,
                                 double shoulderLength, double cornerRadius, double convexTipRadius,
                                 double flatnessRadius)
    : tqConvexTipMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, convexTipRadius,
                      flatnessRadius, nullptr) {}

tqConvexTipMill::tqConvexTipMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                 const HolderPointer& holder, double diameter, double fluteLength,
                                 double shoulderLength, double cornerRadius, double convexTipRadius,
                                 double flatnessRadius, const tqShoulderDefinitionExtender& extender)
    : tqConvexTipMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, convexTipRadius,
                      flatnessRadius, &extender) {}

tqConvexTipMill::tqConvexTipMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                 const HolderPointer& holder, double diameter, double fluteLength,
                                 double shoulderLength, double cornerRadius, double convexTipRadius,
                                 double flatnessRadius, const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_cornerRadius(cornerRadius),
      m_convexTipRadius(convexTipRadius),
      m_flatnessRadius(flatnessRadius) {
    const double radius = diameter / 2;
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    if (!(flatnessRadius >= 0)) throw tqcadcamException(2235);
    if (!(radius - cornerRadius > flatnessRadius)) throw tqcadcamException(2234);
    // An infinite tip radius would be a flat end, which has no tip arc to build.
    if (!(convexTipRadius >= radius && std::isfinite(convexTipRadius))) throw tqcadcamException(2422);

    const shape::HeadPath head = shape::ConvexTipHead(radius, convexTipRadius, flatnessRadius, cornerRadius);
    BuildProfiles(head);
}

tqConvexTipMill::~tqConvexTipMill() = default;

void tqConvexTipMill::RebuildProfiles() {
    BuildProfiles(shape::ConvexTipHead(GetDiameter() / 2, m_convexTipRadius, m_flatnessRadius, m_cornerRadius));
}

void tqConvexTipMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqConvexTipMill::operator==(const tqConvexTipMill& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius &&
           m_convexTipRadius == other.m_convexTipRadius && m_flatnessRadius == other.m_flatnessRadius;
}

void tqConvexTipMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    m_convexTipRadius *= factor;
    m_flatnessRadius *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
