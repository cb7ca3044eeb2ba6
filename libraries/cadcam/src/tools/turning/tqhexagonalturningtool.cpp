// tqHexagonalTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqhexagonalturningtool.h"

#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/insertshapes.h"

namespace cadcam {

tqHexagonalTurningTool::tqHexagonalTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                               const HolderPointer& holder, double insertThickness, double cornerRadius,
                                               double inscribedCircleDiameter)
    : tqTypedExtrudedTool(units, arbor, holder, insertThickness),
      m_cornerRadius(cornerRadius),
      m_inscribedCircleDiameter(inscribedCircleDiameter) {
    shape::CheckInscribedCorner(cornerRadius, inscribedCircleDiameter);
    BuildCuttingPart(units);
}

tqHexagonalTurningTool::~tqHexagonalTurningTool() = default;

void tqHexagonalTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqHexagonalTurningTool::operator==(const tqHexagonalTurningTool& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius &&
           m_inscribedCircleDiameter == other.m_inscribedCircleDiameter;
}

void tqHexagonalTurningTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    m_inscribedCircleDiameter *= factor;
    tqTypedExtrudedTool::Scale(units, factor);
}

tq2dContour<double> tqHexagonalTurningTool::MakeInsertContour() const {
    return shape::RegularInsertContour(6, m_inscribedCircleDiameter, m_cornerRadius);
}

}  // namespace cadcam
