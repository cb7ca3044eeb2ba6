// tqDrill: its parameters and their checks.
#include "cadcam/tools/revolved/tqdrill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqDrill::~tqDrill() = default;

void tqDrill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqDrill::operator==(const tqDrill& other) const { return BaseEquals(other); }

}  // namespace cadcam
