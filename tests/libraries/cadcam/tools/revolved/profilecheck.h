// Reading a tool profile item by item in tests: its lines and arcs with their points.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "cadcam/tools/parts/tqnoncuttingpartdefinition.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"

namespace profilecheck {

using Point = cadcam::tqTPoint2d<double>;

/// An expected item: a line to `end`, or an arc to `end` about `centre` sweeping `sweep` degrees.
struct Item {
    bool arc;
    Point end;
    Point centre;
    double sweep;
};
inline Item L(double x, double y) { return {false, Point(x, y), Point(), 0}; }
inline Item A(double x, double y, double cx, double cy, double sweep) {
    return {true, Point(x, y), Point(cx, cy), sweep};
}

/// The profile of a part's revolved solid.
inline const cadcam::tq2dContour<double>& ProfileOf(const cadcam::tqToolPartDefinition<double>& part) {
    return static_cast<const cadcam::tqRevolvedSolidDefinition<double>&>(*part.GetSolid()).GetProfile();
}

/// Expects profile to run from start through items, each point within tolerance (0: exactly).
inline void ExpectProfile(const cadcam::tq2dContour<double>& profile, Point start, const std::vector<Item>& items,
                          double tolerance = 1e-12) {
    ASSERT_EQ(profile.GetCount(), items.size());
    auto near = [tolerance](const Point& actual, const Point& expected, const char* what, std::size_t i) {
        EXPECT_NEAR(actual.x, expected.x, tolerance) << what << " of item " << i;
        EXPECT_NEAR(actual.y, expected.y, tolerance) << what << " of item " << i;
    };
    Point from = start;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const auto& item = profile.GetItem(i);
        if (items[i].arc) {
            const auto arc = item.DynamicCast<cadcam::tq2dArc<double>>();
            ASSERT_TRUE(arc.IsNotNull()) << "item " << i << " is not an arc";
            near(arc->GetStart(), from, "start", i);
            near(arc->GetEnd(), items[i].end, "end", i);
            near(arc->GetCentre(), items[i].centre, "centre", i);
            EXPECT_NEAR(arc->GetSweep(), items[i].sweep, 1e-9) << "sweep of item " << i;
        } else {
            const auto line = item.DynamicCast<cadcam::tq2dLine<double>>();
            ASSERT_TRUE(line.IsNotNull()) << "item " << i << " is not a line";
            near(line->GetStart(), from, "start", i);
            near(line->GetEnd(), items[i].end, "end", i);
        }
        from = items[i].end;
    }
}

/// Expects profile to open with an arc from the tip about a centre on the axis: a full corner radius.
inline void ExpectArcAtTheTip(const cadcam::tq2dContour<double>& profile) {
    const auto arc = profile.GetItem(0).DynamicCast<cadcam::tq2dArc<double>>();
    ASSERT_TRUE(arc.IsNotNull());
    EXPECT_EQ(arc->GetStart(), Point(0, 0));
    EXPECT_EQ(arc->GetCentre().x, 0);
}

}  // namespace profilecheck
