// tqUnitsFactory: the factors between unit systems, exact to the last bit.
#include "measures/tqunitsfactory.h"

#include "measures/tqmeasuresexception.h"
#include "support/tqtest.h"

using measures::tqUnitsFactory;

TEST(TqUnitsFactory, FactorsAreExactAndUnknownUnitsHaveNone) {
    EXPECT_EQ(tqUnitsFactory::GetScaleFactor(tqUnitsFactory::Metric, tqUnitsFactory::Inch), 1 / 25.4);
    EXPECT_EQ(tqUnitsFactory::GetScaleFactor(tqUnitsFactory::Inch, tqUnitsFactory::Metric), 25.4);
    EXPECT_EQ(tqUnitsFactory::GetScaleFactor(tqUnitsFactory::Inch, tqUnitsFactory::Inch), 1.0);
    EXPECT_EQ(tqUnitsFactory::GetScaleFactor(tqUnitsFactory::Metric, tqUnitsFactory::Metric), 1.0);
    const auto zero = static_cast<tqUnitsFactory::Units>(0), three = static_cast<tqUnitsFactory::Units>(3);
    EXPECT_FALSE(tqUnitsFactory::IsValid(zero));
    EXPECT_FALSE(tqUnitsFactory::IsValid(three));
    for (const auto& pair : {std::make_pair(tqUnitsFactory::Metric, three), std::make_pair(zero, tqUnitsFactory::Inch),
                             std::make_pair(three, three)})
        EXPECT_THROW_CODE(tqUnitsFactory::GetScaleFactor(pair.first, pair.second), measures::tqmeasuresException, 2146,
                          "Undefined ScaleFactor");
}
