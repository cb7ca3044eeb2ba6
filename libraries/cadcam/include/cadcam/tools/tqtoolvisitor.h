// tqToolVisitor: one slot per concrete tool class, one for the abstract families and a default.
#pragma once

#include "cadcam/tools/tqtoollist.h"
#include "misc/export.h"

namespace cadcam {

class tqTool;

/// A dispatch interface without state. Each concrete tool calls exactly the Visit of its own class; the slots
/// stand in the order of tqToolList. Every Visit of this base forwards to DefaultVisit, which throws
/// tqcadcamException 2020: a visitor overrides the classes it handles, and may override DefaultVisit to catch
/// all the rest.
class TQ_EXPORT tqToolVisitor {
public:
    virtual ~tqToolVisitor();
    virtual void Visit(const tqContourTurningTool& tool);
    virtual void Visit(const tqThreadTapTool& tool);
    virtual void Visit(const tqPotGrinderTool& tool);
    virtual void Visit(const tqSpeedShapeTool& tool);
    virtual void Visit(const tqOpticDiamondTool& tool);
    virtual void Visit(const tqGenericTool& tool);
    virtual void Visit(const tqDiamondTurningTool& tool);
    virtual void Visit(const tqGrooveTurningTool& tool);
    virtual void Visit(const tqHexagonalTurningTool& tool);
    virtual void Visit(const tqOctagonalTurningTool& tool);
    virtual void Visit(const tqRoundTurningTool& tool);
    virtual void Visit(const tqPentagonalTurningTool& tool);
    virtual void Visit(const tqSquareTurningTool& tool);
    virtual void Visit(const tqParallelogramTurningTool& tool);
    virtual void Visit(const tqTriangleTurningTool& tool);
    virtual void Visit(const tqChainSawTool& tool);
    virtual void Visit(const tqGenericSawingTool& tool);
    virtual void Visit(const tqWireTool& tool);
    virtual void Visit(const tqGenericExtrudedTool& tool);
    virtual void Visit(const tqGenericRevolvedTool& tool);
    virtual void Visit(const tqConvexTipMill& tool);
    virtual void Visit(const tqBarrelTaperMill& tool);
    virtual void Visit(const tqBarrelTangentMillConicalShaft& tool);
    virtual void Visit(const tqBarrelTangentMill& tool);
    virtual void Visit(const tqBarrelLensMill& tool);
    virtual void Visit(const tqBarrelDProfMill& tool);
    virtual void Visit(const tqBarrelBarrSecMill& tool);
    virtual void Visit(const tqBarrelAdvancedMill& tool);
    virtual void Visit(const tqBarrelMill& tool);
    virtual void Visit(const tqTapRH& tool);
    virtual void Visit(const tqTapLH& tool);
    virtual void Visit(const tqTaperMill& tool);
    virtual void Visit(const tqSpotDrill& tool);
    virtual void Visit(const tqSpherMill& tool);
    virtual void Visit(const tqSlotMill& tool);
    virtual void Visit(const tqReamer& tool);
    virtual void Visit(const tqRadMill& tool);
    virtual void Visit(const tqLolMill& tool);
    virtual void Visit(const tqFaceMill& tool);
    virtual void Visit(const tqEndMill& tool);
    virtual void Visit(const tqDrill& tool);
    virtual void Visit(const tqDoveMill& tool);
    virtual void Visit(const tqCtrDrill& tool);
    virtual void Visit(const tqCSink& tool);
    virtual void Visit(const tqCntrBore& tool);
    virtual void Visit(const tqChamferMill& tool);
    virtual void Visit(const tqBullMill& tool);
    virtual void Visit(const tqBoreBar& tool);
    /// A tool of one of the abstract families (tqRevolvedTool, tqTypedRevolvedTool, tqExtrudedTool,
    /// tqTypedExtrudedTool, tqSawingTool, tqTypedSawingTool) that has no slot of its own.
    virtual void Visit(const tqTool& tool);
    /// Where every slot that a visitor leaves alone ends: throws tqcadcamException 2020.
    virtual void DefaultVisit(const tqTool& tool);
};

}  // namespace cadcam
