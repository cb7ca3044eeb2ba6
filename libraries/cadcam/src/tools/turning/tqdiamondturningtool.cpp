// tqDiamondTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqdiamondturningtool.h"

#include <vector>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/insertshapes.h"

namespace cadcam {

tqDiamondTurningTool::tqDiamondTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                           const HolderPointer& holder, double insertThickness, double cornerRadius,
                                           double inscribedCircleDiameter, double formAngle)
    : tqTypedExtrudedTool(units, arbor, holder, insertThickness),
      m_cornerRadius(cornerRadius),
      m_inscribedCircleDiameter(inscribedCircleDiameter),
      m_formAngle(formAngle) {
    shape::CheckInscribedCorner(cornerRadius, inscribedCircleDiameter);
    if (!(formAngle > 0 && formAngle < 90)) throw tqcadcamException(2346);
    BuildCuttingPart(units);
}

tqDiamondTurningTool::~tqDiamondTurningTool() = default;

void tqDiamondTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqDiamondTurningTool::operator==(const tqDiamondTurningTool& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius &&
           m_inscribedCircleDiameter == other.m_inscribedCircleDiameter && m_formAngle == other.m_formAngle;
}

void tqDiamondTurningTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    m_inscribedCircleDiameter *= factor;
    tqTypedExtrudedTool::Scale(units, factor);
}

tq2dContour<double> tqDiamondTurningTool::MakeInsertContour() const {
    return shape::RoundedContour(shape::Rhombus(m_inscribedCircleDiameter, m_formAngle),
                                 std::vector<double>(4, m_cornerRadius), true);
}

}  // namespace cadcam
