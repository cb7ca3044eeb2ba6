// tqGenericExtrudedTool: its parameters and their checks.
#include "cadcam/tools/special/tqgenericextrudedtool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqGenericExtrudedTool::~tqGenericExtrudedTool() = default;

void tqGenericExtrudedTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqGenericExtrudedTool::operator==(const tqGenericExtrudedTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
