// tqDiamondTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqdiamondturningtool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqDiamondTurningTool::~tqDiamondTurningTool() = default;

void tqDiamondTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqDiamondTurningTool::operator==(const tqDiamondTurningTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
