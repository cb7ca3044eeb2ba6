// The rules shared by the regular polygon inserts (triangle to octagon), as a typed test each class instantiates.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "turningtestsupport.h"

namespace turningtest {

template <class Insert>
class RegularInsert : public ::testing::Test {
protected:
    static Insert Make(double cornerRadius, double inscribedCircleDiameter) {
        return Insert(kMetric, Arbor(), Holder(), 4.76, cornerRadius, inscribedCircleDiameter);
    }
};
TYPED_TEST_SUITE_P(RegularInsert);

TYPED_TEST_P(RegularInsert, ATypicalInsertReadsBack) {
    const TypeParam insert(kMetric, Arbor(), Holder(3), 4.76, 0.8, 12.7);
    EXPECT_EQ(insert.GetInsertThickness(), 4.76);
    EXPECT_EQ(insert.GetCornerRadius(), 0.8);
    EXPECT_EQ(insert.GetInscribedCircleDiameter(), 12.7);
}

TYPED_TEST_P(RegularInsert, EachRuleFiresAtItsBoundaryInOrder) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const char* radiusText = "Corner radius must be greater than 0.";
    const char* circleText = "Inscribed circle diameter must be greater than 0.";
    const char* halfText = "Corner radius must be less than half of inscribed circle diameter.";
    EXPECT_THROW_CODE(TestFixture::Make(0, 0), cadcam::tqcadcamException, 2342, radiusText);
    EXPECT_THROW_CODE(TestFixture::Make(nan, 12.7), cadcam::tqcadcamException, 2342, radiusText);
    EXPECT_THROW_CODE(TestFixture::Make(0.8, 0), cadcam::tqcadcamException, 2343, circleText);
    EXPECT_THROW_CODE(TestFixture::Make(0.8, nan), cadcam::tqcadcamException, 2343, circleText);
    EXPECT_THROW_CODE(TestFixture::Make(6.35, 12.7), cadcam::tqcadcamException, 2344, halfText);
    EXPECT_NO_THROW(TestFixture::Make(std::nextafter(6.35, 0.0), 12.7));
    EXPECT_NO_THROW(TestFixture::Make(std::numeric_limits<double>::denorm_min(), 12.7));
    ExpectFamilyRulesFirst(
        [](const HolderPointer& holder, double thickness) { TypeParam(kMetric, Arbor(), holder, thickness, 0, 0); });
}

TYPED_TEST_P(RegularInsert, UnitsScaleTheLengths) {
    ExpectScaledByUnits<TypeParam>(
        TestFixture::Make(0.8, 12.7),
        [](const TypeParam& t) {
            return std::vector<double>{t.GetInsertThickness(), t.GetCornerRadius(), t.GetInscribedCircleDiameter()};
        },
        [](const TypeParam&) { return std::vector<double>{}; });
}

REGISTER_TYPED_TEST_SUITE_P(RegularInsert, ATypicalInsertReadsBack, EachRuleFiresAtItsBoundaryInOrder,
                            UnitsScaleTheLengths);

}  // namespace turningtest
