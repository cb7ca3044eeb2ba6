// tqChamferMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqchamfermill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqChamferMill::~tqChamferMill() = default;

void tqChamferMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqChamferMill::operator==(const tqChamferMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
