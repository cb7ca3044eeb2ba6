// tqRadMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqradmill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/drillingshapes.h"

namespace cadcam {

tqRadMill::CommonRules tqRadMill::RoundingRules(double cornerRadius) {
    CommonRules rules;
    rules.cornerRule = CommonRules::kNonNegativeBelowRadius;
    rules.cornerRadius = cornerRadius;
    return rules;
}

tqRadMill::tqRadMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double diameter, double fluteLength, double shoulderLength, double cornerRadius)
    : tqRadMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, nullptr) {}

tqRadMill::tqRadMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                     const tqShoulderDefinitionExtender& extender)
    : tqRadMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, &extender) {}

tqRadMill::tqRadMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                     const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender,
                          RoundingRules(cornerRadius)),
      m_cornerRadius(cornerRadius) {
    const double radius = diameter / 2;
    // Flutes shorter than the corner radius cut the head inside its concave arc.
    const double top =
        fluteLength < cornerRadius ? shape::ArcCutX(shape::Point(radius, 0), cornerRadius, fluteLength, -1) : radius;
    SetDefaultExtender(top);
}

tqRadMill::~tqRadMill() = default;

void tqRadMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqRadMill::operator==(const tqRadMill& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius;
}

void tqRadMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
