// tqOctagonalTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqoctagonalturningtool.h"

#include <vector>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/insertshapes.h"

namespace cadcam {

tqOctagonalTurningTool::tqOctagonalTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                               const HolderPointer& holder, double insertThickness, double cornerRadius,
                                               double inscribedCircleDiameter)
    : tqTypedExtrudedTool(units, arbor, holder, insertThickness),
      m_cornerRadius(cornerRadius),
      m_inscribedCircleDiameter(inscribedCircleDiameter) {
    if (!(cornerRadius > 0)) throw tqcadcamException(2342);
    if (!(inscribedCircleDiameter > 0)) throw tqcadcamException(2343);
    if (!(cornerRadius < inscribedCircleDiameter / 2)) throw tqcadcamException(2344);
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
    return shape::RoundedContour(shape::RegularPolygon(8, m_inscribedCircleDiameter),
                                 std::vector<double>(8, m_cornerRadius), true);
}

}  // namespace cadcam
