// tqCtrDrill: its parameters and their checks.
#include "cadcam/tools/revolved/tqctrdrill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqCtrDrill::~tqCtrDrill() = default;

void tqCtrDrill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqCtrDrill::operator==(const tqCtrDrill& other) const { return BaseEquals(other); }

}  // namespace cadcam
