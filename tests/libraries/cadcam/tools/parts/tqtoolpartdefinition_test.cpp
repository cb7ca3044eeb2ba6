// The four part roles: the role's profile rules at construction, clones by role, equality across roles and the
// change of units.
#include "cadcam/tools/parts/tqtoolpartdefinition.h"

#include <type_traits>
#include <utility>

#include "cadcam/tools/solids/tqextrudedsoliddefinition.h"
#include "cadcam/tools/solids/tqmeshsoliddefinition.h"
#include "partsamples.h"

namespace {

using namespace cadcam;
using tqtest::Profile;

/// The number and text with which a role refuses a profile that does not start at Y = 0: they tell which role's
/// validator ran (every rule of each role is tested with the validators).
template <class Part>
std::pair<int, const char16_t*> StartRuleOf() {
    if (std::is_same<Part, tqCuttingPartDefinition<double>>::value)
        return {2202, u"Cutting part profile must start at Y=0"};
    if (std::is_same<Part, tqNonCuttingPartDefinition<double>>::value) {
        return {2203, u"Non cutting part profile must start at Y=0"};
    }
    if (std::is_same<Part, tqArborDefinition<double>>::value) return {2204, u"Arbor profile must start at Y=0"};
    return {2205, u"Holder profile must start at Y=0"};
}

template <class Part>
class ToolPartRoles : public ::testing::Test {};
using Roles = ::testing::Types<tqCuttingPartDefinition<double>, tqNonCuttingPartDefinition<double>,
                               tqArborDefinition<double>, tqHolderDefinition<double>>;
TYPED_TEST_SUITE(ToolPartRoles, Roles);

TYPED_TEST(ToolPartRoles, ARevolvedProfileIsCheckedWithTheRolesRules) {
    const auto head = tqtest::Head();
    EXPECT_EQ(TypeParam(tqtest::kMetric, head).GetSolid().Get(), head.Get());
    EXPECT_NO_THROW(TypeParam(tqtest::kMetric, Profile(0, 0).L(3, 0).A(4, 1, 3, 1).L(4, 10).Solid()));
    EXPECT_NO_THROW(
        TypeParam(tqtest::kMetric, tqtest::SolidPointer(new tqRevolvedSolidDefinition<double>(tqtest::kInch))));
    const auto [number, text] = StartRuleOf<TypeParam>();
    EXPECT_THROW_CODE(TypeParam(tqtest::kMetric, Profile(0, 1).L(5, 1).L(5, 10).Solid()), tqcadcamException, number,
                      text);
    // Other solids are not profile checked: this contour lies below Y = 0, at negative X and runs clockwise.
    const auto contour = Profile(-3, -2).L(-3, 4).L(2, 4).L(-3, -2).Get();
    EXPECT_NO_THROW(TypeParam(tqtest::kMetric, tqtest::SolidPointer(new tqExtrudedSolidDefinition<double>(
                                                   tqtest::kMetric, {0, 0, 1}, -5, {0, 0, 1}, {contour}))));
    EXPECT_NO_THROW(
        TypeParam(tqtest::kMetric, tqtest::SolidPointer(new tqMeshSolidDefinition<double>(tqtest::kMetric))));
}

TYPED_TEST(ToolPartRoles, ACloneHasTheSameRoleAndACloneOfTheSolid) {
    const auto part = tqtest::Make<TypeParam>(tqtest::Head(), tqtest::kInch);
    const auto clone = part->Clone();
    ASSERT_TRUE(clone.template DynamicCast<TypeParam>().IsNotNull());
    ASSERT_TRUE(clone->GetSolid().IsNotNull());
    EXPECT_NE(clone->GetSolid().Get(), part->GetSolid().Get());
    EXPECT_EQ(clone->GetUnits(), tqtest::kInch);
    EXPECT_TRUE(clone->IsEqual(*part));
    EXPECT_TRUE(TypeParam().Clone()->GetSolid().IsNull());
}

TYPED_TEST(ToolPartRoles, SetUnitsScalesACopyOfTheSharedSolid) {
    const auto head = tqtest::Head();
    TypeParam part(tqtest::kMetric, head);
    part.SetUnits(tqtest::kInch);
    ASSERT_NE(part.GetSolid().Get(), head.Get());
    EXPECT_EQ(part.GetSolid()->GetUnits(), tqtest::kInch);
    EXPECT_EQ(head->GetUnits(), tqtest::kMetric);
    const auto& profile = static_cast<const tqRevolvedSolidDefinition<double>&>(*part.GetSolid()).GetProfile();
    EXPECT_DOUBLE_EQ(static_cast<const tq2dLine<double>&>(*profile.GetItem(1)).GetEnd().y, 20 / 25.4);
}

TEST(tqToolPartDefinition, RolesCompareUnequalAcrossRoles) {
    const auto solid = tqtest::Head();
    const tqtest::PartPointer parts[] = {
        tqtest::Make<tqHolderDefinition<double>>(solid), tqtest::Make<tqArborDefinition<double>>(solid),
        tqtest::Make<tqNonCuttingPartDefinition<double>>(solid), tqtest::Make<tqCuttingPartDefinition<double>>(solid)};
    for (std::size_t i = 0; i < 4; ++i) {
        for (std::size_t j = 0; j < 4; ++j) EXPECT_EQ(parts[i]->IsEqual(*parts[j]), i == j) << i << " " << j;
    }
    EXPECT_FALSE(parts[3]->IsEqual(*tqtest::Make<tqCuttingPartDefinition<double>>(solid, tqtest::kInch)));
    EXPECT_FALSE(parts[3]->IsEqual(*tqtest::Cutting(tqtest::Head(6))));
    EXPECT_TRUE(parts[3]->IsEqual(*tqtest::Cutting(tqtest::Head())));
    EXPECT_TRUE(tqToolPartDefinition<double>::AreEqual(tqtest::PartPointer(), tqtest::PartPointer()));
    EXPECT_FALSE(tqToolPartDefinition<double>::AreEqual(parts[0], tqtest::PartPointer()));
}

TEST(tqToolPartDefinition, ThePartOfNoRoleFailsWithItsNumber) {
    const tqtest::AbstractOnlyPart abstract;
    EXPECT_THROW_CODE(abstract.Clone(), tqcadcamException, 2184, u"Unknown tool part definition.");
    EXPECT_THROW_CODE(abstract.IsEqual(*tqtest::Cutting(tqtest::Head())), tqcadcamException, 2184,
                      u"Unknown tool part definition.");
}

}  // namespace
