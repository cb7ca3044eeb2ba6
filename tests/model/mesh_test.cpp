// Mesh: a shared triangle mesh, equal by element counts, with the null rules.
#include "tqWorkRig/model/mesh.h"

#include "support/tqtest.h"

using cadcam::tqTMesh;
using cadcam::tqTPoint3d;
using tqWorkRig::Mesh;

namespace {
Mesh::MeshPointer Triangle(double z) {
    Mesh::MeshPointer mesh(new tqTMesh<double>());
    mesh->AddTriangle(tqTPoint3d<double>(0, 0, z), tqTPoint3d<double>(1, 0, z), tqTPoint3d<double>(0, 1, z),
                      tqTPoint3d<double>(0, 0, 1));
    return mesh;
}
}  // namespace

TEST(Mesh, CopiesShareTheMesh) {
    EXPECT_TRUE(Mesh(u"m").GetMesh().IsNull());
    const Mesh source(Triangle(0), u"m");
    Mesh copy(source);
    EXPECT_EQ(copy.GetMesh().Get(), source.GetMesh().Get());
    copy.GetMesh()->AddVertex({});
    EXPECT_EQ(source.GetMesh()->GetVertexCount(), 4u);
}

TEST(Mesh, DifferentMeshesOfEqualCountsAreEqual) {
    Mesh a(Triangle(0), u"m");
    const Mesh b(Triangle(100), u"m");
    EXPECT_TRUE(a == b);
    a.GetMesh()->AddTriangle(0, 1, 2, tqTPoint3d<double>());
    EXPECT_FALSE(a == b);
    a.SetMesh(Triangle(5));
    a.Red(3);
    EXPECT_FALSE(a == b);
}

TEST(Mesh, NullMeshesAreEqualOnlyToNull) {
    const Mesh empty1(u"m");
    const Mesh empty2(u"m");
    const Mesh full(Triangle(0), u"m");
    EXPECT_TRUE(empty1 == empty2);
    EXPECT_FALSE(empty1 == full);
    EXPECT_FALSE(full == empty1);
    EXPECT_TRUE(full != empty2);
}
