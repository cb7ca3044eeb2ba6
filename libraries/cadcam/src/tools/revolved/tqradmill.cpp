// tqRadMill: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqradmill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {
namespace {

/// The pilot's flat, then the concave quarter that rounds it up to the side; flutes shorter than the corner
/// radius cut the head inside the arc.
shape::HeadPath Head(double radius, double cornerRadius) {
    shape::HeadPath head;
    head.LineTo(shape::Point(radius - cornerRadius, 0));
    head.ArcTo(shape::Point(radius, cornerRadius), shape::Point(radius, 0), false);
    return head;
}

}  // namespace

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
    BuildProfiles(Head(diameter / 2, cornerRadius));
}

tqRadMill::~tqRadMill() = default;

void tqRadMill::RebuildProfiles() {
    BuildProfiles(Head(GetDiameter() / 2, m_cornerRadius));
}

void tqRadMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqRadMill::operator==(const tqRadMill& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius;
}

void tqRadMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
