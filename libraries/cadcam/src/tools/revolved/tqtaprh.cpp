// tqTapRH: its parameters and their checks.
#include "cadcam/tools/revolved/tqtaprh.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqTapRH::~tqTapRH() = default;

void tqTapRH::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqTapRH::operator==(const tqTapRH& other) const { return BaseEquals(other); }

}  // namespace cadcam
