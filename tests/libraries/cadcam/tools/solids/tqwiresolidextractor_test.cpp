// tqWireSolidExtractor: yields a tqWireSolidDefinition and refuses every other kind with 2173.
#include "cadcam/tools/solids/tqwiresolidextractor.h"

#include "solidsamples.h"

namespace {

TEST(tqWireSolidExtractor, YieldsItsKindAndRefusesTheOthers) {
    tqtest::ExpectExtractsOnly<cadcam::tqWireSolidExtractor, cadcam::tqWireSolidDefinition>(
        cadcam::SDT_WIRE, 2173, u"Couldn't handle wire solid definition");
}

}  // namespace
