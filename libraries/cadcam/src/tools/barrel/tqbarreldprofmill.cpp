// tqBarrelDProfMill: its parameters and their checks.
#include "cadcam/tools/barrel/tqbarreldprofmill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqBarrelDProfMill::~tqBarrelDProfMill() = default;

void tqBarrelDProfMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBarrelDProfMill::operator==(const tqBarrelDProfMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
