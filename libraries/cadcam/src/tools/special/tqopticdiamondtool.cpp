// tqOpticDiamondTool: its parameters and their checks.
#include "cadcam/tools/special/tqopticdiamondtool.h"

#include "cadcam/tools/tqtoolbranchvisitor.h"
#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqOpticDiamondTool::~tqOpticDiamondTool() = default;

void tqOpticDiamondTool::AcceptBranchVisitor(tqToolBranchVisitor& visitor) const { visitor.Visit(*this); }

void tqOpticDiamondTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqOpticDiamondTool::operator==(const tqOpticDiamondTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
