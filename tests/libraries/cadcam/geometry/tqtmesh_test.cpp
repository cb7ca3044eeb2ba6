// tqTMesh: equality by array lengths only, shared arrays on copy, deep Clone, and scaling with the unit system.
#include "cadcam/geometry/tqtmesh.h"

#include "support/tqtest.h"

using cadcam::tqPoint3d;
using measures::tqUnitsFactory;
using Mesh = cadcam::tqTMesh<double>;

namespace {

Mesh OneTriangle(double size) {
    Mesh mesh;
    mesh.AddTriangle(tqPoint3d(0, 0, 0), tqPoint3d(size, 0, 0), tqPoint3d(0, size, 0), tqPoint3d(0, 0, 1));
    return mesh;
}

}  // namespace

TEST(TqTMesh, EqualityIsByCountsAndANullArrayFails) {
    EXPECT_EQ(OneTriangle(1), OneTriangle(1000));
    EXPECT_EQ(Mesh(), Mesh(tqUnitsFactory::Inch));
    Mesh twoTriangles = OneTriangle(1), extraVertex = OneTriangle(1), noVertices = OneTriangle(1),
         noTriangles = OneTriangle(1);
    twoTriangles.AddTriangle(0, 1, 2, tqPoint3d(0, 0, -1));  // a triangle more, no vertex more
    extraVertex.AddVertex(tqPoint3d(5, 5, 5));
    EXPECT_NE(OneTriangle(1), twoTriangles);
    EXPECT_NE(OneTriangle(1), extraVertex);
    noVertices.GetVertices() = misc::tqAutoPointer<std::vector<tqPoint3d>>();
    noTriangles.GetTriangles() = misc::tqAutoPointer<std::vector<Mesh::Triangle>>();
    for (const Mesh* broken : {&noVertices, &noTriangles}) {
        EXPECT_THROW_MSG((void)(*broken == OneTriangle(1)), misc::tqException, "Accessing TQ_NULL pointer");
        EXPECT_THROW_MSG((void)(OneTriangle(1) == *broken), misc::tqException, "Accessing TQ_NULL pointer");
    }
}

TEST(TqTMesh, CopySharesTheArraysAndCloneDoesNot) {
    Mesh original = OneTriangle(2);
    const Mesh copy = original;
    const Mesh clone = original.Clone();
    EXPECT_EQ(clone.Corner(0, 1), tqPoint3d(2, 0, 0));
    EXPECT_EQ(clone.GetUnits(), original.GetUnits());
    original.AddTriangle(tqPoint3d(1, 1, 1), tqPoint3d(2, 2, 2), tqPoint3d(3, 3, 3), tqPoint3d(0, 0, 1));
    EXPECT_EQ(copy.GetTriangleCount(), 2u);
    EXPECT_EQ(copy.GetVertexCount(), 6u);
    EXPECT_EQ(clone.GetTriangleCount(), 1u);
    EXPECT_EQ(clone.GetVertexCount(), 3u);
}

TEST(TqTMesh, ChangingUnitsScalesTheVertices) {
    Mesh mesh = OneTriangle(25.4);
    const Mesh shared = mesh;  // shares the vertex array, so it sees the scaling
    mesh.SetUnits(tqUnitsFactory::Inch);
    EXPECT_EQ(mesh.GetUnits(), tqUnitsFactory::Inch);
    EXPECT_EQ(mesh.Corner(0, 1), tqPoint3d(25.4 * (1.0 / 25.4), 0, 0));
    EXPECT_EQ(shared.Corner(0, 2).y, 25.4 * (1.0 / 25.4));
    EXPECT_EQ(shared.GetUnits(), tqUnitsFactory::Metric);  // the units field is the object's own
    mesh.SetUnits(tqUnitsFactory::Metric);
    EXPECT_EQ(mesh.Corner(0, 1).x, 25.4 * (1.0 / 25.4) * 25.4);
    mesh.SetUnits(tqUnitsFactory::Inch, true);
    EXPECT_EQ(mesh.Corner(0, 1).x, 25.4 * (1.0 / 25.4) * 25.4);
}
