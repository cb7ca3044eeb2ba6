// tqTapLH: its parameters and their checks.
#include "cadcam/tools/revolved/tqtaplh.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/drillingshapes.h"

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
    if (!(cornerRadiusType == CRT_NONE || cornerRadiusType == CRT_CORNER || cornerRadiusType == CRT_FULL)) {
        throw tqcadcamException(2109);
    }
    if (!(cornerRadius >= 0)) throw tqcadcamException(2163);
    if (!(tipAngle >= 1 && tipAngle <= 180)) throw tqcadcamException(2113);
    const double radius = diameter / 2;
    const double lead = shape::ConeHeight(radius, tipAngle / 2);
    const shape::SideCorner corner =
        shape::MakeSideCorner(shape::Point(0, 0), radius, lead, fluteLength,
                              cornerRadiusType == CRT_CORNER ? cornerRadius : 0, cornerRadiusType == CRT_FULL);
    if (!(corner.top <= fluteLength && corner.t <= corner.la)) throw tqcadcamException(2112);
    // The rounded lead ends on the side at the tool radius, within the flutes.
    SetDefaultExtender(radius);
}

tqTapLH::~tqTapLH() = default;

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
