// tqWireTool: its parameters and their checks.
#include "cadcam/tools/special/tqwiretool.h"

#include "cadcam/tools/tqtoolbranchvisitor.h"
#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqWireTool::~tqWireTool() = default;

void tqWireTool::AcceptBranchVisitor(tqToolBranchVisitor& visitor) const { visitor.Visit(*this); }

void tqWireTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqWireTool::operator==(const tqWireTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
