// tqThreadTapTool: its parameters and their checks.
#include "cadcam/tools/revolved/tqthreadtaptool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqThreadTapTool::~tqThreadTapTool() = default;

void tqThreadTapTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqThreadTapTool::operator==(const tqThreadTapTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
