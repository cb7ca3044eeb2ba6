// The closed set of concrete tool classes, in the order of tqToolVisitor's slots.
#pragma once

#include "misc/tqtypelist.h"

namespace cadcam {

class tqContourTurningTool;
class tqThreadTapTool;
class tqPotGrinderTool;
class tqSpeedShapeTool;
class tqOpticDiamondTool;
class tqGenericTool;
class tqDiamondTurningTool;
class tqGrooveTurningTool;
class tqHexagonalTurningTool;
class tqOctagonalTurningTool;
class tqRoundTurningTool;
class tqPentagonalTurningTool;
class tqSquareTurningTool;
class tqParallelogramTurningTool;
class tqTriangleTurningTool;
class tqChainSawTool;
class tqGenericSawingTool;
class tqWireTool;
class tqGenericExtrudedTool;
class tqGenericRevolvedTool;
class tqConvexTipMill;
class tqBarrelTaperMill;
class tqBarrelTangentMillConicalShaft;
class tqBarrelTangentMill;
class tqBarrelLensMill;
class tqBarrelDProfMill;
class tqBarrelBarrSecMill;
class tqBarrelAdvancedMill;
class tqBarrelMill;
class tqTapRH;
class tqTapLH;
class tqTaperMill;
class tqSpotDrill;
class tqSpherMill;
class tqSlotMill;
class tqReamer;
class tqRadMill;
class tqLolMill;
class tqFaceMill;
class tqEndMill;
class tqDrill;
class tqDoveMill;
class tqCtrDrill;
class tqCSink;
class tqCntrBore;
class tqChamferMill;
class tqBullMill;
class tqBoreBar;

/// Every concrete tool class; the visitor's slots, the cloner, the comparator and the typed tests follow from it.
using tqToolList = misc::tqTypeList<
    tqContourTurningTool,
    tqThreadTapTool,
    tqPotGrinderTool,
    tqSpeedShapeTool,
    tqOpticDiamondTool,
    tqGenericTool,
    tqDiamondTurningTool,
    tqGrooveTurningTool,
    tqHexagonalTurningTool,
    tqOctagonalTurningTool,
    tqRoundTurningTool,
    tqPentagonalTurningTool,
    tqSquareTurningTool,
    tqParallelogramTurningTool,
    tqTriangleTurningTool,
    tqChainSawTool,
    tqGenericSawingTool,
    tqWireTool,
    tqGenericExtrudedTool,
    tqGenericRevolvedTool,
    tqConvexTipMill,
    tqBarrelTaperMill,
    tqBarrelTangentMillConicalShaft,
    tqBarrelTangentMill,
    tqBarrelLensMill,
    tqBarrelDProfMill,
    tqBarrelBarrSecMill,
    tqBarrelAdvancedMill,
    tqBarrelMill,
    tqTapRH,
    tqTapLH,
    tqTaperMill,
    tqSpotDrill,
    tqSpherMill,
    tqSlotMill,
    tqReamer,
    tqRadMill,
    tqLolMill,
    tqFaceMill,
    tqEndMill,
    tqDrill,
    tqDoveMill,
    tqCtrDrill,
    tqCSink,
    tqCntrBore,
    tqChamferMill,
    tqBullMill,
    tqBoreBar>;

}  // namespace cadcam
