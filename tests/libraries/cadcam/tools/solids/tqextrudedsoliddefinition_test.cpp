// tqExtrudedSolidDefinition: defaults, fields, equality by field, and units that leave the plane's normal alone.
#include "cadcam/tools/solids/tqextrudedsoliddefinition.h"

#include "solidsamples.h"

namespace {

using cadcam::tqExtrudedSolidDefinition;
using cadcam::tqTPoint3d;
using Extruded = tqExtrudedSolidDefinition<double>;

const auto kSquare = tqtest::Polyline<double>({{0, 0}, {10, 0}, {10, 10}, {0, 10}}, true);

Extruded Typical() { return Extruded(tqtest::kMetric, {0, -2, 0}, 1, {0, -1, 0}, {kSquare}); }

TEST(tqExtrudedSolidDefinition, DefaultsAndFields) {
    const Extruded empty(tqtest::kMetric);
    EXPECT_EQ(empty.GetExtrusionVector(), tqTPoint3d<double>(0, 0, 1));
    EXPECT_EQ(empty.GetPlaneZ(), 0);
    EXPECT_EQ(empty.GetConstructionPlane(), tqTPoint3d<double>(0, 0, 1));
    EXPECT_TRUE(empty.GetContours().empty());

    const Extruded solid = Typical();
    EXPECT_EQ(solid.GetExtrusionVector(), tqTPoint3d<double>(0, -2, 0));
    EXPECT_EQ(solid.GetPlaneZ(), 1);
    EXPECT_EQ(solid.GetConstructionPlane(), tqTPoint3d<double>(0, -1, 0));
    ASSERT_EQ(solid.GetContours().size(), 1u);
    EXPECT_EQ(solid.GetContours()[0], kSquare);
}

TEST(tqExtrudedSolidDefinition, EveryFieldTakesPartInEquality) {
    const auto otherContour = tqtest::Polyline<double>({{0, 0}, {5, 0}, {5, 5}}, true);
    EXPECT_EQ(Typical(), Typical());
    EXPECT_NE(Typical(), Extruded(tqtest::kInch, {0, -2, 0}, 1, {0, -1, 0}, {kSquare}));
    EXPECT_NE(Typical(), Extruded(tqtest::kMetric, {0, -3, 0}, 1, {0, -1, 0}, {kSquare}));
    EXPECT_NE(Typical(), Extruded(tqtest::kMetric, {0, -2, 0}, 2, {0, -1, 0}, {kSquare}));
    EXPECT_NE(Typical(), Extruded(tqtest::kMetric, {0, -2, 0}, 1, {0, 1, 0}, {kSquare}));
    EXPECT_NE(Typical(), Extruded(tqtest::kMetric, {0, -2, 0}, 1, {0, -1, 0}, {otherContour}));
    EXPECT_NE(Typical(), Extruded(tqtest::kMetric, {0, -2, 0}, 1, {0, -1, 0}, {kSquare, otherContour}));
}

TEST(tqExtrudedSolidDefinition, SetUnitsScalesLengthsButNotTheConstructionPlane) {
    const Extruded source = Typical();
    Extruded solid(source);
    solid.SetUnits(tqtest::kInch);
    EXPECT_DOUBLE_EQ(solid.GetExtrusionVector().y, -2 / 25.4);
    EXPECT_DOUBLE_EQ(solid.GetPlaneZ(), 1 / 25.4);
    EXPECT_EQ(solid.GetConstructionPlane(), tqTPoint3d<double>(0, -1, 0));
    const auto& edge = static_cast<const cadcam::tq2dLine<double>&>(*solid.GetContours()[0].GetItem(1));
    EXPECT_DOUBLE_EQ(edge.GetEnd().x, 10 / 25.4);
    EXPECT_EQ(source, Typical());  // shared contour items were not scaled in place
}

}  // namespace
