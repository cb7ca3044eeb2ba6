// tqBarrelLensMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqbarrellensmill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqBarrelLensMill::~tqBarrelLensMill() = default;

void tqBarrelLensMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBarrelLensMill::operator==(const tqBarrelLensMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
