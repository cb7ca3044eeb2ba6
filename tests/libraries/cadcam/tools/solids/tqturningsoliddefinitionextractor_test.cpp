// tqTurningSolidDefinitionExtractor: yields a tqTurningSolidDefinition and refuses every other kind with 2030.
#include "cadcam/tools/solids/tqturningsoliddefinitionextractor.h"

#include "solidsamples.h"

namespace {

TEST(tqTurningSolidDefinitionExtractor, YieldsItsKindAndRefusesTheOthers) {
    tqtest::ExpectExtractsOnly<cadcam::tqTurningSolidDefinitionExtractor, cadcam::tqTurningSolidDefinition>(
        cadcam::SDT_TURNING, 2030, u"Could not handle turning solid definition.");
}

}  // namespace
