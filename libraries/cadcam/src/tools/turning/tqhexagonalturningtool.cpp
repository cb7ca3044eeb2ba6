// tqHexagonalTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqhexagonalturningtool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqHexagonalTurningTool::~tqHexagonalTurningTool() = default;

void tqHexagonalTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqHexagonalTurningTool::operator==(const tqHexagonalTurningTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
