// tqReamer: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqreamer.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {
namespace {

/// The bottom, then the 45° entry chamfer of radial size factor·R up to the tool radius.
shape::HeadPath Head(double radius, double factor) {
    const double chamfer = factor * radius;
    shape::HeadPath head;
    head.LineTo(shape::Point(radius - chamfer, 0));
    head.LineTo(shape::Point(radius, chamfer));
    return head;
}

}  // namespace

tqReamer::tqReamer(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                   double diameter, double fluteLength, double shoulderLength, double factor)
    : tqReamer(units, arbor, holder, diameter, fluteLength, shoulderLength, factor, nullptr) {}

tqReamer::tqReamer(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                   double diameter, double fluteLength, double shoulderLength, double factor,
                   const tqShoulderDefinitionExtender& extender)
    : tqReamer(units, arbor, holder, diameter, fluteLength, shoulderLength, factor, &extender) {}

tqReamer::tqReamer(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                   double diameter, double fluteLength, double shoulderLength, double factor,
                   const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_factor(factor) {
    if (!(factor >= 0 && factor <= 1)) throw tqcadcamException(3469);
    const double radius = diameter / 2;
    if (!(factor * radius <= fluteLength)) throw tqcadcamException(3470);
    BuildProfiles(Head(radius, factor));
}

tqReamer::~tqReamer() = default;

void tqReamer::RebuildProfiles() {
    BuildProfiles(Head(GetDiameter() / 2, m_factor));
}

void tqReamer::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqReamer::operator==(const tqReamer& other) const { return BaseEquals(other) && m_factor == other.m_factor; }

}  // namespace cadcam
