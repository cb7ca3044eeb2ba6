// Holders, arbors and revolved solids for the tests of the other tool families, and a units check.
#pragma once

#include <functional>
#include <vector>

#include "cadcam/geometry/tq2dline.h"
#include "cadcam/tools/parts/tqarbordefinition.h"
#include "cadcam/tools/parts/tqholderdefinition.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/tqtool.h"
#include "support/tqtest.h"

namespace othertest {

using Units = measures::tqUnitsFactory::Units;
constexpr Units kMetric = measures::tqUnitsFactory::Metric;
constexpr Units kInch = measures::tqUnitsFactory::Inch;
using HolderPointer = cadcam::tqTool::HolderPointer;
using ArborPointer = cadcam::tqTool::ArborPointer;
using SolidPointer = misc::tqAutoPointer<cadcam::tqSolidDefinition<double>>;

/// A revolved solid through the points, one line between each two.
inline SolidPointer Revolved(const std::vector<cadcam::tqPoint2d>& points, Units units = kMetric) {
    cadcam::tq2dContour<double> profile;
    for (std::size_t i = 1; i < points.size(); ++i) {
        profile.Append(
            misc::tqAutoPointer<cadcam::tq2dGeometry<double>>(new cadcam::tq2dLine<double>(points[i - 1], points[i])));
    }
    return SolidPointer(new cadcam::tqRevolvedSolidDefinition<double>(units, profile));
}

/// The default milling holder and arbor.
inline HolderPointer Holder() {
    return HolderPointer(new cadcam::tqHolderDefinition<double>(
        kMetric, Revolved({{0, 0}, {25, 0}, {25, 15}, {32, 15}, {32, 35}, {22, 70}})));
}
inline ArborPointer Arbor() {
    return ArborPointer(
        new cadcam::tqArborDefinition<double>(kMetric, Revolved({{0, 0}, {12, 0}, {17, 30}, {17, 45}})));
}

/// A copy changed to inch reads its lengths divided by 25.4 and the rest unchanged; the original keeps its values.
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
}

}  // namespace othertest
