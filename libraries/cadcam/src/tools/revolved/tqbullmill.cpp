// tqBullMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqbullmill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqBullMill::~tqBullMill() = default;

void tqBullMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqBullMill::operator==(const tqBullMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
