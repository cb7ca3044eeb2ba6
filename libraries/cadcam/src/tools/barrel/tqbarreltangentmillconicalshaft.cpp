// tqBarrelTangentMillConicalShaft: its parameters and their checks.
#include "cadcam/tools/barrel/tqbarreltangentmillconicalshaft.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqBarrelTangentMillConicalShaft::~tqBarrelTangentMillConicalShaft() = default;

void tqBarrelTangentMillConicalShaft::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBarrelTangentMillConicalShaft::operator==(const tqBarrelTangentMillConicalShaft& other) const { return BaseEquals(other); }

}  // namespace cadcam
