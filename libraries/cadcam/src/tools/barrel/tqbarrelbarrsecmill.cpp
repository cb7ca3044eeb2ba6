// tqBarrelBarrSecMill: its parameters and their checks.
#include "cadcam/tools/barrel/tqbarrelbarrsecmill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqBarrelBarrSecMill::~tqBarrelBarrSecMill() = default;

void tqBarrelBarrSecMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBarrelBarrSecMill::operator==(const tqBarrelBarrSecMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
