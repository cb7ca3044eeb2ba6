// tqFaceMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqfacemill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqFaceMill::~tqFaceMill() = default;

void tqFaceMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqFaceMill::operator==(const tqFaceMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
