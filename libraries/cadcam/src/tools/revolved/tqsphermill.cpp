// tqSpherMill: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqsphermill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {
namespace {

/// The quarter of the ball from the tip to its equator; flutes shorter than the radius cut it below.
shape::HeadPath Head(double radius) {
    shape::HeadPath head;
    head.ArcTo(shape::Point(radius, radius), shape::Point(0, radius), true);
    return head;
}

}  // namespace

tqSpherMill::tqSpherMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                         double diameter, double fluteLength, double shoulderLength)
    : tqSpherMill(units, arbor, holder, diameter, fluteLength, shoulderLength, nullptr) {}

tqSpherMill::tqSpherMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                         double diameter, double fluteLength, double shoulderLength,
                         const tqShoulderDefinitionExtender& extender)
    : tqSpherMill(units, arbor, holder, diameter, fluteLength, shoulderLength, &extender) {}

tqSpherMill::tqSpherMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                         double diameter, double fluteLength, double shoulderLength,
                         const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()) {
    BuildProfiles(Head(diameter / 2));
}

tqSpherMill::~tqSpherMill() = default;

void tqSpherMill::RebuildProfiles() {
    BuildProfiles(Head(GetDiameter() / 2));
}

void tqSpherMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqSpherMill::operator==(const tqSpherMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
