// tqMeshSolidDefinition: an own empty mesh, a shared one, the null mesh refused, and scaling a copy.
#include "cadcam/tools/solids/tqmeshsoliddefinition.h"

#include "solidsamples.h"

namespace {

using cadcam::tqMeshSolidDefinition;
using MeshPointer = tqMeshSolidDefinition<double>::MeshPointer;

MeshPointer OneTriangle() {
    MeshPointer mesh(new cadcam::tqTMesh<double>());
    mesh->AddTriangle({0, 0, 0}, {10, 0, 0}, {0, 10, 0}, {0, 0, 1});
    return mesh;
}

TEST(tqMeshSolidDefinition, AUnitAloneGivesAnEmptyMeshOfItsOwn) {
    const tqMeshSolidDefinition<double> a(tqtest::kMetric), b(tqtest::kMetric);
    ASSERT_TRUE(a.GetMesh().IsNotNull());
    EXPECT_EQ(a.GetMesh()->GetTriangleCount(), 0u);
    EXPECT_NE(a.GetMesh().Get(), b.GetMesh().Get());
    EXPECT_EQ(a, b);
}

TEST(tqMeshSolidDefinition, SharesTheMeshGivenAndRefusesANullOne) {
    const MeshPointer mesh = OneTriangle();
    const tqMeshSolidDefinition<double> solid(tqtest::kMetric, mesh);
    EXPECT_EQ(solid.GetMesh().Get(), mesh.Get());
    EXPECT_EQ(tqMeshSolidDefinition<double>(solid).GetMesh().Get(), mesh.Get());
    EXPECT_NE(solid, tqMeshSolidDefinition<double>(tqtest::kMetric));
    EXPECT_NE(solid, tqMeshSolidDefinition<double>(tqtest::kInch, mesh));
    EXPECT_THROW_MSG(tqMeshSolidDefinition<double>(tqtest::kMetric, MeshPointer()), misc::tqException,
                     u"Accessing TQ_NULL pointer");
}

TEST(tqMeshSolidDefinition, SetUnitsScalesACopyOfTheSharedMesh) {
    const MeshPointer mesh = OneTriangle();
    tqMeshSolidDefinition<double> solid(tqtest::kMetric, mesh);
    solid.SetUnits(tqtest::kInch);
    EXPECT_NE(solid.GetMesh().Get(), mesh.Get());
    EXPECT_DOUBLE_EQ(solid.GetMesh()->Corner(0, 1).x, 10 / 25.4);
    EXPECT_EQ(mesh->Corner(0, 1).x, 10);
}

}  // namespace
