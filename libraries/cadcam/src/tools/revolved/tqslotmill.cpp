// tqSlotMill: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqslotmill.h"

#include <algorithm>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {
namespace {

/// The disc: the bottom, the lower and upper corners rounded by r = rc* and the side between them, ending on
/// the upper arc at (R − r, Lf); with the full radius and Lf > D the upper arc ends on the axis.
shape::HeadPath Head(double diameter, double fluteLength, double cornerRadius, int cornerRadiusType) {
    const double radius = diameter / 2;
    double r = 0;
    if (cornerRadiusType == tqTypedRevolvedTool::CRT_CORNER) r = cornerRadius;
    if (cornerRadiusType == tqTypedRevolvedTool::CRT_FULL) r = std::min(radius, fluteLength / 2);
    if (!(r > 0)) return shape::CylinderHead(radius, fluteLength);
    using shape::Point;
    shape::HeadPath head;
    head.LineTo(Point(radius - r, 0));
    head.ArcTo(Point(radius, r), Point(radius - r, r), true);
    head.LineTo(Point(radius, fluteLength - r));
    head.ArcTo(Point(radius - r, fluteLength), Point(radius - r, fluteLength - r), true);
    return head;
}

}  // namespace

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

    BuildProfiles(Head(diameter, fluteLength, cornerRadius, cornerRadiusType));
}

tqSlotMill::~tqSlotMill() = default;

void tqSlotMill::RebuildProfiles() {
    BuildProfiles(Head(GetDiameter(), GetFluteLength(), m_cornerRadius, m_cornerRadiusType));
}

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
