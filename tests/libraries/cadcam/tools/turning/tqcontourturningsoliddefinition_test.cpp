// tqContourTurningSolidDefinition: only closed, continuous, simple contours are taken (3415).
#include "cadcam/tools/solids/tqcontourturningsoliddefinition.h"

#include <limits>
#include <vector>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "support/tqtest.h"

namespace {

using cadcam::tqcadcamException;
template <class T>
using Solid = cadcam::tqContourTurningSolidDefinition<T>;
constexpr auto kMetric = measures::tqUnitsFactory::Metric;
const char* const kText = "Contour must be closed, continuous, and not self-intersecting.";

template <class T>
cadcam::tq2dContour<T> Polygon(const std::vector<cadcam::tqTPoint2d<T>>& points) {
    cadcam::tq2dContour<T> contour;
    for (std::size_t i = 1; i < points.size(); ++i) {
        contour.Append(misc::tqAutoPointer<cadcam::tq2dGeometry<T>>(new cadcam::tq2dLine<T>(points[i - 1], points[i])));
    }
    return contour;
}

template <class T>
Solid<T> Make(const cadcam::tq2dContour<T>& contour) {
    return Solid<T>(kMetric, 125, Solid<T>::H_RIGHT, Solid<T>::SK_RECTANGULAR, contour);
}

TEST(tqContourTurningSolidDefinition, AClosedSimpleContourIsKept) {
    const auto square = Polygon<double>({{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}});
    const Solid<double> solid(kMetric, 125, Solid<double>::H_LEFT, Solid<double>::SK_RECTANGULAR, square);
    EXPECT_TRUE(solid.GetContour() == square);
    EXPECT_EQ(solid.GetHeight(), 125);
    EXPECT_EQ(solid.GetHand(), Solid<double>::H_LEFT);

    // A lens of a line and a half circle closes as well.
    cadcam::tq2dContour<double> lens = Polygon<double>({{-5, 0}, {5, 0}});
    lens.Append(misc::tqAutoPointer<cadcam::tq2dGeometry<double>>(new cadcam::tq2dArc<double>({0, 0}, 5, 0, 180)));
    EXPECT_NO_THROW(Make(lens));
    EXPECT_NO_THROW(Make(Polygon<float>({{0, 0}, {10, 0}, {0, 10}, {0, 0}})));
}

TEST(tqContourTurningSolidDefinition, OpenBrokenOrCrossingContoursFail3415) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::vector<cadcam::tq2dContour<double>> bad = {
        {},                                                             // empty
        Polygon<double>({{0, 0}, {10, 0}, {10, 10}, {0, 10}}),          // open
        Polygon<double>({{0, 0}, {10, 0}, {0, 0}}),                     // folds back on itself
        Polygon<double>({{0, 0}, {10, 10}, {10, 0}, {0, 10}, {0, 0}}),  // bow tie
        Polygon<double>({{0, 0}, {10, 0}, {10, nan}, {0, 0}}),          // not finite
    };
    for (std::size_t i = 0; i < bad.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_THROW_CODE(Make(bad[i]), tqcadcamException, 3415, kText);
    }
    EXPECT_THROW_CODE(Make(Polygon<float>({{0, 0}, {10, 0}, {10, 10}, {0, 10}})), tqcadcamException, 3415, kText);
}

}  // namespace
