// tqUnitsFactory: the factors between unit systems, exact to the last bit.
#include "measures/tqunitsfactory.h"

#include "measures/tqmeasuresexception.h"
#include "support/tqtest.h"

using measures::tqmeasuresException;
using measures::tqUnitsFactory;

TEST(TqUnitsFactory, FactorsAreExact) {
    EXPECT_EQ(tqUnitsFactory::GetScaleFactor(tqUnitsFactory::Metric, tqUnitsFactory::Inch), 0.03937007874015748);
    EXPECT_EQ(tqUnitsFactory::GetScaleFactor(tqUnitsFactory::Metric, tqUnitsFactory::Inch), 1 / 25.4);
    EXPECT_EQ(tqUnitsFactory::GetScaleFactor(tqUnitsFactory::Inch, tqUnitsFactory::Metric), 25.4);
    EXPECT_EQ(tqUnitsFactory::GetScaleFactor(tqUnitsFactory::Inch, tqUnitsFactory::Inch), 1.0);
    EXPECT_EQ(tqUnitsFactory::GetScaleFactor(tqUnitsFactory::Metric, tqUnitsFactory::Metric), 1.0);
}

TEST(TqUnitsFactory, UnknownUnitsHaveNoFactor) {
    const auto three = static_cast<tqUnitsFactory::Units>(3);
    const auto zero = static_cast<tqUnitsFactory::Units>(0);
    EXPECT_THROW_CODE(tqUnitsFactory::GetScaleFactor(tqUnitsFactory::Metric, three), tqmeasuresException, 2146,
                      "Undefined ScaleFactor");
    EXPECT_THROW_CODE(tqUnitsFactory::GetScaleFactor(zero, tqUnitsFactory::Inch), tqmeasuresException, 2146,
                      "Undefined ScaleFactor");
    EXPECT_THROW_CODE(tqUnitsFactory::GetScaleFactor(three, three), tqmeasuresException, 2146,
                      "Undefined ScaleFactor");
    EXPECT_FALSE(tqUnitsFactory::IsValid(zero));
    EXPECT_FALSE(tqUnitsFactory::IsValid(three));
}
