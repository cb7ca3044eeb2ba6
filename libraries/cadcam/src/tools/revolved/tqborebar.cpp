// tqBoreBar: its parameters and their checks.
#include "cadcam/tools/revolved/tqborebar.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqBoreBar::~tqBoreBar() = default;

void tqBoreBar::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBoreBar::operator==(const tqBoreBar& other) const { return BaseEquals(other); }

}  // namespace cadcam
