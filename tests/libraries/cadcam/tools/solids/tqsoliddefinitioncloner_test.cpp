// tqSolidDefinitionCloner: a clone is a new solid of the same kind, equal to its source and independent of it.
#include "cadcam/tools/solids/tqsoliddefinitioncloner.h"

#include "solidsamples.h"

namespace {

template <class T>
void ExpectClonesOfTheSameKind() {
    for (const auto& solid : tqtest::OneOfEachKind<T>()) {
        const auto clone = cadcam::tqSolidDefinitionCloner<T>::Clone(*solid);
        ASSERT_TRUE(clone.IsNotNull());
        EXPECT_NE(clone.Get(), solid.Get());
        EXPECT_EQ(cadcam::tqSolidDefinitionTypeFinder<T>::Find(*clone),
                  cadcam::tqSolidDefinitionTypeFinder<T>::Find(*solid));
        EXPECT_TRUE(clone->IsEqual(*solid));
        EXPECT_TRUE(solid->Clone()->IsEqual(*solid));
    }
}

TEST(tqSolidDefinitionCloner, ACloneIsANewSolidOfTheSameKindAndEqual) {
    ExpectClonesOfTheSameKind<double>();
    ExpectClonesOfTheSameKind<float>();
    EXPECT_THROW_CODE(cadcam::tqSolidDefinitionCloner<double>::Clone(tqtest::AbstractOnlySolid<double>()),
                      cadcam::tqcadcamException, 2183, u"Unknown solid definition.");
    // The clone keeps its units when the source changes them.
    cadcam::tqWireSolidDefinition<double> wire(tqtest::kMetric, 0.2, 50, false);
    const auto clone = wire.Clone();
    wire.SetUnits(tqtest::kInch);
    EXPECT_EQ(clone->GetUnits(), tqtest::kMetric);
    EXPECT_EQ(static_cast<const cadcam::tqWireSolidDefinition<double>&>(*clone).GetWireLength(), 50);
}

}  // namespace
