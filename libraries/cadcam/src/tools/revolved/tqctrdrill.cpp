// tqCtrDrill: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqctrdrill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {
namespace {

/// The pilot's point and cylinder up to the core height, then the shoulder cone out to the tool radius: three
/// lines, whose ends the checks read.
shape::HeadPath Head(double diameter, double tipAngle, double shoulderAngle, double coreDiameter, double coreHeight) {
    const double radius = diameter / 2;
    const double pilot = coreDiameter / 2;
    shape::HeadPath head;
    head.LineTo(shape::Point(pilot, shape::ConeHeight(pilot, tipAngle / 2)));
    head.LineTo(shape::Point(pilot, coreHeight));
    head.LineTo(shape::Point(radius, coreHeight + shape::ConeHeight(radius - pilot, shoulderAngle / 2)));
    return head;
}

}  // namespace

tqCtrDrill::tqCtrDrill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double tipAngle,
                       double shoulderAngle, double coreDiameter, double coreHeight)
    : tqCtrDrill(units, arbor, holder, diameter, fluteLength, shoulderLength, tipAngle, shoulderAngle, coreDiameter,
                 coreHeight, nullptr) {}

tqCtrDrill::tqCtrDrill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double tipAngle,
                       double shoulderAngle, double coreDiameter, double coreHeight,
                       const tqShoulderDefinitionExtender& extender)
    : tqCtrDrill(units, arbor, holder, diameter, fluteLength, shoulderLength, tipAngle, shoulderAngle, coreDiameter,
                 coreHeight, &extender) {}

tqCtrDrill::tqCtrDrill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double tipAngle,
                       double shoulderAngle, double coreDiameter, double coreHeight,
                       const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_tipAngle(tipAngle),
      m_shoulderAngle(shoulderAngle),
      m_coreDiameter(coreDiameter),
      m_coreHeight(coreHeight) {
    if (!(tipAngle >= 1 && tipAngle <= 180)) throw tqcadcamException(2113);
    if (!(shoulderAngle >= 1 && shoulderAngle <= 180)) throw tqcadcamException(2114);
    const shape::HeadPath head = Head(diameter, tipAngle, shoulderAngle, coreDiameter, coreHeight);
    const double pointTop = head.items[0].end.y;
    const double shoulderTop = head.items[2].end.y;
    if (!(coreDiameter > 0 && coreDiameter < diameter && pointTop <= coreHeight)) throw tqcadcamException(2279);
    if (!(shoulderTop <= fluteLength)) throw tqcadcamException(2112);
    BuildProfiles(head);
}

tqCtrDrill::~tqCtrDrill() = default;

void tqCtrDrill::RebuildProfiles() {
    BuildProfiles(Head(GetDiameter(), m_tipAngle, m_shoulderAngle, m_coreDiameter, m_coreHeight));
}

void tqCtrDrill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqCtrDrill::operator==(const tqCtrDrill& other) const {
    return BaseEquals(other) && m_tipAngle == other.m_tipAngle && m_shoulderAngle == other.m_shoulderAngle &&
           m_coreDiameter == other.m_coreDiameter && m_coreHeight == other.m_coreHeight;
}

void tqCtrDrill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_coreDiameter *= factor;
    m_coreHeight *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
