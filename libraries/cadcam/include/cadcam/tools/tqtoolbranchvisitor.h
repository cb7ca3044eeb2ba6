// tqToolBranchVisitor: the coarse visitor with one slot per tool family.
#pragma once

#include "misc/export.h"

namespace cadcam {

class tqSpeedShapeTool;
class tqOpticDiamondTool;
class tqGenericTool;
class tqSawingTool;
class tqWireTool;
class tqExtrudedTool;
class tqRevolvedTool;

/// One Visit per family, in this order; a tool calls the slot of the family it belongs to. Every slot is pure.
class TQ_EXPORT tqToolBranchVisitor {
public:
    virtual ~tqToolBranchVisitor();
    virtual void Visit(const tqSpeedShapeTool& tool) = 0;
    virtual void Visit(const tqOpticDiamondTool& tool) = 0;
    virtual void Visit(const tqGenericTool& tool) = 0;
    virtual void Visit(const tqSawingTool& tool) = 0;
    virtual void Visit(const tqWireTool& tool) = 0;
    virtual void Visit(const tqExtrudedTool& tool) = 0;
    virtual void Visit(const tqRevolvedTool& tool) = 0;
};

}  // namespace cadcam
