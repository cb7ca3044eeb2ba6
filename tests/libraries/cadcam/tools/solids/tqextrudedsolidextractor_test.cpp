// tqExtrudedSolidExtractor: yields a tqExtrudedSolidDefinition and refuses every other kind with 2171.
#include "cadcam/tools/solids/tqextrudedsolidextractor.h"

#include "solidsamples.h"

namespace {

TEST(tqExtrudedSolidExtractor, YieldsItsKindAndRefusesTheOthers) {
    tqtest::ExpectExtractsOnly<cadcam::tqExtrudedSolidExtractor, cadcam::tqExtrudedSolidDefinition>(
        cadcam::SDT_EXTRUDED, 2171, u"Couldn't handle extruded solid definition");
}

}  // namespace
