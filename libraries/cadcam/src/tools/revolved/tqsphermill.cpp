// tqSpherMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqsphermill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqSpherMill::~tqSpherMill() = default;

void tqSpherMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqSpherMill::operator==(const tqSpherMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
