// tqSquareTurningTool: its parameters and their checks.
#include "cadcam/tools/turning/tqsquareturningtool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqSquareTurningTool::~tqSquareTurningTool() = default;

void tqSquareTurningTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqSquareTurningTool::operator==(const tqSquareTurningTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
