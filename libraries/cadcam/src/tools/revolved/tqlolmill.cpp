// tqLolMill: its parameters and their checks.
#include "cadcam/tools/revolved/tqlolmill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqLolMill::~tqLolMill() = default;

void tqLolMill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqLolMill::operator==(const tqLolMill& other) const { return BaseEquals(other); }

}  // namespace cadcam
