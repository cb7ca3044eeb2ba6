// tqFaceMill: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqfacemill.h"

#include <algorithm>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {
tqFaceMill::tqFaceMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                       CornerRadiusType cornerRadiusType, double outsideDiameter, double taperAngle)
    : tqFaceMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType,
                 outsideDiameter, taperAngle, nullptr) {}

tqFaceMill::tqFaceMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                       CornerRadiusType cornerRadiusType, double outsideDiameter, double taperAngle,
                       const tqShoulderDefinitionExtender& extender)
    : tqFaceMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType,
                 outsideDiameter, taperAngle, &extender) {}

tqFaceMill::tqFaceMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor, const HolderPointer& holder,
                       double diameter, double fluteLength, double shoulderLength, double cornerRadius,
                       CornerRadiusType cornerRadiusType, double outsideDiameter, double taperAngle,
                       const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_cornerRadius(cornerRadius),
      m_cornerRadiusType(cornerRadiusType),
      m_outsideDiameter(outsideDiameter),
      m_taperAngle(taperAngle) {
    if (!(cornerRadiusType == CRT_NONE || cornerRadiusType == CRT_CORNER || cornerRadiusType == CRT_FULL)) {
        throw tqcadcamException(2109);
    }
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    if (!(taperAngle >= 0.1 && taperAngle <= 89)) throw tqcadcamException(2122);

    const double radius = diameter / 2;
    const double outsideRadius = outsideDiameter / 2;
    const double leadHeight = (outsideRadius - radius) / shape::TanDegrees(taperAngle);
    // The lead face must reach the outside diameter inside the flutes, and the fillet must fit the bottom and
    // the segment that leaves it.
    if (!(outsideDiameter >= diameter && leadHeight <= fluteLength)) throw tqcadcamException(2123);
    const shape::RoundedCorner head =
        shape::FaceHead(diameter, fluteLength, cornerRadius, cornerRadiusType, outsideDiameter, taperAngle);
    const shape::CornerFillet& corner = head.fillet;
    if (!(corner.fillet.t <= std::min(corner.la, corner.lb))) throw tqcadcamException(2123);
    BuildProfiles(head.Path());
}

tqFaceMill::~tqFaceMill() = default;

void tqFaceMill::RebuildProfiles() {
    BuildProfiles(shape::FaceHead(GetDiameter(), GetFluteLength(), m_cornerRadius, m_cornerRadiusType,
                                  m_outsideDiameter, m_taperAngle)
                      .Path());
}

void tqFaceMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqFaceMill::operator==(const tqFaceMill& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius &&
           m_cornerRadiusType == other.m_cornerRadiusType && m_outsideDiameter == other.m_outsideDiameter &&
           m_taperAngle == other.m_taperAngle;
}

void tqFaceMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    m_outsideDiameter *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
