// tqBarrelTaperMill: its parameters and their checks.
#include "cadcam/tools/barrel/tqbarreltapermill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqBarrelTaperMill::~tqBarrelTaperMill() = default;

void tqBarrelTaperMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBarrelTaperMill::operator==(const tqBarrelTaperMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
