// tqToolBranchVisitor and the family accepts of the abstract families.
#include "cadcam/tools/tqtoolbranchvisitor.h"

#include "cadcam/tools/tqextrudedtool.h"
#include "cadcam/tools/tqrevolvedtool.h"
#include "cadcam/tools/tqsawingtool.h"
#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqToolBranchVisitor::~tqToolBranchVisitor() = default;

tqRevolvedTool::~tqRevolvedTool() = default;
void tqRevolvedTool::AcceptBranchVisitor(tqToolBranchVisitor& visitor) const { visitor.Visit(*this); }
void tqRevolvedTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(static_cast<const tqTool&>(*this)); }

tqExtrudedTool::~tqExtrudedTool() = default;
void tqExtrudedTool::AcceptBranchVisitor(tqToolBranchVisitor& visitor) const { visitor.Visit(*this); }
void tqExtrudedTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(static_cast<const tqTool&>(*this)); }

tqSawingTool::~tqSawingTool() = default;
void tqSawingTool::AcceptBranchVisitor(tqToolBranchVisitor& visitor) const { visitor.Visit(*this); }
void tqSawingTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(static_cast<const tqTool&>(*this)); }

}  // namespace cadcam
