// tqToolVisitor: every slot forwards to the throwing default.
#include "cadcam/tools/tqtoolvisitor.h"

#include "cadcam/tools/tqalltools.h"
#include "cadcam/tools/tqcadcamexception.h"

namespace cadcam {

tqToolVisitor::~tqToolVisitor() = default;

void tqToolVisitor::Visit(const tqContourTurningTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqThreadTapTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqPotGrinderTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqSpeedShapeTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqOpticDiamondTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqGenericTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqDiamondTurningTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqGrooveTurningTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqHexagonalTurningTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqOctagonalTurningTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqRoundTurningTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqPentagonalTurningTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqSquareTurningTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqParallelogramTurningTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqTriangleTurningTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqChainSawTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqGenericSawingTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqWireTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqGenericExtrudedTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqGenericRevolvedTool& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqConvexTipMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqBarrelTaperMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqBarrelTangentMillConicalShaft& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqBarrelTangentMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqBarrelLensMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqBarrelDProfMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqBarrelBarrSecMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqBarrelAdvancedMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqBarrelMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqTapRH& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqTapLH& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqTaperMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqSpotDrill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqSpherMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqSlotMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqReamer& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqRadMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqLolMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqFaceMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqEndMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqDrill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqDoveMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqCtrDrill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqCSink& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqCntrBore& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqChamferMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqBullMill& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqBoreBar& tool) { DefaultVisit(tool); }
void tqToolVisitor::Visit(const tqTool& tool) { DefaultVisit(tool); }

void tqToolVisitor::DefaultVisit(const tqTool&) { throw tqcadcamException(2020); }

}  // namespace cadcam
