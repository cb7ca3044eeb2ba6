// tqDrill: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqdrill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {
namespace {

/// The point cone up to the tool radius; the side rises from there to the flute length.
shape::HeadPath Head(double radius, double tipAngle) {
    shape::HeadPath head;
    head.LineTo(shape::Point(radius, shape::ConeHeight(radius, tipAngle / 2)));
    return head;
}

}  // namespace

tqDrill::tqDrill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                 double diameter, double fluteLength, double shoulderLength, double tipAngle)
    : tqDrill(units, arbor, holder, diameter, fluteLength, shoulderLength, tipAngle, nullptr) {}

tqDrill::tqDrill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                 double diameter, double fluteLength, double shoulderLength, double tipAngle,
                 const tqShoulderDefinitionExtender& extender)
    : tqDrill(units, arbor, holder, diameter, fluteLength, shoulderLength, tipAngle, &extender) {}

tqDrill::tqDrill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                 double diameter, double fluteLength, double shoulderLength, double tipAngle,
                 const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_tipAngle(tipAngle) {
    if (!(tipAngle > 0 && tipAngle <= 180)) throw tqcadcamException(2228);
    const double radius = diameter / 2;
    if (!(shape::ConeHeight(radius, tipAngle / 2) <= fluteLength)) throw tqcadcamException(2112);
    BuildProfiles(Head(radius, tipAngle));
}

tqDrill::~tqDrill() = default;

void tqDrill::RebuildProfiles() {
    BuildProfiles(Head(GetDiameter() / 2, m_tipAngle));
}

void tqDrill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqDrill::operator==(const tqDrill& other) const { return BaseEquals(other) && m_tipAngle == other.m_tipAngle; }

}  // namespace cadcam
