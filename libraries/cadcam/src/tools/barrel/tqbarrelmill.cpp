// tqBarrelMill: its parameters and their checks.
#include "cadcam/tools/barrel/tqbarrelmill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqBarrelMill::~tqBarrelMill() = default;

void tqBarrelMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBarrelMill::operator==(const tqBarrelMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
