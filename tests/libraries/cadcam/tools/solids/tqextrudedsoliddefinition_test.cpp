// tqExtrudedSolidDefinition: equality by field, and units that leave the plane's normal alone.
#include "cadcam/tools/solids/tqextrudedsoliddefinition.h"

#include "solidsamples.h"

namespace {

using cadcam::tqTPoint3d;
using Extruded = cadcam::tqExtrudedSolidDefinition<double>;

const auto kSquare = tqtest::Profile(0, 0).L(10, 0).L(10, 10).L(0, 10).L(0, 0).Get();

Extruded Typical() { return Extruded(tqtest::kMetric, {0, -2, 0}, 1, {0, -1, 0}, {kSquare}); }

TEST(tqExtrudedSolidDefinition, EveryFieldTakesPartInEquality) {
    const auto otherContour = tqtest::Profile(0, 0).L(5, 0).L(5, 5).L(0, 0).Get();
    EXPECT_EQ(Typical(), Typical());
    EXPECT_NE(Typical(), Extruded(tqtest::kInch, {0, -2, 0}, 1, {0, -1, 0}, {kSquare}));
    EXPECT_NE(Typical(), Extruded(tqtest::kMetric, {0, -3, 0}, 1, {0, -1, 0}, {kSquare}));
    EXPECT_NE(Typical(), Extruded(tqtest::kMetric, {0, -2, 0}, 2, {0, -1, 0}, {kSquare}));
    EXPECT_NE(Typical(), Extruded(tqtest::kMetric, {0, -2, 0}, 1, {0, 1, 0}, {kSquare}));
    EXPECT_NE(Typical(), Extruded(tqtest::kMetric, {0, -2, 0}, 1, {0, -1, 0}, {otherContour}));
    EXPECT_NE(Typical(), Extruded(tqtest::kMetric, {0, -2, 0}, 1, {0, -1, 0}, {kSquare, otherContour}));
}

TEST(tqExtrudedSolidDefinition, SetUnitsScalesLengthsButNotTheConstructionPlane) {
    Extruded solid = Typical();
    solid.SetUnits(tqtest::kInch);
    EXPECT_DOUBLE_EQ(solid.GetExtrusionVector().y, -2 / 25.4);
    EXPECT_DOUBLE_EQ(solid.GetPlaneZ(), 1 / 25.4);
    EXPECT_EQ(solid.GetConstructionPlane(), tqTPoint3d<double>(0, -1, 0));
    const auto edgeEnd = [](const cadcam::tq2dContour<double>& contour) {
        return static_cast<const cadcam::tq2dLine<double>&>(*contour.GetItem(1)).GetEnd().x;
    };
    EXPECT_DOUBLE_EQ(edgeEnd(solid.GetContours()[0]), 10 / 25.4);
    EXPECT_EQ(edgeEnd(kSquare), 10) << "the contour items the source shared are not scaled in place";
}

}  // namespace
