// tqTaperMill: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqtapermill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {
namespace {

/// The bottom and the side widening upward by the taper angle, the bottom corner rounded. The side runs R
/// beyond the flutes, long enough for any fillet that fits the bottom.
shape::RoundedCorner Head(double diameter, double fluteLength, double cornerRadius, int cornerRadiusType,
                          double taperAngle) {
    const double radius = diameter / 2;
    const double sideHeight = fluteLength + radius;
    return shape::MakeRoundedCorner({shape::Point(0, 0), shape::Point(radius, 0),
                                     shape::Point(radius + sideHeight * shape::TanDegrees(taperAngle), sideHeight)},
                                    1, cornerRadiusType, cornerRadius);
}

}  // namespace

tqTaperMill::tqTaperMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                         double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                         CornerRadiusType cornerRadiusType, double taperAngle)
    : tqTaperMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType,
                  taperAngle, nullptr) {}

tqTaperMill::tqTaperMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                         double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                         CornerRadiusType cornerRadiusType, double taperAngle,
                         const tqShoulderDefinitionExtender& extender)
    : tqTaperMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType,
                  taperAngle, &extender) {}

tqTaperMill::tqTaperMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                         double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                         CornerRadiusType cornerRadiusType, double taperAngle,
                         const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_cornerRadius(cornerRadius),
      m_cornerRadiusType(cornerRadiusType),
      m_taperAngle(taperAngle) {
    if (!(cornerRadiusType == CRT_NONE || cornerRadiusType == CRT_CORNER || cornerRadiusType == CRT_FULL)) {
        throw tqcadcamException(2109);
    }
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    if (!(taperAngle >= 0.1 && taperAngle <= 89)) throw tqcadcamException(2122);
    if (cornerRadiusType == CRT_CORNER && !(diameter >= 2 * cornerRadius)) throw tqcadcamException(2117);

    const shape::RoundedCorner head = Head(diameter, fluteLength, cornerRadius, cornerRadiusType, taperAngle);
    // The fillet ends at the height rc*·(1 − sin α), which must stay below the shoulder.
    if (!(shoulderLength > head.fillet.radius * (1 - shape::SinDegrees(taperAngle)))) throw tqcadcamException(2153);
    BuildProfiles(head.Path());
}

tqTaperMill::~tqTaperMill() = default;

void tqTaperMill::RebuildProfiles() {
    BuildProfiles(Head(GetDiameter(), GetFluteLength(), m_cornerRadius, m_cornerRadiusType, m_taperAngle).Path());
}

void tqTaperMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqTaperMill::operator==(const tqTaperMill& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius &&
           m_cornerRadiusType == other.m_cornerRadiusType && m_taperAngle == other.m_taperAngle;
}

void tqTaperMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
