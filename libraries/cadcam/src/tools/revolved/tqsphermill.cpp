// tqSpherMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqsphermill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/drillingshapes.h"

namespace cadcam {

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
    const double radius = diameter / 2;
    // Flutes shorter than the ball cut it below its equator.
    const double top = fluteLength < radius ? shape::ArcCutX(shape::Point(0, radius), radius, fluteLength, 1) : radius;
    SetDefaultExtender(top);
}

tqSpherMill::~tqSpherMill() = default;

void tqSpherMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqSpherMill::operator==(const tqSpherMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
