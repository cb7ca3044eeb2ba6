// One solid of every kind for the geometry tests.
#include "geometrysamples.h"

namespace tqtest {
namespace geo {

std::vector<std::pair<std::string, SolidPointer>> EverySolidKind() {
    misc::tqAutoPointer<cadcam::tqTMesh<double>> tetrahedron(new cadcam::tqTMesh<double>(kMetric));
    for (const cadcam::tqPoint3d& p : {cadcam::tqPoint3d(0, 0, 0), {1, 0, 0}, {0, 1, 0}, {0, 0, 1}})
        tetrahedron->AddVertex(p);
    for (const auto& t : {std::array<std::uint32_t, 3>{0, 2, 1}, {0, 1, 3}, {0, 3, 2}, {1, 2, 3}})
        tetrahedron->AddTriangle(t[0], t[1], t[2], {0, 0, 0});
    const Contour insert = Chain(
        {Line({0, 0}, {6, 4}), Line({6, 4}, {6, 12}), Line({6, 12}, {-2, 12}), Arc({-2, 12}, {0, 0}, {2, 6.5}, true)});
    return {
        {"revolved", Revolved(BulgingProfile())},
        {"revolved from the axis with a tip ball",
         Revolved(Chain({Arc({0, 0}, {3, 3}, {0, 3}, true), Line({3, 3}, {3, 9}), Line({3, 9}, {1, 12})}))},
        {"extruded with a hole", TurningPlaneExtruded(PlateWithHole(), 2)},
        {"extruded on a tilted plane against its normal", SolidPointer(new cadcam::tqExtrudedSolidDefinition<double>(
                                                              kMetric, {0, 0, -3}, 1.5, {1, 1, 1}, PlateWithHole()))},
        {"mesh", SolidPointer(new cadcam::tqMeshSolidDefinition<double>(kMetric, tetrahedron))},
        {"wire", SolidPointer(new cadcam::tqWireSolidDefinition<double>(kMetric, 0.3, 40, false))},
        {"turning a, right", Holder(Turning::GENERIC_TYPE_A, Turning::H_RIGHT, {25, 25, 32, 32})},
        {"turning b, left", Holder(Turning::GENERIC_TYPE_B, Turning::H_LEFT, {25, 25, 32, 32, 20})},
        {"turning d", Holder(Turning::GENERIC_TYPE_D, Turning::H_RIGHT, {25, 25, 20, 32, 20, 20, 10})},
        {"turning f, left", Holder(Turning::GENERIC_TYPE_F, Turning::H_LEFT, {25, 25, 20, 0, 4, 20, 10})},
        {"turning g", Holder(Turning::GENERIC_TYPE_G, Turning::H_RIGHT, {25, 25, 32})},
        {"turning bore c", Holder(Turning::BORE_TYPE_C, Turning::H_RIGHT, {20, 20, 20, 25, 15, 10, 10, 40, 50})},
        {"contour turning, left", SolidPointer(new cadcam::tqContourTurningSolidDefinition<double>(
                                      kMetric, 5, Turning::H_LEFT, Turning::SK_RECTANGULAR, insert))},
    };
}

}  // namespace geo
}  // namespace tqtest
