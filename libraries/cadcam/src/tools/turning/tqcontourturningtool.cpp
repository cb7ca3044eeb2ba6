// tqContourTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqcontourturningtool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqContourTurningTool::~tqContourTurningTool() = default;

void tqContourTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqContourTurningTool::operator==(const tqContourTurningTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
