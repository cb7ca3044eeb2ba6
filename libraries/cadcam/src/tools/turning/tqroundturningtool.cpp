// tqRoundTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqroundturningtool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqRoundTurningTool::~tqRoundTurningTool() = default;

void tqRoundTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqRoundTurningTool::operator==(const tqRoundTurningTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
