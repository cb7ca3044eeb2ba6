// tqContourTurningTool: the insert thickness and the contour solid it holds.
#include "cadcam/tools/turning/tqcontourturningtool.h"

#include "cadcam/tools/tqtoolvisitor.h"
#include "tools/shape/insertshapes.h"

namespace cadcam {

tqContourTurningTool::tqContourTurningTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                           const HolderPointer& holder, double insertThickness,
                                           const tqContourTurningSolidDefinition<double>& contourSolid)
    : tqTypedExtrudedTool(units, arbor, holder, insertThickness), m_contourSolid(contourSolid) {
    BuildCuttingPart(units);
}

tqContourTurningTool::~tqContourTurningTool() = default;

void tqContourTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqContourTurningTool::operator==(const tqContourTurningTool& other) const {
    return BaseEquals(other) && m_contourSolid == other.m_contourSolid;
}

void tqContourTurningTool::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    // The solid clones its contour before scaling it, so copies of this tool that share the items keep theirs.
    ScaleNested(m_contourSolid, units, factor);
    tqTypedExtrudedTool::Scale(units, factor);
}

tq2dContour<double> tqContourTurningTool::MakeInsertContour() const {
    return shape::Counterclockwise(m_contourSolid.GetContour());
}

}  // namespace cadcam
