// tqGenericRevolvedTool: its parameters and their checks.
#include "cadcam/tools/revolved/tqgenericrevolvedtool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqGenericRevolvedTool::~tqGenericRevolvedTool() = default;

void tqGenericRevolvedTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

double tqGenericRevolvedTool::GetDiameter() const { return 0; }

bool tqGenericRevolvedTool::operator==(const tqGenericRevolvedTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
