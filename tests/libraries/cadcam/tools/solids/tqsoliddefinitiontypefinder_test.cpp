// tqSolidDefinitionTypeFinder: the kind of every solid, and the abstract slot's failure.
#include "cadcam/tools/solids/tqsoliddefinitiontypefinder.h"

#include "solidsamples.h"

namespace {

template <class T>
void ExpectEveryKindFound() {
    const auto solids = tqtest::OneOfEachKind<T>();
    for (std::size_t k = 0; k < solids.size(); ++k) {
        EXPECT_EQ(cadcam::tqSolidDefinitionTypeFinder<T>::Find(*solids[k]),
                  static_cast<cadcam::tqSolidDefinitionType>(k));
    }
    EXPECT_THROW_CODE(cadcam::tqSolidDefinitionTypeFinder<T>::Find(tqtest::AbstractOnlySolid<T>()),
                      cadcam::tqcadcamException, 2183, u"Unknown solid definition.");
}

TEST(tqSolidDefinitionTypeFinder, FindsEveryKindInSlotOrder) {
    ExpectEveryKindFound<double>();
    ExpectEveryKindFound<float>();
}

}  // namespace
