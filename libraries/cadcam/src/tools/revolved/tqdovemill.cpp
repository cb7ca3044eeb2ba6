// tqDoveMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqdovemill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqDoveMill::~tqDoveMill() = default;

void tqDoveMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqDoveMill::operator==(const tqDoveMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
