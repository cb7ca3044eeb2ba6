// tqPotGrinderTool: its parameters and their checks.
#include "cadcam/tools/revolved/tqpotgrindertool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqPotGrinderTool::~tqPotGrinderTool() = default;

void tqPotGrinderTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqPotGrinderTool::operator==(const tqPotGrinderTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
