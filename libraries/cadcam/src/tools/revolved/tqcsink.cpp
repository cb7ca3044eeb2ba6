// tqCSink: its parameters and their checks.
#include "cadcam/tools/revolved/tqcsink.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqCSink::~tqCSink() = default;

void tqCSink::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqCSink::operator==(const tqCSink& other) const { return BaseEquals(other); }

}  // namespace cadcam
