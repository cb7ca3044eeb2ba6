// tqBarrelAdvancedMill: its parameters and their checks.
#include "cadcam/tools/barrel/tqbarreladvancedmill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqBarrelAdvancedMill::~tqBarrelAdvancedMill() = default;

void tqBarrelAdvancedMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBarrelAdvancedMill::operator==(const tqBarrelAdvancedMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
