// Mesh: a shared triangle mesh, equal by element counts, with the null rules.
#include "tqWorkRig/model/mesh.h"

#include "support/tqtest.h"

using cadcam::tqTPoint3d;
using tqWorkRig::Mesh;

namespace {
Mesh::MeshPointer Triangle(double z) {
    Mesh::MeshPointer mesh(new cadcam::tqTMesh<double>());
    mesh->AddTriangle(tqTPoint3d<double>(0, 0, z), tqTPoint3d<double>(1, 0, z), tqTPoint3d<double>(0, 1, z),
                      tqTPoint3d<double>(0, 0, 1));
    return mesh;
}
}  // namespace

TEST(Mesh, CopiesShareTheMeshAndMeshesOfEqualCountsAreEqual) {
    Mesh a(Triangle(0), u"m");
    const Mesh copy(a), b(Triangle(100), u"m");
    EXPECT_EQ(copy.GetMesh().Get(), a.GetMesh().Get());
    EXPECT_TRUE(a == b);
    a.GetMesh()->AddTriangle(0, 1, 2, tqTPoint3d<double>());
    EXPECT_EQ(copy.GetMesh()->GetTriangleCount(), 2u);
    EXPECT_FALSE(a == b);
    a.SetMesh(Triangle(5));
    a.Red(3);
    EXPECT_FALSE(a == b);
}

TEST(Mesh, NullMeshesAreEqualOnlyToNull) {
    const Mesh empty1(u"m"), empty2(u"m"), full(Triangle(0), u"m");
    EXPECT_TRUE(empty1.GetMesh().IsNull());
    EXPECT_TRUE(empty1 == empty2);
    EXPECT_FALSE(empty1 == full);
    EXPECT_FALSE(full == empty1);
    EXPECT_TRUE(full != empty2);
}
