// tqMeshSolidDefinition: an own empty mesh, a shared one, the null mesh refused, and scaling a copy.
#include "cadcam/tools/solids/tqmeshsoliddefinition.h"

#include "solidsamples.h"

namespace {

using Mesh = cadcam::tqMeshSolidDefinition<double>;

TEST(tqMeshSolidDefinition, AUnitAloneGivesAnEmptyMeshOfItsOwn) {
    const Mesh a(tqtest::kMetric), b(tqtest::kMetric);
    ASSERT_TRUE(a.GetMesh().IsNotNull());
    EXPECT_EQ(a.GetMesh()->GetTriangleCount(), 0u);
    EXPECT_NE(a.GetMesh().Get(), b.GetMesh().Get());
    EXPECT_EQ(a, b);
}

TEST(tqMeshSolidDefinition, SharesTheMeshGivenScalesACopyAndRefusesANullOne) {
    const Mesh::MeshPointer mesh(new cadcam::tqTMesh<double>());
    mesh->AddTriangle({0, 0, 0}, {10, 0, 0}, {0, 10, 0}, {0, 0, 1});
    Mesh solid(tqtest::kMetric, mesh);
    EXPECT_EQ(Mesh(solid).GetMesh().Get(), mesh.Get());
    EXPECT_NE(solid, Mesh(tqtest::kMetric));
    EXPECT_NE(solid, Mesh(tqtest::kInch, mesh));
    solid.SetUnits(tqtest::kInch);
    EXPECT_NE(solid.GetMesh().Get(), mesh.Get());
    EXPECT_DOUBLE_EQ(solid.GetMesh()->Corner(0, 1).x, 10 / 25.4);
    EXPECT_EQ(mesh->Corner(0, 1).x, 10);
    EXPECT_THROW_MSG(Mesh(tqtest::kMetric, Mesh::MeshPointer()), misc::tqException, u"Accessing TQ_NULL pointer");
}

}  // namespace
