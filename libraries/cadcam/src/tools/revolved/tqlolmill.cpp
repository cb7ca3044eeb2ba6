// tqLolMill: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqlolmill.h"

#include "cadcam/tools/parts/tqarbordefinition.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {

tqLolMill::tqLolMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double diameter, double fluteLength, double shoulderLength, double outsideDiameter)
    : tqLolMill(units, arbor, holder, diameter, fluteLength, shoulderLength, outsideDiameter, nullptr) {}

tqLolMill::tqLolMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double diameter, double fluteLength, double shoulderLength, double outsideDiameter,
                     const tqShoulderDefinitionExtender& extender)
    : tqLolMill(units, arbor, holder, diameter, fluteLength, shoulderLength, outsideDiameter, &extender) {}

tqLolMill::tqLolMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                     double diameter, double fluteLength, double shoulderLength, double outsideDiameter,
                     const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_outsideDiameter(outsideDiameter) {
    if (!(outsideDiameter > 0)) throw tqcadcamException(2155);
    if (!(outsideDiameter < diameter)) throw tqcadcamException(2191);

    // The default shank is as wide as the ball, since nothing above the equator is wider.
    const double shoulderDiameter = HasGivenExtender() ? GetShoulderDefinitionExtender().GetDiameter() : diameter;
    if (!(outsideDiameter < shoulderDiameter)) throw tqcadcamException(2240);
    if (!(fluteLength > diameter / 2)) throw tqcadcamException(2241);
    if (GetArbor().IsNull() || GetArbor()->GetSolid().IsNull()) throw tqcadcamException(2138);

    BuildProfiles(shape::LollipopHead(diameter / 2, outsideDiameter / 2));
}

tqLolMill::~tqLolMill() = default;

void tqLolMill::RebuildProfiles() {
    BuildProfiles(shape::LollipopHead(GetDiameter() / 2, m_outsideDiameter / 2));
}

void tqLolMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqLolMill::operator==(const tqLolMill& other) const {
    return BaseEquals(other) && m_outsideDiameter == other.m_outsideDiameter;
}

void tqLolMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_outsideDiameter *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
