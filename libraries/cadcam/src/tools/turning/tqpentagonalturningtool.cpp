// tqPentagonalTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqpentagonalturningtool.h"

#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/insertshapes.h"

namespace cadcam {

tqPentagonalTurningTool::tqPentagonalTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                                 const HolderPointer& holder, double insertThickness,
                                                 double cornerRadius, double inscribedCircleDiameter)
    : tqTypedExtrudedTool(units, arbor, holder, insertThickness),
      m_cornerRadius(cornerRadius),
      m_inscribedCircleDiameter(inscribedCircleDiameter) {
    shape::CheckInscribedCorner(cornerRadius, inscribedCircleDiameter);
    BuildCuttingPart(units);
}

tqPentagonalTurningTool::~tqPentagonalTurningTool() = default;

void tqPentagonalTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqPentagonalTurningTool::operator==(const tqPentagonalTurningTool& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius &&
           m_inscribedCircleDiameter == other.m_inscribedCircleDiameter;
}

void tqPentagonalTurningTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    m_inscribedCircleDiameter *= factor;
    tqTypedExtrudedTool::Scale(units, factor);
}

tq2dContour<double> tqPentagonalTurningTool::MakeInsertContour() const {
    return shape::RegularInsertContour(5, m_inscribedCircleDiameter, m_cornerRadius);
}

}  // namespace cadcam
