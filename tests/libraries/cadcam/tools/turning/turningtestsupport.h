// Holders and arbors for the turning tests, and the check that the family's rules run before a class's own.
#pragma once

#include <functional>
#include <limits>

#include "cadcam/geometry/tq2dline.h"
#include "cadcam/tools/parts/tqarbordefinition.h"
#include "cadcam/tools/parts/tqholderdefinition.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "cadcam/tools/solids/tqturningsoliddefinition.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtool.h"
#include "support/tqtest.h"

namespace turningtest {

using Units = measures::tqUnitsFactory::Units;
constexpr Units kMetric = measures::tqUnitsFactory::Metric;
constexpr Units kInch = measures::tqUnitsFactory::Inch;
using HolderPointer = cadcam::tqTool::HolderPointer;
using ArborPointer = cadcam::tqTool::ArborPointer;
using Turning = cadcam::tqTurningSolidDefinition<double>;

/// A metric generic type a holder for the insert number.
inline HolderPointer Holder(int insert = 0) {
    misc::tqAutoPointer<cadcam::tqSolidDefinition<double>> solid(
        new Turning(kMetric, 125, Turning::H_RIGHT, Turning::SK_RECTANGULAR, static_cast<Turning::Insert>(insert),
                    Turning::GENERIC_TYPE_A, 25, 25, 32, 32, 0, 0, 0, 0, 0));
    return HolderPointer(new cadcam::tqHolderDefinition<double>(kMetric, solid));
}

/// An arbor with an empty revolved solid.
inline ArborPointer Arbor() {
    misc::tqAutoPointer<cadcam::tqSolidDefinition<double>> solid(
        new cadcam::tqRevolvedSolidDefinition<double>(kMetric));
    return ArborPointer(new cadcam::tqArborDefinition<double>(kMetric, solid));
}

/// A milling holder: a revolved solid, which no insert takes.
inline HolderPointer RevolvedHolder() {
    cadcam::tq2dContour<double> profile;
    const cadcam::tqPoint2d points[] = {{0, 0}, {25, 0}, {25, 70}};
    for (int i = 1; i < 3; ++i) {
        profile.Append(
            misc::tqAutoPointer<cadcam::tq2dGeometry<double>>(new cadcam::tq2dLine<double>(points[i - 1], points[i])));
    }
    misc::tqAutoPointer<cadcam::tqSolidDefinition<double>> solid(
        new cadcam::tqRevolvedSolidDefinition<double>(kMetric, profile));
    return HolderPointer(new cadcam::tqHolderDefinition<double>(kMetric, solid));
}

/// Builds an insert of one class from a holder and a thickness, with the class's own parameters broken.
using BrokenInsert = std::function<void(const HolderPointer& holder, double thickness)>;

/// 2337 for a missing or non-turning holder, then 2338 for a thickness not > 0, before any rule of the class.
inline void ExpectFamilyRulesFirst(const BrokenInsert& make) {
    const char* holderText = "Invalid holder definition.";
    EXPECT_THROW_CODE(make(HolderPointer(), 0), cadcam::tqcadcamException, 2337, holderText);
    EXPECT_THROW_CODE(make(HolderPointer(new cadcam::tqHolderDefinition<double>(kMetric, {})), 1),
                      cadcam::tqcadcamException, 2337, holderText);
    EXPECT_THROW_CODE(make(RevolvedHolder(), 1), cadcam::tqcadcamException, 2337, holderText);
    const char* thicknessText = "Thickness must be greater than 0.";
    EXPECT_THROW_CODE(make(Holder(), 0), cadcam::tqcadcamException, 2338, thicknessText);
    EXPECT_THROW_CODE(make(Holder(), std::numeric_limits<double>::quiet_NaN()), cadcam::tqcadcamException, 2338,
                      thicknessText);
}

/// A tool scaled to inch reads its lengths divided by 25.4 and keeps the rest; scaled back it equals the original.
template <class Tool>
void ExpectScaledByUnits(const Tool& tool, const std::function<std::vector<double>(const Tool&)>& lengths,
                         const std::function<std::vector<double>(const Tool&)>& others) {
    Tool inch(tool);
    inch.SetUnits(kInch);
    EXPECT_EQ(inch.GetUnits(), kInch);
    const std::vector<double> before = lengths(tool);
    const std::vector<double> after = lengths(inch);
    ASSERT_EQ(before.size(), after.size());
    for (std::size_t i = 0; i < before.size(); ++i) EXPECT_DOUBLE_EQ(after[i], before[i] / 25.4) << "length " << i;
    EXPECT_EQ(others(inch), others(tool));
    EXPECT_EQ(lengths(tool), before) << "the original keeps its lengths";
    EXPECT_EQ(inch.GetHolder()->GetUnits(), kInch);
}

}  // namespace turningtest
