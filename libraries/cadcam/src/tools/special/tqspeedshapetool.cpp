// tqSpeedShapeTool: its parameters and their checks.
#include "cadcam/tools/special/tqspeedshapetool.h"

#include "cadcam/tools/tqtoolbranchvisitor.h"
#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqSpeedShapeTool::~tqSpeedShapeTool() = default;

void tqSpeedShapeTool::AcceptBranchVisitor(tqToolBranchVisitor& visitor) const { visitor.Visit(*this); }

void tqSpeedShapeTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqSpeedShapeTool::operator==(const tqSpeedShapeTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
