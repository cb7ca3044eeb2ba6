// Small builders of profiles, contours and solids for the geometry tests, and one solid of every kind.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/tools/solids/tqallsoliddefinitions.h"

namespace tqtest {
namespace geo {

using Point = cadcam::tqPoint2d;
using Contour = cadcam::tq2dContour<double>;
using SolidPointer = misc::tqAutoPointer<cadcam::tqSolidDefinition<double>>;
using Turning = cadcam::tqTurningSolidDefinition<double>;
constexpr auto kMetric = measures::tqUnitsFactory::Metric;

inline misc::tqAutoPointer<cadcam::tq2dGeometry<double>> Line(Point a, Point b) {
    return misc::tqAutoPointer<cadcam::tq2dGeometry<double>>(new cadcam::tq2dLine<double>(a, b));
}
inline misc::tqAutoPointer<cadcam::tq2dGeometry<double>> Arc(Point start, Point end, Point centre, bool ccw) {
    return misc::tqAutoPointer<cadcam::tq2dGeometry<double>>(new cadcam::tq2dArc<double>(
        start, end, centre, ccw ? cadcam::tqArcDirection::Counterclockwise : cadcam::tqArcDirection::Clockwise));
}
inline Contour Chain(std::vector<misc::tqAutoPointer<cadcam::tq2dGeometry<double>>> items) {
    Contour contour;
    for (const auto& item : items) contour.Append(item);
    return contour;
}
/// A closed polygon through the points.
inline Contour Polygon(const std::vector<Point>& points) {
    std::vector<misc::tqAutoPointer<cadcam::tq2dGeometry<double>>> items;
    for (std::size_t i = 0; i < points.size(); ++i) items.push_back(Line(points[i], points[(i + 1) % points.size()]));
    return Chain(items);
}

inline SolidPointer Revolved(const Contour& profile) {
    return SolidPointer(new cadcam::tqRevolvedSolidDefinition<double>(kMetric, profile));
}
/// Contours extruded from the turning plane (normal −Y) by thickness towards −Y.
inline SolidPointer TurningPlaneExtruded(const std::vector<Contour>& contours, double thickness) {
    return SolidPointer(
        new cadcam::tqExtrudedSolidDefinition<double>(kMetric, {0, -thickness, 0}, 0, {0, -1, 0}, contours));
}
inline SolidPointer Holder(Turning::Type type, Turning::Hand hand, std::vector<double> letters, double height = 125) {
    letters.resize(9, 0.0);
    return SolidPointer(new Turning(kMetric, height, hand, Turning::SK_RECTANGULAR, Turning::IN_TRIANGLE, type,
                                    letters[0], letters[1], letters[2], letters[3], letters[4], letters[5], letters[6],
                                    letters[7], letters[8]));
}

/// A rounded-corner profile: a flat bottom, a quarter arc bulging out to x = 10 at y = 5, a shank.
inline Contour BulgingProfile() {
    return Chain(
        {Line({0, 0}, {5, 0}), Arc({5, 0}, {10, 5}, {5, 5}, true), Line({10, 5}, {8, 20}), Line({8, 20}, {8, 30})});
}
/// A square with a rounded corner and a square hole, in (u, v).
inline std::vector<Contour> PlateWithHole() {
    return {Chain({Line({0, 0}, {8, 0}), Arc({8, 0}, {10, 2}, {8, 2}, true), Line({10, 2}, {10, 10}),
                   Line({10, 10}, {0, 10}), Line({0, 10}, {0, 0})}),
            Polygon({{3, 3}, {3, 6}, {6, 6}, {6, 3}})};
}

/// One solid of every kind (several holder types), named for the failure messages.
std::vector<std::pair<std::string, SolidPointer>> EverySolidKind();

}  // namespace geo
}  // namespace tqtest
