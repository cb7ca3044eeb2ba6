// tqCntrBore: its parameters and their checks.
#include "cadcam/tools/revolved/tqcntrbore.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqCntrBore::~tqCntrBore() = default;

void tqCntrBore::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqCntrBore::operator==(const tqCntrBore& other) const { return BaseEquals(other); }

}  // namespace cadcam
