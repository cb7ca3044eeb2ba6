// tqGenericTool: its parameters and their checks.
#include "cadcam/tools/special/tqgenerictool.h"

#include "cadcam/tools/tqtoolbranchvisitor.h"
#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqGenericTool::~tqGenericTool() = default;

void tqGenericTool::AcceptBranchVisitor(tqToolBranchVisitor& visitor) const { visitor.Visit(*this); }

void tqGenericTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqGenericTool::operator==(const tqGenericTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
