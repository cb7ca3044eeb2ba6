// tqSlotMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqslotmill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqSlotMill::~tqSlotMill() = default;

void tqSlotMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqSlotMill::operator==(const tqSlotMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
