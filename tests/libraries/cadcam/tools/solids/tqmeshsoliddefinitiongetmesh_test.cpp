// tqMeshSolidDefinitionGetMesh: the shared mesh of a mesh solid; every other kind is refused with 2172.
#include "cadcam/tools/solids/tqmeshsoliddefinitiongetmesh.h"

#include "solidsamples.h"

namespace {

using cadcam::tqMeshSolidDefinitionGetMesh;

template <class T>
void ExpectOnlyMeshSolidsGiveAMesh() {
    const auto solids = tqtest::OneOfEachKind<T>();
    for (std::size_t k = 0; k < solids.size(); ++k) {
        SCOPED_TRACE("kind " + std::to_string(k));
        if (k == cadcam::SDT_MESH) {
            const auto& meshSolid = static_cast<const cadcam::tqMeshSolidDefinition<T>&>(*solids[k]);
            EXPECT_EQ(tqMeshSolidDefinitionGetMesh<T>::Get(*solids[k]).Get(), meshSolid.GetMesh().Get());
        } else {
            EXPECT_THROW_CODE(tqMeshSolidDefinitionGetMesh<T>::Get(*solids[k]), cadcam::tqcadcamException, 2172,
                              u"Couldn't handle mesh solid definition");
        }
    }
    EXPECT_THROW_CODE(tqMeshSolidDefinitionGetMesh<T>::Get(tqtest::AbstractOnlySolid<T>()), cadcam::tqcadcamException,
                      2177, u"Couldn't handle solid definition");
}

TEST(tqMeshSolidDefinitionGetMesh, SharesTheMeshOfAMeshSolidOnly) {
    ExpectOnlyMeshSolidsGiveAMesh<double>();
    ExpectOnlyMeshSolidsGiveAMesh<float>();
    // A failed visit keeps the mesh found before.
    const auto solids = tqtest::OneOfEachKind<double>();
    tqMeshSolidDefinitionGetMesh<double> getter(*solids[cadcam::SDT_MESH]);
    EXPECT_THROW(solids[cadcam::SDT_REVOLVED]->AcceptVisitor(getter), cadcam::tqcadcamException);
    ASSERT_TRUE(getter.GetMesh().IsNotNull());
    EXPECT_EQ(getter.GetMesh()->GetTriangleCount(), 1u);
}

}  // namespace
