// tqBarrelTangentMill: its parameters and their checks.
#include "cadcam/tools/barrel/tqbarreltangentmill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqBarrelTangentMill::~tqBarrelTangentMill() = default;

void tqBarrelTangentMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBarrelTangentMill::operator==(const tqBarrelTangentMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
