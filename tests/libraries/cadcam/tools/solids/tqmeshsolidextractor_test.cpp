// tqMeshSolidExtractor: yields a tqMeshSolidDefinition and refuses every other kind with 2172.
#include "cadcam/tools/solids/tqmeshsolidextractor.h"

#include "solidsamples.h"

namespace {

TEST(tqMeshSolidExtractor, YieldsItsKindAndRefusesTheOthers) {
    tqtest::ExpectExtractsOnly<cadcam::tqMeshSolidExtractor, cadcam::tqMeshSolidDefinition>(
        cadcam::SDT_MESH, 2172, u"Couldn't handle mesh solid definition");
}

}  // namespace
