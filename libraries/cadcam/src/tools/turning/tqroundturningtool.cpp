// tqRoundTurningTool: its diameter and its check.
#include "cadcam/tools/turning/tqroundturningtool.h"

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/insertshapes.h"

namespace cadcam {

tqRoundTurningTool::tqRoundTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                       const HolderPointer& holder, double insertThickness, double diameter)
    : tqTypedExtrudedTool(units, arbor, holder, insertThickness), m_diameter(diameter) {
    if (!(diameter > 0)) throw tqcadcamException(2349);
    BuildCuttingPart(units);
}

tqRoundTurningTool::~tqRoundTurningTool() = default;

void tqRoundTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqRoundTurningTool::operator==(const tqRoundTurningTool& other) const {
    return BaseEquals(other) && m_diameter == other.m_diameter;
}

void tqRoundTurningTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    m_diameter *= factor;
    tqTypedExtrudedTool::Scale(units, factor);
}

tq2dContour<double> tqRoundTurningTool::MakeInsertContour() const { return shape::CircleContour(m_diameter); }

}  // namespace cadcam
