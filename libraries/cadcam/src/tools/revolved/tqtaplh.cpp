// tqTapLH: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqtaplh.h"

#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/revolved/tapchecks.h"

namespace cadcam {

tqTapLH::tqTapLH(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                 double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                 CornerRadiusType cornerRadiusType, double tipAngle, int threadsNumber)
    : tqTapLH(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType, tipAngle,
              threadsNumber, nullptr) {}

tqTapLH::tqTapLH(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                 double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                 CornerRadiusType cornerRadiusType, double tipAngle, int threadsNumber,
                 const tqShoulderDefinitionExtender& extender)
    : tqTapLH(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType, tipAngle,
              threadsNumber, &extender) {}

tqTapLH::tqTapLH(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
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

tqTapLH::~tqTapLH() = default;

void tqTapLH::RebuildProfiles() {
    BuildProfiles(
        detail_::TapLead(GetDiameter(), GetFluteLength(), m_cornerRadius, m_cornerRadiusType, m_tipAngle).Path());
}

void tqTapLH::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqTapLH::operator==(const tqTapLH& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius &&
           m_cornerRadiusType == other.m_cornerRadiusType && m_tipAngle == other.m_tipAngle &&
           m_threadsNumber == other.m_threadsNumber;
}

void tqTapLH::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
