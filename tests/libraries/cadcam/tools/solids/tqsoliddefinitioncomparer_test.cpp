// tqSolidDefinitionComparer: equal only within one kind, nulls equal only to nulls, the abstract slot refused.
#include "cadcam/tools/solids/tqsoliddefinitioncomparer.h"

#include "solidsamples.h"

namespace {

using Solid = cadcam::tqSolidDefinition<double>;

TEST(tqSolidDefinitionComparer, SolidsOfDifferentKindsAreUnequal) {
    const auto a = tqtest::OneOfEachKind<double>(), b = tqtest::OneOfEachKind<double>();
    for (std::size_t i = 0; i < a.size(); ++i) {
        for (std::size_t j = 0; j < b.size(); ++j) {
            EXPECT_EQ(cadcam::tqSolidDefinitionComparer<double>::Compare(*a[i], *b[j]), i == j) << i << " " << j;
        }
    }
    EXPECT_TRUE(Solid::AreEqual(tqtest::SolidPointer(), tqtest::SolidPointer()));
    EXPECT_FALSE(Solid::AreEqual(a[0], tqtest::SolidPointer()));
    EXPECT_FALSE(Solid::AreEqual(tqtest::SolidPointer(), a[0]));
    const tqtest::AbstractOnlySolid<double> abstract;
    EXPECT_THROW_CODE(a[0]->IsEqual(abstract), cadcam::tqcadcamException, 2183, u"Unknown solid definition.");
    EXPECT_THROW_CODE(abstract.IsEqual(*a[0]), cadcam::tqcadcamException, 2183, u"Unknown solid definition.");
}

}  // namespace
