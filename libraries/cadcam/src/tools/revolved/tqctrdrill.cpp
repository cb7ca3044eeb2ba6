// tqCtrDrill: its parameters and their checks.
#include "cadcam/tools/revolved/tqctrdrill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/profiletoolkit.h"

namespace cadcam {

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
    const double radius = diameter / 2;
    const double pilot = coreDiameter / 2;
    if (!(coreDiameter > 0 && coreDiameter < diameter && shape::ConeHeight(pilot, tipAngle / 2) <= coreHeight)) {
        throw tqcadcamException(2279);
    }
    const double shoulderTop = coreHeight + shape::ConeHeight(radius - pilot, shoulderAngle / 2);
    if (!(shoulderTop <= fluteLength)) throw tqcadcamException(2112);
    // The shoulder reaches the tool radius within the flutes; the side rises there to the flute length.
    SetDefaultExtender(radius);
}

tqCtrDrill::~tqCtrDrill() = default;

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
