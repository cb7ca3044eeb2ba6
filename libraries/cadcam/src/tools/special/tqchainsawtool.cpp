// tqChainSawTool: its parameters and their checks.
#include "cadcam/tools/special/tqchainsawtool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqChainSawTool::~tqChainSawTool() = default;

void tqChainSawTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqChainSawTool::operator==(const tqChainSawTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
