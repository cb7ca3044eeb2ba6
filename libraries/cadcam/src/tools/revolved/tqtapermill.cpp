// tqTaperMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqtapermill.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {

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

    const double radius = diameter / 2;
    // The side runs R beyond the flutes, long enough for any fillet that fits the bottom.
    const double sideHeight = fluteLength + radius;
    const shape::Point bottom(radius, 0);
    const shape::Point side(radius + sideHeight * shape::TanDegrees(taperAngle), sideHeight);
    const shape::CornerFillet corner =
        shape::MakeCornerFillet(shape::Point(0, 0), bottom, side, cornerRadiusType, cornerRadius);
    // The fillet ends at the height rc*·(1 − sin α), which must stay below the shoulder.
    if (!(shoulderLength > corner.radius * (1 - shape::SinDegrees(taperAngle)))) throw tqcadcamException(2153);

    const shape::HeadPath head = shape::RoundedPolyline({shape::Point(0, 0), bottom, side}, 1, corner);
    SetDefaultExtender(shape::ClipRadiusAt(head, fluteLength));
}

tqTaperMill::~tqTaperMill() = default;

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
