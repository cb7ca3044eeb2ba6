// The four part roles: profile rules at construction with each role's numbers, clones by role, equality across
// roles and the change of units.
#include "cadcam/tools/parts/tqtoolpartdefinition.h"

#include <cmath>

#include "cadcam/geometry/tqtmesh.h"
#include "cadcam/tools/solids/tqextrudedsoliddefinition.h"
#include "cadcam/tools/solids/tqmeshsoliddefinition.h"
#include "partsamples.h"

namespace {

using namespace cadcam;
using tqtest::Profile;

/// The numbers and texts a role reports for the rules whose words differ by role.
struct RoleRule {
    int number;
    const char16_t* text;
};
struct RoleRules {
    RoleRule contour, radius, sign, start, height;
};

template <class Part>
RoleRules RulesOf();
template <>
RoleRules RulesOf<tqCuttingPartDefinition<double>>() {
    return {{2244, u"Tool cutting part contour not valid"},
            {2198, u"Invalid radius in cutting part profile"},
            {2206, u"Cutting part profile must have only positive X values"},
            {2202, u"Cutting part profile must start at Y=0"},
            {2200, u"Invalid height in cutting part profile"}};
}
template <>
RoleRules RulesOf<tqNonCuttingPartDefinition<double>>() {
    return {{2245, u"Tool non cutting part contour not valid"},
            {2199, u"Invalid radius in non cutting part profile"},
            {2207, u"Non cutting part profile must have only positive X values"},
            {2203, u"Non cutting part profile must start at Y=0"},
            {2201, u"Invalid height in non cutting part profile"}};
}
template <>
RoleRules RulesOf<tqArborDefinition<double>>() {
    return {{2317, u"Tool arbor contour not valid"},
            {2136, u"Invalid radius in arbor profile"},
            {2208, u"Arbor profile must have only positive X values"},
            {2204, u"Arbor profile must start at Y=0"},
            {2137, u"Invalid height in arbor profile"}};
}
template <>
RoleRules RulesOf<tqHolderDefinition<double>>() {
    return {{2318, u"Tool holder contour not valid"},
            {2134, u"Invalid radius in holder profile"},
            {2209, u"Holder profile must have only positive X values"},
            {2205, u"Holder profile must start at Y=0"},
            {2135, u"Invalid height in holder profile"}};
}

template <class Part>
class ToolPartRoles : public ::testing::Test {};
using Roles = ::testing::Types<tqCuttingPartDefinition<double>, tqNonCuttingPartDefinition<double>,
                               tqArborDefinition<double>, tqHolderDefinition<double>>;
TYPED_TEST_SUITE(ToolPartRoles, Roles);

TYPED_TEST(ToolPartRoles, ADefaultPartIsMetricWithoutASolid) {
    const TypeParam part;
    EXPECT_EQ(part.GetUnits(), tqtest::kMetric);
    EXPECT_TRUE(part.GetSolid().IsNull());
    EXPECT_EQ(part, TypeParam());
}

TYPED_TEST(ToolPartRoles, ValidAndEmptyProfilesAreAccepted) {
    const auto head = tqtest::Head();
    EXPECT_EQ(TypeParam(tqtest::kMetric, head).GetSolid().Get(), head.Get());
    EXPECT_NO_THROW(
        TypeParam(tqtest::kMetric, tqtest::SolidPointer(new tqRevolvedSolidDefinition<double>(tqtest::kInch))));
    EXPECT_NO_THROW(TypeParam(tqtest::kMetric, Profile(0, 0).L(3, 0).A(4, 1, 3, 1).L(4, 10).Solid()));
}

TYPED_TEST(ToolPartRoles, ABrokenProfileIsRefusedWithTheRolesNumber) {
    const RoleRules rules = RulesOf<TypeParam>();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const struct {
        tqtest::SolidPointer solid;
        RoleRule expected;
    } cases[] = {
        {Profile(0, 0).L(5, 0).L(nan, 10).Solid(), rules.contour},
        {Profile(0, 0).L(5, 0).Arc({5, 1e-10}, 1e-10, -90, 90).L(5 + 1e-10, 10).Solid(), rules.radius},
        {Profile(0, 0).L(5, 0).L(-1, 5).L(5, 10).Solid(), rules.sign},
        {Profile(0, 1).L(5, 1).L(5, 10).Solid(), rules.start},
        {Profile(0, 0).L(5, 0).L(6, -1).L(6, 10).Solid(), rules.height},
        // Rules with one number for every role.
        {Profile(0, 0).L(5, 0).L(5, 5).L(3, 5).L(3, 10).Solid(),
         {2023,
          u"Invalid backwards move at the same Y detected in tool profile.Consecutive points at the same Y must "
          u"have increasing X values."}},
        {Profile(0, 0).L(0, 10).Solid(), {2146, u"Points must be in trigonometric order in tool part profile"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.expected.number);
        EXPECT_THROW_CODE(TypeParam(tqtest::kMetric, c.solid), tqcadcamException, c.expected.number, c.expected.text);
    }
}

TYPED_TEST(ToolPartRoles, ANonRevolvedSolidIsNotProfileChecked) {
    // Contours that would break the profile rules: below Y = 0, negative X, running clockwise.
    const auto contour = tqtest::Profile(-3, -2).L(-3, 4).L(2, 4).L(-3, -2).Get();
    const tqtest::SolidPointer extruded(
        new tqExtrudedSolidDefinition<double>(tqtest::kMetric, {0, 0, 1}, -5, {0, 0, 1}, {contour}));
    const tqtest::SolidPointer mesh(new tqMeshSolidDefinition<double>(tqtest::kMetric));
    EXPECT_NO_THROW(TypeParam(tqtest::kMetric, extruded));
    EXPECT_NO_THROW(TypeParam(tqtest::kMetric, mesh));
}

TYPED_TEST(ToolPartRoles, ACloneHasTheSameRoleAndACloneOfTheSolid) {
    const auto part = tqtest::Make<TypeParam>(tqtest::Head(), tqtest::kInch);
    const auto clone = part->Clone();
    ASSERT_TRUE(clone.template DynamicCast<TypeParam>().IsNotNull());
    ASSERT_TRUE(clone->GetSolid().IsNotNull());
    EXPECT_NE(clone.Get(), part.Get());
    EXPECT_NE(clone->GetSolid().Get(), part->GetSolid().Get());
    EXPECT_TRUE(clone->GetSolid()->IsEqual(*part->GetSolid()));
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
