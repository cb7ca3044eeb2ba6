// tq2dBoundingBox: arcs count their quarter points only within the sweep; items of every kind add.
#include "cadcam/geometry/tq2dboundingbox.h"

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/geometry/tq2dpoint.h"
#include "cadcam/geometry/tq2dpolyline.h"
#include "support/tqtest.h"

using namespace cadcam;
using Box = tq2dBoundingBox<double>;
using P = tqTPoint2d<double>;

TEST(Tq2dBoundingBox, ArcsTakeTheQuarterPointsTheySweepAndItemsOfEveryKindAdd) {
    // From 45 degrees about (1,1), radius 2: counterclockwise by 90 only the top lies inside, clockwise by 270
    // the other three quarter points do.
    const Box top = Box::Of(tq2dArc<double>(P(1, 1), 2, 45, 90));
    EXPECT_EQ(top.GetMax().y, 3.0);
    EXPECT_DOUBLE_EQ(top.GetMin().y, 1 + std::sqrt(2.0));
    const Box rest = Box::Of(tq2dArc<double>(P(1, 1), 2, 45, -270));
    EXPECT_EQ(rest.GetMin(), P(-1, -1));
    EXPECT_DOUBLE_EQ(rest.GetMax().y, 1 + std::sqrt(2.0));
    EXPECT_EQ(tq2dBoundingBox<float>::Of(tq2dArc<float>({0, 0}, 1, 0, 180)).GetMax(), tqTPoint2d<float>(1, 1));

    Box box;
    EXPECT_FALSE(box.IsInitialised());
    box.Add(Box());  // adds nothing
    EXPECT_FALSE(box.IsInitialised());
    tq2dContour<double> contour, inner;
    inner.Append(misc::tqAutoPointer<tq2dGeometry<double>>(new tq2dPoint<double>(P(-7, 2))));
    contour.Append(misc::tqAutoPointer<tq2dGeometry<double>>(new tq2dLine<double>(P(1, 1), P(2, -3))));
    contour.Append(misc::tqAutoPointer<tq2dGeometry<double>>(new tq2dPolyLine<double>({P(0, 0), P(4, 5)})));
    contour.Append(inner.Clone());
    box.Add(static_cast<const tq2dGeometry<double>&>(contour));
    EXPECT_EQ(box.GetMin(), P(-7, -3));
    EXPECT_EQ(box.GetMax(), P(4, 5));
    EXPECT_EQ(box.GetLargestAbsoluteCoordinate(), 7.0);
    EXPECT_EQ(box, Box::Of(contour));
}
