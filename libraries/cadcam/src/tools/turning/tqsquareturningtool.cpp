// tqSquareTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqsquareturningtool.h"

#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/insertshapes.h"

namespace cadcam {

tqSquareTurningTool::tqSquareTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                         const HolderPointer& holder, double insertThickness, double cornerRadius,
                                         double inscribedCircleDiameter)
    : tqTypedExtrudedTool(units, arbor, holder, insertThickness),
      m_cornerRadius(cornerRadius),
      m_inscribedCircleDiameter(inscribedCircleDiameter) {
    shape::CheckInscribedCorner(cornerRadius, inscribedCircleDiameter);
    BuildCuttingPart(units);
}

tqSquareTurningTool::~tqSquareTurningTool() = default;

void tqSquareTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqSquareTurningTool::operator==(const tqSquareTurningTool& other) const {
    return BaseEquals(other) && m_cornerRadius == other.m_cornerRadius &&
           m_inscribedCircleDiameter == other.m_inscribedCircleDiameter;
}

void tqSquareTurningTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_cornerRadius *= factor;
    m_inscribedCircleDiameter *= factor;
    tqTypedExtrudedTool::Scale(units, factor);
}

tq2dContour<double> tqSquareTurningTool::MakeInsertContour() const {
    return shape::RegularInsertContour(4, m_inscribedCircleDiameter, m_cornerRadius);
}

}  // namespace cadcam
