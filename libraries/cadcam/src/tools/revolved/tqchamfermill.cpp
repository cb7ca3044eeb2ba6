// tqChamferMill: its parameters, their checks and its head.
#include "cadcam/tools/revolved/tqchamfermill.h"

#include <cmath>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/headpath.h"

namespace cadcam {
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
        shape::FaceHead(diameter, fluteLength, cornerRadius, cornerRadiusType, outsideDiameter, taperAngle);
    if (cornerRadiusType == CRT_CORNER && !(cornerRadius < head.fillet.fullRadius)) throw tqcadcamException(2152);
    BuildProfiles(head.Path());
}

tqChamferMill::~tqChamferMill() = default;

void tqChamferMill::RebuildProfiles() {
    BuildProfiles(shape::FaceHead(GetDiameter(), GetFluteLength(), m_cornerRadius, m_cornerRadiusType,
                                  m_outsideDiameter, m_taperAngle)
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
