// tqMeasurable: validation of units, and what a change of unit system hands to Scale.
#include "measures/tqmeasurable.h"

#include <vector>

#include "measures/tqmeasuresexception.h"
#include "support/tqtest.h"

using measures::tqmeasuresException;
using measures::tqMeasurable;
using measures::tqUnitsFactory;

namespace {

/// Records each call of Scale.
class Recorder : public tqMeasurable {
public:
    using tqMeasurable::tqMeasurable;
    struct Call {
        tqUnitsFactory::Units units;
        double factor;
    };
    std::vector<Call> m_calls;

protected:
    void Scale(tqUnitsFactory::Units units, const double& factor) override {
        // The units field is already the new one when Scale runs.
        EXPECT_EQ(GetUnits(), units);
        m_calls.push_back({units, factor});
    }
};

const auto kZero = static_cast<tqUnitsFactory::Units>(0);
const auto kThree = static_cast<tqUnitsFactory::Units>(3);

}  // namespace

TEST(TqMeasurable, UnitsOtherThanMetricAndInchFail) {
    EXPECT_THROW_CODE(Recorder{kZero}, tqmeasuresException, 2141, "Unknown Units");
    EXPECT_THROW_CODE(Recorder{kThree}, tqmeasuresException, 2141, "Unknown Units");
    Recorder r(tqUnitsFactory::Metric);
    EXPECT_THROW_CODE(r.SetUnits(kZero), tqmeasuresException, 2141, "Unknown Units");
    EXPECT_THROW_CODE(r.SetUnits(kThree, true), tqmeasuresException, 2141, "Unknown Units");
    EXPECT_EQ(r.GetUnits(), tqUnitsFactory::Metric);
    EXPECT_TRUE(r.m_calls.empty());
}

TEST(TqMeasurable, ChangeHandsTheFactorToScale) {
    Recorder r(tqUnitsFactory::Metric);
    r.SetUnits(tqUnitsFactory::Inch);
    r.SetUnits(tqUnitsFactory::Metric);
    ASSERT_EQ(r.m_calls.size(), 2u);
    EXPECT_EQ(r.m_calls[0].units, tqUnitsFactory::Inch);
    EXPECT_EQ(r.m_calls[0].factor, 0.03937007874015748);
    EXPECT_EQ(r.m_calls[1].units, tqUnitsFactory::Metric);
    EXPECT_EQ(r.m_calls[1].factor, 25.4);
}

TEST(TqMeasurable, SuppressedScalingPassesOne) {
    Recorder r(tqUnitsFactory::Inch);
    r.SetUnits(tqUnitsFactory::Metric, true);
    EXPECT_EQ(r.GetUnits(), tqUnitsFactory::Metric);
    ASSERT_EQ(r.m_calls.size(), 1u);
    EXPECT_EQ(r.m_calls[0].factor, 1.0);
}

TEST(TqMeasurable, ChangeToTheCurrentUnitsDoesNothing) {
    Recorder r(tqUnitsFactory::Inch);
    r.SetUnits(tqUnitsFactory::Inch);
    r.SetUnits(tqUnitsFactory::Inch, true);
    EXPECT_TRUE(r.m_calls.empty());
    EXPECT_EQ(r.GetUnits(), tqUnitsFactory::Inch);
}
