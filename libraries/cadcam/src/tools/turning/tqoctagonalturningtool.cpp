// tqOctagonalTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqoctagonalturningtool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqOctagonalTurningTool::~tqOctagonalTurningTool() = default;

void tqOctagonalTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqOctagonalTurningTool::operator==(const tqOctagonalTurningTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
