// tqOctagonalTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqoctagonalturningtool.h"

#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/insertshapes.h"

namespace cadcam {

tqOctagonalTurningTool::tqOctagonalTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                               const HolderPointer& holder, double insertThickness, double cornerRadius,
                                               double inscribedCircleDiameter)
    : tqTypedExtrudedTool(units, arbor, holder, insertThickness),
      m_cornerRadius(cornerRadius),
      m_inscribedCircleDiameter(inscribedCircleDiameter) {
    shape::CheckInscribedCorner(cornerRadius, inscribedCircleDiameter);
    BuildCuttingPart(units);
}

tqOctagonalTurningTool::~tqOctagonalTurningTool() = default;

void tqOctagonalTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqOctagonalTurningTool::operator==(const tqOctagonalTurningTool& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius &&
           m_inscribedCircleDiameter == other.m_inscribedCircleDiameter;
}

void tqOctagonalTurningTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    m_inscribedCircleDiameter *= factor;
    tqTypedExtrudedTool::Scale(units, factor);
}

tq2dContour<double> tqOctagonalTurningTool::MakeInsertContour() const {
    return shape::RegularInsertContour(8, m_inscribedCircleDiameter, m_cornerRadius);
}

}  // namespace cadcam
