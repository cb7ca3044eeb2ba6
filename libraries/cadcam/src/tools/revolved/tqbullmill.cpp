// tqBullMill: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqbullmill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {
namespace {

/// The end mill's corner at (R, 0) rounded into a torus; rc = R gives the ball.
shape::HeadPath Head(double radius, double fluteLength, double cornerRadius) {
    const std::vector<shape::Point> points = {shape::Point(0, 0), shape::Point(radius, 0),
                                              shape::Point(radius, fluteLength)};
    return shape::MakeRoundedCorner(points, 1, tqTypedRevolvedTool::CRT_CORNER, cornerRadius).Path();
}

}  // namespace

tqBullMill::tqBullMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double cornerRadius)
    : tqBullMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, nullptr) {}

tqBullMill::tqBullMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                       const tqShoulderDefinitionExtender& extender)
    : tqBullMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, &extender) {}

tqBullMill::tqBullMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                       const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_cornerRadius(cornerRadius) {
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    if (!(diameter >= 2 * cornerRadius)) throw tqcadcamException(2117);
    // The corner must fit in the flutes.
    if (!(cornerRadius <= fluteLength)) throw tqcadcamException(3476);
    BuildProfiles(Head(diameter / 2, fluteLength, cornerRadius));
}

tqBullMill::~tqBullMill() = default;

void tqBullMill::RebuildProfiles() {
    BuildProfiles(Head(GetDiameter() / 2, GetFluteLength(), m_cornerRadius));
}

void tqBullMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBullMill::operator==(const tqBullMill& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius;
}

void tqBullMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
