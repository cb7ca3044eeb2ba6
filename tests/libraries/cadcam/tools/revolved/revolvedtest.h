// Helpers of the typed revolved tool tests: tables of rule cases, each a typical parameter set changed in a few
// fields, and the neighbours of a boundary value.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <vector>

#include "cadcam/tools/tqcadcamexception.h"
#include "measures/tqunitsfactory.h"
#include "support/tqtest.h"

namespace revolvedtest {

constexpr measures::tqUnitsFactory::Units kMetric = measures::tqUnitsFactory::Metric;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kTiny = std::numeric_limits<double>::denorm_min();

/// The doubles next to x, above and below.
inline double Up(double x) { return std::nextafter(x, kInf); }
inline double Down(double x) { return std::nextafter(x, -kInf); }

/// A change to the typical parameter set P (its member initialisers).
template <class P>
using Change = void (*)(P&);
/// p after change; With(P(), [](P& p) { ... }).
template <class P>
P With(P p, std::common_type_t<Change<P>> change) {
    change(p);
    return p;
}

/// A change that must fail with a number and its text.
template <class P>
struct RuleCase {
    Change<P> change;
    std::int32_t number;
    const char* text;
};

/// Builds every changed set through make: each case must fail with its number and text, each of builds must not.
template <class P, class Make>
void ExpectRules(const std::vector<RuleCase<P>>& cases, const std::vector<Change<P>>& builds, Make make) {
    for (std::size_t i = 0; i < cases.size(); ++i) {
        SCOPED_TRACE(testing::Message() << "case " << i << ", rule " << cases[i].number);
        EXPECT_THROW_CODE(make(With(P(), cases[i].change)), cadcam::tqcadcamException, cases[i].number, cases[i].text);
    }
    for (std::size_t i = 0; i < builds.size(); ++i) {
        SCOPED_TRACE(testing::Message() << "valid set " << i);
        EXPECT_NO_THROW(make(With(P(), builds[i])));
    }
}

}  // namespace revolvedtest
