// The rules shared by the regular polygon inserts (triangle to octagon), as a typed test each class instantiates.
#pragma once

#include <cmath>
#include <limits>

#include "turningtestsupport.h"

namespace turningtest {

template <class Insert>
class RegularInsert : public ::testing::Test {};
TYPED_TEST_SUITE_P(RegularInsert);

TYPED_TEST_P(RegularInsert, EachRuleFiresAtItsBoundaryInOrderAndLengthsScale) {
    const auto make = [](double cornerRadius, double circle) {
        return TypeParam(kMetric, Arbor(), Holder(), 4.76, cornerRadius, circle);
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const char* radiusText = "Corner radius must be greater than 0.";
    const char* circleText = "Inscribed circle diameter must be greater than 0.";
    EXPECT_THROW_CODE(make(0, 0), E, 2342, radiusText);
    EXPECT_THROW_CODE(make(nan, 12.7), E, 2342, radiusText);
    EXPECT_THROW_CODE(make(0.8, 0), E, 2343, circleText);
    EXPECT_THROW_CODE(make(0.8, nan), E, 2343, circleText);
    EXPECT_THROW_CODE(make(6.35, 12.7), E, 2344, "Corner radius must be less than half of inscribed circle diameter.");
    EXPECT_NO_THROW(make(std::nextafter(6.35, 0.0), 12.7));
    EXPECT_NO_THROW(make(std::numeric_limits<double>::denorm_min(), 12.7));
    ExpectFamilyRulesFirst(
        [](const HolderPointer& holder, double thickness) { TypeParam(kMetric, Arbor(), holder, thickness, 0, 0); });
    ExpectScaledByUnits<TypeParam>(make(0.8, 12.7), {&TypeParam::GetInsertThickness, &TypeParam::GetCornerRadius,
                                                     &TypeParam::GetInscribedCircleDiameter});
}

REGISTER_TYPED_TEST_SUITE_P(RegularInsert, EachRuleFiresAtItsBoundaryInOrderAndLengthsScale);

}  // namespace turningtest
