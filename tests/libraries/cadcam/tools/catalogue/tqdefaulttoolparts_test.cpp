// tqDefaultToolParts for every tool class: a typical tool of each class takes the default arbor and holder of its
// own first build, in both unit systems.
#include "cadcam/tools/parts/tqdefaulttoolparts.h"

#include <cmath>
#include <type_traits>
#include <typeinfo>

#include "cadcam/tools/tqtoolvisitor.h"
#include "typedtoollist.h"

namespace tqtest {
namespace {

using namespace cadcam;
using Units = measures::tqUnitsFactory::Units;

// One slot: a new tool of the class from the visited one's parameters, with this remounter's units and parts.
#define TQ_REMOUNT(Class, ...) \
    void Visit(const Class& t) override { Keep(new Class(m_units, m_arbor, m_holder, __VA_ARGS__)); }
#define TQ_REMOUNT_REVOLVED(Class, ...) \
    TQ_REMOUNT(Class, t.GetDiameter(), t.GetFluteLength(), t.GetShoulderLength(), __VA_ARGS__)
#define TQ_REMOUNT_INSERT(Class, ...) TQ_REMOUNT(Class, t.GetInsertThickness(), __VA_ARGS__)

/// Builds a tool of the visited class with the same parameters in the given units, arbor and holder.
class Remounter : public tqToolVisitor {
public:
    Remounter(Units units, const tqTool::ArborPointer& arbor, const tqTool::HolderPointer& holder)
        : m_units(units), m_arbor(arbor), m_holder(holder) {}

    const ToolPointer& GetTool() const { return m_tool; }

    TQ_REMOUNT(tqBarrelAdvancedMill, t.GetFluteHeightDefinition(), t.GetAxialPositionDefinition(),
               t.GetRadialPositionDefinition(), t.GetCornerRadius(), t.GetCornerRadiusType(), t.GetShoulderLength(),
               t.GetProfileRadius())
    TQ_REMOUNT_REVOLVED(tqBarrelBarrSecMill, t.GetShaftDiameter(), t.GetUpperBlendRadius(), t.GetProfileRadius(),
                        t.GetLowerBlendRadius(), t.GetCenterHeight())
    TQ_REMOUNT_REVOLVED(tqBarrelDProfMill, t.GetUpperProfileRadius(), t.GetBlendRadius(), t.GetLowerProfileRadius())
    TQ_REMOUNT_REVOLVED(tqBarrelMill, t.GetUpperDiameter(), t.GetCornerRadius(), t.GetProfileRadius())
    TQ_REMOUNT_REVOLVED(tqBarrelTangentMill, t.GetUpperDiameter(), t.GetProfileRadius(), t.GetLowerRadius())
    TQ_REMOUNT_REVOLVED(tqBarrelTangentMillConicalShaft, t.GetTaperAngle(), t.GetProfileRadius(), t.GetLowerRadius(),
                        t.GetConeLength())
    TQ_REMOUNT_REVOLVED(tqBarrelTaperMill, t.GetUpperDiameter(), t.GetTaperAngle(), t.GetLowerRadius(),
                        t.GetProfileRadius(), t.GetUpperRadius(), t.GetFlatnessDiameter())
    TQ_REMOUNT(tqChainSawTool, t.GetCornerRadius(), t.GetCornerRadiusType(), t.GetChainSawType(), t.GetBladeWidth(),
               t.GetBladeThickness(), t.GetBladeLength(), t.GetStraightBladeLength(), t.GetBladeUpperWidth())
    TQ_REMOUNT(tqGenericExtrudedTool, t.GetSolid())
    TQ_REMOUNT(tqGenericSawingTool, t.GetBladeThickness())
    void Visit(const tqGenericTool& t) override {
        Keep(new tqGenericTool(m_units, {Placed(m_holder)}, {Placed(m_arbor)}, t.GetNonCuttingGroup(),
                               t.GetCuttingGroup()));
    }
    TQ_REMOUNT(tqOpticDiamondTool, t.GetRadius(), t.GetIncludedAngle(), t.GetClearanceType(), t.GetClearanceAngle(),
               t.GetRakeAngle(), t.GetRadiusType(), t.GetLength(), t.GetWidth(), t.GetThickness())
    TQ_REMOUNT(tqSpeedShapeTool, t.GetWidth(), t.GetLength(), t.GetCornerRadius(), t.GetConicLength(),
               t.GetConicAngle(), t.GetRampAngle(), t.GetArcRadius(), t.GetDepth())
    TQ_REMOUNT(tqWireTool, t.GetWireDiameter(), t.GetWireLength(), t.HasInfiniteLength())
    TQ_REMOUNT_REVOLVED(tqBarrelLensMill, t.GetCornerRadius(), t.GetConvexTipRadius())
    TQ_REMOUNT_REVOLVED(tqBoreBar, t.GetCornerRadius(), t.GetCornerRadiusType(), t.GetTaperAngle())
    TQ_REMOUNT_REVOLVED(tqBullMill, t.GetCornerRadius())
    TQ_REMOUNT_REVOLVED(tqChamferMill, t.GetCornerRadius(), t.GetCornerRadiusType(), t.GetTaperAngle(),
                        t.GetOutsideDiameter())
    TQ_REMOUNT(tqCntrBore, t.GetDiameter(), t.GetFluteLength(), t.GetShoulderLength())
    TQ_REMOUNT_REVOLVED(tqConvexTipMill, t.GetCornerRadius(), t.GetConvexTipRadius(), t.GetFlatnessRadius())
    TQ_REMOUNT_REVOLVED(tqCSink, t.GetCornerRadius(), t.GetCornerRadiusType(), t.GetTipAngle(), t.GetBottomDiameter())
    TQ_REMOUNT_REVOLVED(tqCtrDrill, t.GetTipAngle(), t.GetShoulderAngle(), t.GetCoreDiameter(), t.GetCoreHeight())
    TQ_REMOUNT_REVOLVED(tqDoveMill, t.GetCornerRadius(), t.GetCornerRadiusType(), t.GetTaperAngle())
    TQ_REMOUNT_REVOLVED(tqDrill, t.GetTipAngle())
    TQ_REMOUNT(tqEndMill, t.GetDiameter(), t.GetFluteLength(), t.GetShoulderLength())
    TQ_REMOUNT_REVOLVED(tqFaceMill, t.GetCornerRadius(), t.GetCornerRadiusType(), t.GetOutsideDiameter(),
                        t.GetTaperAngle())
    TQ_REMOUNT(tqGenericRevolvedTool, t.GetParts().GetParts())
    TQ_REMOUNT_REVOLVED(tqLolMill, t.GetOutsideDiameter())
    TQ_REMOUNT(tqPotGrinderTool, t.GetDiameter(), t.GetFluteLength(), t.GetShoulderLength())
    TQ_REMOUNT_REVOLVED(tqRadMill, t.GetCornerRadius())
    TQ_REMOUNT_REVOLVED(tqReamer, t.GetFactor())
    TQ_REMOUNT_REVOLVED(tqSlotMill, t.GetCornerRadius(), t.GetCornerRadiusType())
    TQ_REMOUNT(tqSpherMill, t.GetDiameter(), t.GetFluteLength(), t.GetShoulderLength())
    TQ_REMOUNT_REVOLVED(tqSpotDrill, t.GetTipAngle())
    TQ_REMOUNT_REVOLVED(tqTaperMill, t.GetCornerRadius(), t.GetCornerRadiusType(), t.GetTaperAngle())
    TQ_REMOUNT_REVOLVED(tqTapLH, t.GetCornerRadius(), t.GetCornerRadiusType(), t.GetTipAngle(), t.GetThreadsNumber())
    TQ_REMOUNT_REVOLVED(tqTapRH, t.GetCornerRadius(), t.GetCornerRadiusType(), t.GetTipAngle(), t.GetThreadsNumber())
    TQ_REMOUNT_REVOLVED(tqThreadTapTool, t.GetThreadType(), t.GetPitch(), t.GetTPI(), t.GetThreadDirection())
    TQ_REMOUNT_INSERT(tqContourTurningTool, t.GetContourSolid())
    TQ_REMOUNT_INSERT(tqDiamondTurningTool, t.GetCornerRadius(), t.GetInscribedCircleDiameter(), t.GetFormAngle())
    TQ_REMOUNT_INSERT(tqGrooveTurningTool, t.GetGroovingTurningToolType(), t.GetCornerRadius(), t.GetA(), t.GetB(),
                      t.GetC(), t.GetD(), t.GetE())
    TQ_REMOUNT_INSERT(tqHexagonalTurningTool, t.GetCornerRadius(), t.GetInscribedCircleDiameter())
    TQ_REMOUNT_INSERT(tqOctagonalTurningTool, t.GetCornerRadius(), t.GetInscribedCircleDiameter())
    TQ_REMOUNT_INSERT(tqParallelogramTurningTool, t.GetCornerRadius(), t.GetFormAngle(), t.GetWidth(), t.GetLength())
    TQ_REMOUNT_INSERT(tqPentagonalTurningTool, t.GetCornerRadius(), t.GetInscribedCircleDiameter())
    TQ_REMOUNT_INSERT(tqRoundTurningTool, t.GetDiameter())
    TQ_REMOUNT_INSERT(tqSquareTurningTool, t.GetCornerRadius(), t.GetInscribedCircleDiameter())
    TQ_REMOUNT_INSERT(tqTriangleTurningTool, t.GetCornerRadius(), t.GetInscribedCircleDiameter())

private:
    void Keep(tqTool* tool) { m_tool = ToolPointer(tool); }
    static tqGenericTool::PositionedPart Placed(const misc::tqAutoPointer<tqToolPartDefinition<double>>& part) {
        return {part, misc::tqAutoPointer<tqMatrix<double, 4, 4>>(
                          new tqMatrix<double, 4, 4>(tqMatrix<double, 4, 4>::Identity()))};
    }

    Units m_units;
    tqTool::ArborPointer m_arbor;
    tqTool::HolderPointer m_holder;
    ToolPointer m_tool;
};
#undef TQ_REMOUNT_INSERT
#undef TQ_REMOUNT_REVOLVED
#undef TQ_REMOUNT

template <class T>
class DefaultToolParts : public ::testing::Test {};
TYPED_TEST_SUITE(DefaultToolParts, AllToolClasses);

TYPED_TEST(DefaultToolParts, EveryConstructorTakesTheDefaultsOfItsClassInBothUnits) {
    const ToolSample& sample = SampleOf<TypeParam>();
    for (Units units : {measures::tqUnitsFactory::Metric, measures::tqUnitsFactory::Inch}) {
        ToolPointer first = sample.tool->Clone();
        first->SetUnits(units);
        const tqTool::ArborPointer arbor = tqDefaultToolParts::ArborFor(*first);
        const tqTool::HolderPointer holder = tqDefaultToolParts::HolderFor(*first);
        EXPECT_EQ(arbor->GetUnits(), units);
        EXPECT_EQ(holder->GetUnits(), units);
        Remounter remounter(units, arbor, holder);
        ASSERT_NO_THROW(first->AcceptVisitor(remounter)) << units;
        const tqTool& remounted = *remounter.GetTool();
        EXPECT_EQ(typeid(remounted), typeid(TypeParam));
        EXPECT_EQ(remounted.GetUnits(), units);
        // A generic tool counts its holder and arbor groups among its numbers. A default extender is computed
        // afresh, while the first tool's was scaled: a rounding apart.
        if (std::is_same<TypeParam, tqGenericTool>::value) continue;
        const std::vector<double> expected = sample.parameters(*first), actual = sample.parameters(remounted);
        ASSERT_EQ(actual.size(), expected.size());
        for (std::size_t i = 0; i < actual.size(); ++i) {
            EXPECT_NEAR(actual[i], expected[i], 1e-12 * std::fabs(expected[i])) << "parameter " << i;
        }
    }
}

}  // namespace
}  // namespace tqtest
