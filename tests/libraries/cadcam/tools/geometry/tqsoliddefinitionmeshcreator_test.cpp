// tqSolidDefinitionMeshCreator: every solid kind gives a closed outward mesh with shared vertices, arcs cut by the
// chord tolerance, and the failures of unusable tolerances and solids.
#include "cadcam/tools/geometry/tqsoliddefinitionmeshcreator.h"

#include <cmath>

#include "cadcam/geometry/tqangle.h"
#include "cadcam/tools/geometry/tqtooltogenerictoolconverter.h"
#include "cadcam/tools/other/tqgenerictool.h"
#include "cadcam/tools/parts/tqtoolpartdefinition.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "geometrysamples.h"
#include "meshchecks.h"
#include "support/tqtest.h"
#include "toolsamples.h"

namespace {

using cadcam::tqSolidDefinitionMeshCreator;
using namespace tqtest::geo;

misc::tqAutoPointer<cadcam::tqTMesh<double>> MeshOf(const cadcam::tqSolidDefinition<double>& solid, double absTol = 0.0,
                                                    double relTol = 0.01) {
    return tqSolidDefinitionMeshCreator::Create(solid, absTol, relTol);
}

TEST(tqSolidDefinitionMeshCreator, EverySolidKindIsClosedOutwardAndSharesVertices) {
    for (const auto& sample : EverySolidKind()) {
        SCOPED_TRACE(sample.first);
        const auto mesh = MeshOf(*sample.second);
        EXPECT_GT(mesh->GetTriangleCount(), 0u);
        EXPECT_EQ(tqtest::MeshDefects(*mesh), "");
    }
    for (const auto& entry : tqtest::AllSamples()) {
        SCOPED_TRACE(entry.first.name());
        const auto generic = cadcam::tqToolToGenericToolConverter::Convert(*entry.second.tool);
        for (const auto* group : {&generic->GetHolderGroup(), &generic->GetArborGroup(), &generic->GetNonCuttingGroup(),
                                  &generic->GetCuttingGroup()})
            for (const auto& element : *group) {
                const auto mesh = MeshOf(*element.m_part->GetSolid());
                if (mesh->GetTriangleCount() > 0) {
                    EXPECT_EQ(tqtest::MeshDefects(*mesh), "");
                }
            }
    }
}

TEST(tqSolidDefinitionMeshCreator, ACylinderHas23SegmentsAtTheLibrarysTolerance) {
    const auto cylinder = Revolved(Chain({Line({0, 0}, {4, 0}), Line({4, 0}, {4, 10})}));
    const auto mesh = MeshOf(*cylinder);
    // Two axis vertices and two rings; each ring segment gives a bottom, two side and a top triangle.
    EXPECT_EQ(mesh->GetVertexCount(), 2u + 2 * 23);
    EXPECT_EQ(mesh->GetTriangleCount(), 4u * 23);
    EXPECT_NEAR(tqtest::SignedVolume(*mesh), 23 * 16 * std::sin(2 * cadcam::tqPi<double> / 23) / 2 * 10, 1e-9);
    // The finer of the two tolerances wins, and a turn never has fewer than 8 steps.
    EXPECT_GT(MeshOf(*cylinder, 0.001, 0.01)->GetVertexCount(), mesh->GetVertexCount());
    EXPECT_EQ(MeshOf(*cylinder, 1.0, 0.0)->GetVertexCount(), 2u + 2 * 8);
}

TEST(tqSolidDefinitionMeshCreator, ArcsAreCutIntoEqualStepsAndHolesAreLeftOut) {
    // A quarter arc of radius 5 at 1%: Δ = 16.22°, so 6 equal steps; the prism is the inscribed fan.
    const auto quarter = MeshOf(*TurningPlaneExtruded(
        {Chain({Line({0, 0}, {5, 0}), Arc({5, 0}, {0, 5}, {0, 0}, true), Line({0, 5}, {0, 0})})}, 1));
    EXPECT_EQ(quarter->GetVertexCount(), 2u * (7 + 1));
    EXPECT_NEAR(tqtest::SignedVolume(*quarter), 6 * 25 * std::sin(cadcam::tqPi<double> / 12) / 2, 1e-9);

    const auto plate = MeshOf(
        *TurningPlaneExtruded({Polygon({{0, 0}, {10, 0}, {10, 10}, {0, 10}}), Polygon({{3, 3}, {6, 3}, {6, 6}, {3, 6}}),
                               Polygon({{7, 7}, {9, 7}, {9, 9}, {7, 9}})},
                              2));
    EXPECT_EQ(tqtest::MeshDefects(*plate), "");
    EXPECT_NEAR(tqtest::SignedVolume(*plate), (100 - 9 - 4) * 2, 1e-9);
}

TEST(tqSolidDefinitionMeshCreator, EmptySolidsGiveNoTrianglesAndMeshesAreCopied) {
    EXPECT_EQ(MeshOf(cadcam::tqRevolvedSolidDefinition<double>(kMetric))->GetTriangleCount(), 0u);
    EXPECT_EQ(MeshOf(cadcam::tqExtrudedSolidDefinition<double>(kMetric))->GetTriangleCount(), 0u);
    EXPECT_EQ(MeshOf(Turning(kMetric))->GetTriangleCount(), 0u);  // all letters 0
    const auto solids = EverySolidKind();
    const auto& meshSolid = static_cast<const cadcam::tqMeshSolidDefinition<double>&>(*solids[4].second);
    const auto copy = MeshOf(meshSolid);
    EXPECT_NE(copy->GetVertices().Get(), meshSolid.GetMesh()->GetVertices().Get());
    EXPECT_EQ(*copy->GetVertices(), *meshSolid.GetMesh()->GetVertices());
}

TEST(tqSolidDefinitionMeshCreator, Failures) {
    EXPECT_THROW_CODE(tqSolidDefinitionMeshCreator(0.0, 0.0), cadcam::tqcadcamException, 2177,
                      u"Couldn't handle solid definition");
    EXPECT_THROW_CODE(tqSolidDefinitionMeshCreator(-1.0, NAN), cadcam::tqcadcamException, 2177,
                      u"Couldn't handle solid definition");
    EXPECT_THROW_CODE(MeshOf(cadcam::tqWireSolidDefinition<double>(kMetric, 0.3, 40, true)), cadcam::tqcadcamException,
                      2174, u"Couldn't handle infinite wire solid definition");
    const cadcam::tqExtrudedSolidDefinition<double> flat(kMetric, {1, 0, 0}, 0, {0, 0, 1}, PlateWithHole());
    EXPECT_THROW_CODE(MeshOf(flat), cadcam::tqcadcamException, 2171, u"Couldn't handle extruded solid definition");
}

TEST(MeshChecks, TellFlippedInvertedAndUnsharedMeshes) {
    const auto tetrahedron = MeshOf(*EverySolidKind()[4].second);
    auto flipped = tetrahedron->Clone(), inverted = tetrahedron->Clone();
    std::swap((*flipped.GetTriangles())[0].v[1], (*flipped.GetTriangles())[0].v[2]);
    for (auto& t : *inverted.GetTriangles()) std::swap(t.v[1], t.v[2]);
    cadcam::tqTMesh<double> soup(kMetric);
    for (std::size_t t = 0; t < tetrahedron->GetTriangleCount(); ++t)
        soup.AddTriangle(tetrahedron->Corner(t, 0), tetrahedron->Corner(t, 1), tetrahedron->Corner(t, 2), {0, 0, 0});
    EXPECT_NE(tqtest::MeshDefects(flipped), "");
    EXPECT_NE(tqtest::MeshDefects(inverted), "");
    EXPECT_NE(tqtest::MeshDefects(soup), "");
}

}  // namespace
