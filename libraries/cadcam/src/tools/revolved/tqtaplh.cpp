// tqTapLH: its parameters and their checks.
#include "cadcam/tools/revolved/tqtaplh.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqTapLH::~tqTapLH() = default;

void tqTapLH::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqTapLH::operator==(const tqTapLH& other) const { return BaseEquals(other); }

}  // namespace cadcam
