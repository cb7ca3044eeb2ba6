// tqSlotMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqslotmill.h"

#include <algorithm>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqSlotMill::tqSlotMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                       CornerRadiusType cornerRadiusType)
    : tqSlotMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType, nullptr) {
}

tqSlotMill::tqSlotMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                       CornerRadiusType cornerRadiusType, const tqShoulderDefinitionExtender& extender)
    : tqSlotMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType,
                 &extender) {}

tqSlotMill::tqSlotMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                       CornerRadiusType cornerRadiusType, const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender,
                          [&] {
                              // Only a given corner radius meets the tool radius in the common checks.
                              CommonRules rules;
                              if (cornerRadiusType == CRT_CORNER) {
                                  rules.cornerRule = CommonRules::kBelowRadius;
                                  rules.cornerRadius = cornerRadius;
                              }
                              return rules;
                          }()),
      m_cornerRadius(cornerRadius),
      m_cornerRadiusType(cornerRadiusType) {
    if (!(cornerRadiusType == CRT_NONE || cornerRadiusType == CRT_CORNER || cornerRadiusType == CRT_FULL)) {
        throw tqcadcamException(2109);
    }
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    if (cornerRadiusType == CRT_CORNER) {
        if (!(fluteLength >= 2 * cornerRadius)) throw tqcadcamException(2125);
        // Corners that meet would leave the disc without a side.
        if (!(fluteLength > 2 * cornerRadius)) throw tqcadcamException(3424);
    }

    const double radius = diameter / 2;
    double effectiveRadius = 0;
    if (cornerRadiusType == CRT_CORNER) effectiveRadius = cornerRadius;
    if (cornerRadiusType == CRT_FULL) effectiveRadius = std::min(radius, fluteLength / 2);
    // The profile ends on the upper corner arc, at (R − r, Lf).
    SetDefaultExtender(radius - effectiveRadius);
}

tqSlotMill::~tqSlotMill() = default;

void tqSlotMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqSlotMill::operator==(const tqSlotMill& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius &&
           m_cornerRadiusType == other.m_cornerRadiusType;
}

void tqSlotMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
