// tqSolidDefinitionTypeFinder: the kind of every solid, and the abstract slot's failure.
#include "cadcam/tools/solids/tqsoliddefinitiontypefinder.h"

#include "solidsamples.h"

namespace {

using cadcam::tqSolidDefinitionTypeFinder;

template <class T>
void ExpectEveryKindFound() {
    const auto solids = tqtest::OneOfEachKind<T>();
    for (std::size_t k = 0; k < solids.size(); ++k) {
        EXPECT_EQ(tqSolidDefinitionTypeFinder<T>::Find(*solids[k]), static_cast<cadcam::tqSolidDefinitionType>(k));
    }
    EXPECT_THROW_CODE(tqSolidDefinitionTypeFinder<T>::Find(tqtest::AbstractOnlySolid<T>()), cadcam::tqcadcamException,
                      2183, u"Unknown solid definition.");
}

TEST(tqSolidDefinitionTypeFinder, FindsEveryKindInSlotOrder) {
    ExpectEveryKindFound<double>();
    ExpectEveryKindFound<float>();
    EXPECT_EQ(cadcam::SDT_WIRE, 0);
    EXPECT_EQ(cadcam::SDT_REVOLVED, 5);
}

TEST(tqSolidDefinitionTypeFinder, AnEmptyRevolvedSolidIsRevolved) {
    EXPECT_EQ(tqSolidDefinitionTypeFinder<double>::Find(cadcam::tqRevolvedSolidDefinition<double>(tqtest::kInch)),
              cadcam::SDT_REVOLVED);
}

TEST(tqSolidDefinitionTypeFinder, AVisitReplacesTheAnswer) {
    const auto solids = tqtest::OneOfEachKind<double>();
    tqSolidDefinitionTypeFinder<double> finder(*solids[cadcam::SDT_MESH]);
    solids[cadcam::SDT_WIRE]->AcceptVisitor(finder);
    EXPECT_EQ(finder.GetType(), cadcam::SDT_WIRE);
}

}  // namespace
