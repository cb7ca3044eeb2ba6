// tqSolidDefinitionBoundingBox: exact boxes of every solid kind, arc extremes counted only within the sweep.
#include "cadcam/tools/geometry/tqsoliddefinitionboundingbox.h"

#include <cmath>

#include "cadcam/tools/tqcadcamexception.h"
#include "geometrysamples.h"
#include "support/tqtest.h"

namespace {

using cadcam::tq3dBoundingBox;
using cadcam::tqPoint3d;
using cadcam::tqSolidDefinitionBoundingBox;
using namespace tqtest::geo;

tq3dBoundingBox Box(tqPoint3d min, tqPoint3d max) { return tq3dBoundingBox(min, max); }

TEST(tqSolidDefinitionBoundingBox, RevolvedTakesArcExtremesWithinTheSweepOnly) {
    // The quarter arc reaches x = 10 at its end; the bulge of the shank line stays below.
    EXPECT_EQ(tqSolidDefinitionBoundingBox::Of(*Revolved(BulgingProfile())), Box({-10, -10, 0}, {10, 10, 30}));
    // A half circle passes 0° and bulges past both its ends; an arc that stops short of 0° ends at its own x.
    const Contour over = Chain({Line({0, 0}, {5, 0}), Arc({5, 0}, {5, 10}, {5, 5}, true), Line({5, 10}, {5, 12})});
    EXPECT_EQ(tqSolidDefinitionBoundingBox::Of(*Revolved(over)), Box({-10, -10, 0}, {10, 10, 12}));
    const Point end(5 + 5 * std::sqrt(3.0) / 2, 2.5);
    const Contour shortTop = Chain({Line({0, 0}, {5, 0}), Arc({5, 0}, end, {5, 5}, true)});
    EXPECT_EQ(tqSolidDefinitionBoundingBox::Of(*Revolved(shortTop)).GetMax(), tqPoint3d(end.x, end.x, end.y));
    EXPECT_FALSE(tqSolidDefinitionBoundingBox::Of(cadcam::tqRevolvedSolidDefinition<double>(kMetric)).IsInitialized());
}

TEST(tqSolidDefinitionBoundingBox, ExtrudedTakesBothEndsAndArcExtremesPerWorldAxis) {
    // Turning plane: (u, v) = (X, Z), swept over y in [-2, 0]; the corner arc's extreme is its own end.
    EXPECT_EQ(tqSolidDefinitionBoundingBox::Of(*TurningPlaneExtruded(PlateWithHole(), 2)),
              Box({0, -2, 0}, {10, 0, 10}));
    // A full disc of two half arcs reaches ±r on both in-plane axes.
    const Contour disc = Chain({Arc({0, -3}, {0, 3}, {0, 0}, true), Arc({0, 3}, {0, -3}, {0, 0}, true)});
    EXPECT_EQ(tqSolidDefinitionBoundingBox::Of(*TurningPlaneExtruded({disc}, 1)), Box({-3, -1, -3}, {3, 0, 3}));
    EXPECT_FALSE(tqSolidDefinitionBoundingBox::Of(cadcam::tqExtrudedSolidDefinition<double>(kMetric)).IsInitialized());
    EXPECT_THROW_CODE(tqSolidDefinitionBoundingBox::Of(
                          cadcam::tqExtrudedSolidDefinition<double>(kMetric, {0, 0, 1}, 0, {0, 0, 0}, {disc})),
                      cadcam::tqcadcamException, 2171, u"Couldn't handle extruded solid definition");
}

TEST(tqSolidDefinitionBoundingBox, WireAndMesh) {
    EXPECT_EQ(tqSolidDefinitionBoundingBox::Of(cadcam::tqWireSolidDefinition<double>(kMetric, 0.5, 30, false)),
              Box({-0.25, -0.25, 0}, {0.25, 0.25, 30}));
    EXPECT_THROW_CODE(tqSolidDefinitionBoundingBox::Of(cadcam::tqWireSolidDefinition<double>(kMetric, 0.5, 30, true)),
                      cadcam::tqcadcamException, 2174, u"Couldn't handle infinite wire solid definition");
    EXPECT_EQ(tqSolidDefinitionBoundingBox::Of(*EverySolidKind()[4].second), Box({0, 0, 0}, {1, 1, 1}));
    EXPECT_FALSE(tqSolidDefinitionBoundingBox::Of(cadcam::tqMeshSolidDefinition<double>(kMetric)).IsInitialized());
}

TEST(tqSolidDefinitionBoundingBox, TurningHoldersSpanZeroToHeightAndMirrorForTheLeftHand) {
    const struct {
        SolidPointer holder;
        tq3dBoundingBox box;
    } cases[] = {
        {Holder(Turning::GENERIC_TYPE_A, Turning::H_RIGHT, {25, 25, 32, 32}), Box({0, -25, 0}, {32, 0, 125})},
        {Holder(Turning::GENERIC_TYPE_A, Turning::H_LEFT, {25, 25, 32, 32}), Box({-32, -25, 0}, {0, 0, 125})},
        {Holder(Turning::GENERIC_TYPE_D, Turning::H_RIGHT, {25, 25, 20, 32, 20, 20, 10}),
         Box({0, -25, 0}, {32, 0, 125})},
        {Holder(Turning::GENERIC_TYPE_F, Turning::H_RIGHT, {25, 20, 20, 0, 4, 20, 10}, 90),
         Box({-12.5, -20, 0}, {12.5, 0, 90})},
    };
    for (const auto& c : cases) EXPECT_EQ(tqSolidDefinitionBoundingBox::Of(*c.holder), c.box);

    Turning unknown(kMetric);
    unknown.SetType(static_cast<Turning::Type>(7));
    EXPECT_THROW_CODE(tqSolidDefinitionBoundingBox::Of(unknown), cadcam::tqcadcamException, 2030,
                      u"Could not handle turning solid definition.");
}

TEST(tqSolidDefinitionBoundingBox, ContourTurningSolidIsItsContourOverMinusHeightToZero) {
    const Contour contour = Polygon({{-1, 0}, {4, 2}, {3, 7}, {-2, 6}});
    using ContourSolid = cadcam::tqContourTurningSolidDefinition<double>;
    EXPECT_EQ(
        tqSolidDefinitionBoundingBox::Of(ContourSolid(kMetric, 3, Turning::H_RIGHT, Turning::SK_RECTANGULAR, contour)),
        Box({-2, -3, 0}, {4, 0, 7}));
    EXPECT_EQ(
        tqSolidDefinitionBoundingBox::Of(ContourSolid(kMetric, 3, Turning::H_LEFT, Turning::SK_RECTANGULAR, contour)),
        Box({-4, -3, 0}, {2, 0, 7}));
}

}  // namespace
