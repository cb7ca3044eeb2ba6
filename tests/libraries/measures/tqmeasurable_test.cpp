// tqMeasurable: validation of units, and what a change of unit system hands to Scale.
#include "measures/tqmeasurable.h"

#include <utility>
#include <vector>

#include "measures/tqmeasuresexception.h"
#include "support/tqtest.h"

using measures::tqmeasuresException;
using measures::tqUnitsFactory;

namespace {

/// Records each call of Scale.
class Recorder : public measures::tqMeasurable {
public:
    using tqMeasurable::tqMeasurable;
    std::vector<std::pair<tqUnitsFactory::Units, double>> m_calls;

protected:
    void Scale(tqUnitsFactory::Units units, const double& factor) override {
        EXPECT_EQ(GetUnits(), units);  // the units field is already the new one
        m_calls.emplace_back(units, factor);
    }
};

}  // namespace

TEST(TqMeasurable, UnitsOtherThanMetricAndInchFail) {
    const auto zero = static_cast<tqUnitsFactory::Units>(0), three = static_cast<tqUnitsFactory::Units>(3);
    EXPECT_THROW_CODE(Recorder{zero}, tqmeasuresException, 2141, "Unknown Units");
    EXPECT_THROW_CODE(Recorder{three}, tqmeasuresException, 2141, "Unknown Units");
    Recorder r(tqUnitsFactory::Metric);
    EXPECT_THROW_CODE(r.SetUnits(zero), tqmeasuresException, 2141, "Unknown Units");
    EXPECT_THROW_CODE(r.SetUnits(three, true), tqmeasuresException, 2141, "Unknown Units");
    EXPECT_EQ(r.GetUnits(), tqUnitsFactory::Metric);
    EXPECT_TRUE(r.m_calls.empty());
}

TEST(TqMeasurable, ScaleIsToldEachChangeWithItsFactorOrOneWhenSuppressed) {
    Recorder r(tqUnitsFactory::Metric);
    r.SetUnits(tqUnitsFactory::Inch);
    r.SetUnits(tqUnitsFactory::Inch);  // no change, no call
    r.SetUnits(tqUnitsFactory::Metric);
    r.SetUnits(tqUnitsFactory::Metric, true);
    r.SetUnits(tqUnitsFactory::Inch, true);
    EXPECT_EQ(r.GetUnits(), tqUnitsFactory::Inch);
    EXPECT_EQ(
        r.m_calls,
        (std::vector<std::pair<tqUnitsFactory::Units, double>>{
            {tqUnitsFactory::Inch, 0.03937007874015748}, {tqUnitsFactory::Metric, 25.4}, {tqUnitsFactory::Inch, 1.0}}));
}
