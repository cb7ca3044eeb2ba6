// tqTapRH: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqtaprh.h"

#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/revolved/tapchecks.h"

namespace cadcam {

tqTapRH::tqTapRH(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                 double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                 CornerRadiusType cornerRadiusType, double tipAngle, int threadsNumber)
    : tqTapRH(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType, tipAngle,
              threadsNumber, nullptr) {}

tqTapRH::tqTapRH(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                 double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                 CornerRadiusType cornerRadiusType, double tipAngle, int threadsNumber,
                 const tqShoulderDefinitionExtender& extender)
    : tqTapRH(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType, tipAngle,
              threadsNumber, &extender) {}

tqTapRH::tqTapRH(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                 double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                 CornerRadiusType cornerRadiusType, double tipAngle, int threadsNumber,
                 const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_cornerRadius(cornerRadius),
      m_cornerRadiusType(cornerRadiusType),
      m_tipAngle(tipAngle),
      m_threadsNumber(threadsNumber) {
    detail_::CheckTapLead(diameter, fluteLength, cornerRadius, cornerRadiusType, tipAngle);
    BuildProfiles(detail_::TapLead(diameter, fluteLength, cornerRadius, cornerRadiusType, tipAngle).Path());
}

tqTapRH::~tqTapRH() = default;

void tqTapRH::RebuildProfiles() {
    BuildProfiles(
        detail_::TapLead(GetDiameter(), GetFluteLength(), m_cornerRadius, m_cornerRadiusType, m_tipAngle).Path());
}

void tqTapRH::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqTapRH::operator==(const tqTapRH& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius &&
           m_cornerRadiusType == other.m_cornerRadiusType && m_tipAngle == other.m_tipAngle &&
           m_threadsNumber == other.m_threadsNumber;
}

void tqTapRH::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
