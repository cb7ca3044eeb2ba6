// tqSolidDefinitionComparer: equal only within one kind, and exactly.
#include "cadcam/tools/solids/tqsoliddefinitioncomparer.h"

#include "solidsamples.h"

namespace {

using cadcam::tqSolidDefinition;

TEST(tqSolidDefinitionComparer, SolidsOfDifferentKindsAreUnequal) {
    const auto a = tqtest::OneOfEachKind<double>();
    const auto b = tqtest::OneOfEachKind<double>();
    for (std::size_t i = 0; i < a.size(); ++i) {
        for (std::size_t j = 0; j < b.size(); ++j) {
            EXPECT_EQ(cadcam::tqSolidDefinitionComparer<double>::Compare(*a[i], *b[j]), i == j) << i << " " << j;
        }
    }
}

TEST(tqSolidDefinitionComparer, UnitsAndNullsCount) {
    using Pointer = tqtest::SolidPointer<double>;
    const Pointer metric(new cadcam::tqRevolvedSolidDefinition<double>(tqtest::kMetric));
    const Pointer inch(new cadcam::tqRevolvedSolidDefinition<double>(tqtest::kInch));
    EXPECT_FALSE(metric->IsEqual(*inch));
    EXPECT_TRUE(tqSolidDefinition<double>::AreEqual(Pointer(), Pointer()));
    EXPECT_FALSE(tqSolidDefinition<double>::AreEqual(metric, Pointer()));
    EXPECT_FALSE(tqSolidDefinition<double>::AreEqual(Pointer(), metric));
}

TEST(tqSolidDefinitionComparer, TheAbstractSlotFailsOnEitherSide) {
    const auto wire = tqtest::OneOfEachKind<double>()[cadcam::SDT_WIRE];
    const tqtest::AbstractOnlySolid<double> abstract;
    EXPECT_THROW_CODE(wire->IsEqual(abstract), cadcam::tqcadcamException, 2183, u"Unknown solid definition.");
    EXPECT_THROW_CODE(abstract.IsEqual(*wire), cadcam::tqcadcamException, 2183, u"Unknown solid definition.");
}

}  // namespace
