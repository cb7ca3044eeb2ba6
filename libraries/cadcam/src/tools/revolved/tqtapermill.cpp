// tqTaperMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqtapermill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqTaperMill::~tqTaperMill() = default;

void tqTaperMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqTaperMill::operator==(const tqTaperMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
