// Helpers of the milling tool tests: tables of rule cases over a parameter set changed in one field.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "cadcam/tools/tqcadcamexception.h"
#include "measures/tqunitsfactory.h"
#include "support/tqtest.h"

namespace millingtest {

constexpr measures::tqUnitsFactory::Units kMetric = measures::tqUnitsFactory::Metric;

/// A parameter set that must fail with a number and its text.
template <class P>
struct RuleCase {
    P params;
    std::int32_t number;
    const char* text;
};

/// Builds every case through make and checks the number and text it fails with.
template <class P, class Make>
void ExpectRules(const std::vector<RuleCase<P>>& cases, Make make) {
    for (std::size_t i = 0; i < cases.size(); ++i) {
        SCOPED_TRACE(testing::Message() << "case " << i << ", rule " << cases[i].number);
        EXPECT_THROW_CODE(make(cases[i].params), cadcam::tqcadcamException, cases[i].number, cases[i].text);
    }
}

/// Builds every parameter set through make and expects no failure.
template <class P, class Make>
void ExpectBuilds(const std::vector<P>& sets, Make make) {
    for (std::size_t i = 0; i < sets.size(); ++i) {
        SCOPED_TRACE(testing::Message() << "set " << i);
        EXPECT_NO_THROW(make(sets[i]));
    }
}

}  // namespace millingtest
