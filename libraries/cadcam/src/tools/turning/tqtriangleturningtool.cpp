// tqTriangleTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqtriangleturningtool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqTriangleTurningTool::~tqTriangleTurningTool() = default;

void tqTriangleTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqTriangleTurningTool::operator==(const tqTriangleTurningTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
