// tqSpotDrill: its parameters and their checks.
#include "cadcam/tools/revolved/tqspotdrill.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqSpotDrill::~tqSpotDrill() = default;

void tqSpotDrill::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqSpotDrill::operator==(const tqSpotDrill& other) const { return BaseEquals(other); }

}  // namespace cadcam
