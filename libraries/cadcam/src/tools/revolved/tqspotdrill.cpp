// tqSpotDrill: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqspotdrill.h"

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

tqSpotDrill::tqSpotDrill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                         double diameter, double fluteLength, double shoulderLength, double tipAngle)
    : tqSpotDrill(units, arbor, holder, diameter, fluteLength, shoulderLength, tipAngle, nullptr) {}

tqSpotDrill::tqSpotDrill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                         double diameter, double fluteLength, double shoulderLength, double tipAngle,
                         const tqShoulderDefinitionExtender& extender)
    : tqSpotDrill(units, arbor, holder, diameter, fluteLength, shoulderLength, tipAngle, &extender) {}

tqSpotDrill::tqSpotDrill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                         double diameter, double fluteLength, double shoulderLength, double tipAngle,
                         const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_tipAngle(tipAngle) {
    if (!(tipAngle >= 1 && tipAngle <= 180)) throw tqcadcamException(2113);
    const double radius = diameter / 2;
    if (!(shape::ConeHeight(radius, tipAngle / 2) <= fluteLength)) throw tqcadcamException(2112);
    BuildProfiles(Head(radius, tipAngle));
}

tqSpotDrill::~tqSpotDrill() = default;

void tqSpotDrill::RebuildProfiles() {
    BuildProfiles(Head(GetDiameter() / 2, m_tipAngle));
}

void tqSpotDrill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqSpotDrill::operator==(const tqSpotDrill& other) const {
    return BaseEquals(other) && m_tipAngle == other.m_tipAngle;
}

}  // namespace cadcam
