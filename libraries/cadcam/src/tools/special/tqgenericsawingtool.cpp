// tqGenericSawingTool: its parameters and their checks.
#include "cadcam/tools/special/tqgenericsawingtool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqGenericSawingTool::~tqGenericSawingTool() = default;

void tqGenericSawingTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqGenericSawingTool::operator==(const tqGenericSawingTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
