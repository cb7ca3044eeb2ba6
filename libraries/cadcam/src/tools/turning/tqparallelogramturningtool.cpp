// tqParallelogramTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqparallelogramturningtool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqParallelogramTurningTool::~tqParallelogramTurningTool() = default;

void tqParallelogramTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqParallelogramTurningTool::operator==(const tqParallelogramTurningTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
