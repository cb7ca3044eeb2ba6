// tqToolVisitor and tqToolBranchVisitor over every class: each tool calls exactly its own slot.
#include <gtest/gtest.h>

#include <typeindex>

#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtoolbranchvisitor.h"
#include "cadcam/tools/tqtoolvisitor.h"
#include "misc/tqtypedvisitor.h"
#include "support/tqtest.h"
#include "typedtoollist.h"

namespace {

using cadcam::tqTool;

/// Records every slot it is called in.
class CountingVisitor
    : public misc::detail_::TypedVisitor<CountingVisitor, cadcam::tqToolVisitor, tqTool, cadcam::tqToolList> {
public:
    template <class T>
    void OnVisit(const T&) {
        visited.push_back(std::type_index(typeid(T)));
    }
    void OnVisitBase(const tqTool&) { visited.push_back(std::type_index(typeid(tqTool))); }

    std::vector<std::type_index> visited;
};

/// Records the family slot.
class FamilyVisitor : public cadcam::tqToolBranchVisitor {
public:
    void Visit(const cadcam::tqSpeedShapeTool&) override { family = "speed shape"; }
    void Visit(const cadcam::tqOpticDiamondTool&) override { family = "optic diamond"; }
    void Visit(const cadcam::tqGenericTool&) override { family = "generic"; }
    void Visit(const cadcam::tqSawingTool&) override { family = "sawing"; }
    void Visit(const cadcam::tqWireTool&) override { family = "wire"; }
    void Visit(const cadcam::tqExtrudedTool&) override { family = "extruded"; }
    void Visit(const cadcam::tqRevolvedTool&) override { family = "revolved"; }
    std::string family;
};

template <class T>
std::string ExpectedFamily() {
    if (std::is_base_of<cadcam::tqRevolvedTool, T>::value) return "revolved";
    if (std::is_base_of<cadcam::tqExtrudedTool, T>::value) return "extruded";
    if (std::is_base_of<cadcam::tqSawingTool, T>::value) return "sawing";
    if (std::is_same<T, cadcam::tqWireTool>::value) return "wire";
    if (std::is_same<T, cadcam::tqGenericTool>::value) return "generic";
    if (std::is_same<T, cadcam::tqOpticDiamondTool>::value) return "optic diamond";
    return "speed shape";
}

template <class T>
class EveryToolClass : public ::testing::Test {};
TYPED_TEST_SUITE(EveryToolClass, tqtest::AllToolClasses);

TYPED_TEST(EveryToolClass, CallsExactlyItsOwnSlotAndFamily) {
    const tqTool& tool = *tqtest::SampleOf<TypeParam>().tool;
    CountingVisitor counting;
    tool.AcceptVisitor(counting);
    ASSERT_EQ(counting.visited.size(), 1u);
    EXPECT_EQ(counting.visited.front(), std::type_index(typeid(TypeParam)));

    FamilyVisitor family;
    tool.AcceptBranchVisitor(family);
    EXPECT_EQ(family.family, ExpectedFamily<TypeParam>());
}

TYPED_TEST(EveryToolClass, AVisitorThatOverridesNothingThrows2020) {
    cadcam::tqToolVisitor nothing;
    EXPECT_THROW_CODE(tqtest::SampleOf<TypeParam>().tool->AcceptVisitor(nothing), cadcam::tqcadcamException, 2020,
                      "Visitor's method 'Visit' is not implemented.");
}

TEST(tqToolVisitor, ADefaultOverrideCatchesEveryClassNotHandled) {
    struct OnlyDrills : cadcam::tqToolVisitor {
        using cadcam::tqToolVisitor::Visit;
        void Visit(const cadcam::tqDrill&) override { ++drills; }
        void DefaultVisit(const tqTool&) override { ++others; }
        int drills = 0, others = 0;
    } visitor;
    tqtest::SampleOf<cadcam::tqDrill>().tool->AcceptVisitor(visitor);
    tqtest::SampleOf<cadcam::tqEndMill>().tool->AcceptVisitor(visitor);
    tqtest::SampleOf<cadcam::tqPotGrinderTool>().tool->AcceptVisitor(visitor);
    EXPECT_EQ(visitor.drills, 1);
    EXPECT_EQ(visitor.others, 2);
}

}  // namespace
