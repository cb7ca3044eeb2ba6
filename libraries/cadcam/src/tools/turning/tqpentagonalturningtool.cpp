// tqPentagonalTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqpentagonalturningtool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqPentagonalTurningTool::~tqPentagonalTurningTool() = default;

void tqPentagonalTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqPentagonalTurningTool::operator==(const tqPentagonalTurningTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
