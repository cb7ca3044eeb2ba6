// tqChamferMill: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqchamfermill.h"

#include <cmath>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {
namespace {

/// The face mill's head: the bottom at the tip diameter, the chamfer cone out to the outside diameter and the
/// side, the corner at (R, 0) rounded.
shape::RoundedCorner Head(double diameter, double fluteLength, double cornerRadius, int cornerRadiusType,
                          double taperAngle, double outsideDiameter) {
    const double radius = diameter / 2;
    const double outsideRadius = outsideDiameter / 2;
    const double leadHeight = (outsideRadius - radius) / shape::TanDegrees(taperAngle);
    return shape::MakeRoundedCorner(shape::FaceHeadPoints(radius, outsideRadius, leadHeight, fluteLength), 1,
                                    cornerRadiusType, cornerRadius);
}

}  // namespace

tqChamferMill::tqChamferMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                             const HolderPointer& holder, double diameter, double fluteLength, double shoulderLength,
                             double cornerRadius, CornerRadiusType cornerRadiusType, double taperAngle,
                             double outsideDiameter)
    : tqChamferMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType,
                    taperAngle, outsideDiameter, nullptr) {}

tqChamferMill::tqChamferMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                             const HolderPointer& holder, double diameter, double fluteLength, double shoulderLength,
                             double cornerRadius, CornerRadiusType cornerRadiusType, double taperAngle,
                             double outsideDiameter, const tqShoulderDefinitionExtender& extender)
    : tqChamferMill(units, arbor, holder, diameter, fluteLength, shoulderLength, cornerRadius, cornerRadiusType,
                    taperAngle, outsideDiameter, &extender) {}

tqChamferMill::tqChamferMill(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                             const HolderPointer& holder, double diameter, double fluteLength, double shoulderLength,
                             double cornerRadius, CornerRadiusType cornerRadiusType, double taperAngle,
                             double outsideDiameter, const tqShoulderDefinitionExtender* extender)
    : tqTypedRevolvedTool(units, arbor, holder, diameter, fluteLength, shoulderLength, extender, CommonRules()),
      m_cornerRadius(cornerRadius),
      m_cornerRadiusType(cornerRadiusType),
      m_taperAngle(taperAngle),
      m_outsideDiameter(outsideDiameter) {
    if (!(cornerRadiusType == CRT_NONE || cornerRadiusType == CRT_CORNER || cornerRadiusType == CRT_FULL)) {
        throw tqcadcamException(2109);
    }
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    if (!(taperAngle >= 0.1 && taperAngle <= 89)) throw tqcadcamException(2122);
    if (!(outsideDiameter > 0)) throw tqcadcamException(2147);
    if (!std::isfinite(outsideDiameter)) throw tqcadcamException(2155);
    if (!(outsideDiameter >= diameter)) throw tqcadcamException(2151);
    // Without a cone there is no chamfer edge.
    if (outsideDiameter == diameter) throw tqcadcamException(2251);

    const double radius = diameter / 2;
    const double outsideRadius = outsideDiameter / 2;
    const double leadHeight = (outsideRadius - radius) / shape::TanDegrees(taperAngle);
    if (!(leadHeight <= fluteLength)) throw tqcadcamException(2123);
    // A shaft must stand above the chamfer.
    if (!(shoulderLength > fluteLength)) throw tqcadcamException(3423);
    const shape::RoundedCorner head =
        Head(diameter, fluteLength, cornerRadius, cornerRadiusType, taperAngle, outsideDiameter);
    if (cornerRadiusType == CRT_CORNER && !(cornerRadius < head.fillet.fullRadius)) throw tqcadcamException(2152);
    BuildProfiles(head.Path());
}

tqChamferMill::~tqChamferMill() = default;

void tqChamferMill::RebuildProfiles() {
    BuildProfiles(
        Head(GetDiameter(), GetFluteLength(), m_cornerRadius, m_cornerRadiusType, m_taperAngle, m_outsideDiameter)
            .Path());
}

void tqChamferMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqChamferMill::operator==(const tqChamferMill& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius &&
           m_cornerRadiusType == other.m_cornerRadiusType && m_taperAngle == other.m_taperAngle &&
           m_outsideDiameter == other.m_outsideDiameter;
}

void tqChamferMill::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    m_outsideDiameter *= factor;
    tqTypedRevolvedTool::Scale(units, factor);
}

}  // namespace cadcam
