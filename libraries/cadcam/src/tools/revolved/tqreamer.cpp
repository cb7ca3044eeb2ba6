// tqReamer: its parameters and their checks.
#include "cadcam/tools/revolved/tqreamer.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqReamer::~tqReamer() = default;

void tqReamer::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqReamer::operator==(const tqReamer& other) const { return BaseEquals(other); }

}  // namespace cadcam
