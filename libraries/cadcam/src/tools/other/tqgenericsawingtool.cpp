// tqGenericSawingTool: the blade thickness, checked by its base.
#include "cadcam/tools/other/tqgenericsawingtool.h"

#include "cadcam/tools/tqtoolvisitor.h"

namespace cadcam {

tqGenericSawingTool::tqGenericSawingTool(measures::tqUnitsFactory::Units units, const ArborPointer& arbor,
                                         const HolderPointer& holder, double bladeThickness)
    : tqSawingTool(units, arbor, holder, bladeThickness) {}

tqGenericSawingTool::~tqGenericSawingTool() = default;

void tqGenericSawingTool::AcceptVisitor(tqToolVisitor& visitor) const { visitor.Visit(*this); }

bool tqGenericSawingTool::operator==(const tqGenericSawingTool& other) const { return BaseEquals(other); }

}  // namespace cadcam
