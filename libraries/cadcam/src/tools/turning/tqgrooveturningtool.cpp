// tqGrooveTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqgrooveturningtool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqGrooveTurningTool::~tqGrooveTurningTool() = default;

void tqGrooveTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqGrooveTurningTool::operator==(const tqGrooveTurningTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
