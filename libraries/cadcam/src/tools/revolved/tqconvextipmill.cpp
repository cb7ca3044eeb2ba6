// tqConvexTipMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqconvextipmill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqConvexTipMill::~tqConvexTipMill() = default;

void tqConvexTipMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqConvexTipMill::operator==(const tqConvexTipMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
