// tqRadMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqradmill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqRadMill::~tqRadMill() = default;

void tqRadMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqRadMill::operator==(const tqRadMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
