// tqContourTurningSolidDefinitionExtractor: yields a tqContourTurningSolidDefinition and refuses every other kind with
// 3414.
#include "cadcam/tools/solids/tqcontourturningsoliddefinitionextractor.h"

#include "solidsamples.h"

namespace {

TEST(tqContourTurningSolidDefinitionExtractor, YieldsItsKindAndRefusesTheOthers) {
    tqtest::ExpectExtractsOnly<cadcam::tqContourTurningSolidDefinitionExtractor,
                               cadcam::tqContourTurningSolidDefinition>(
        cadcam::SDT_CONTOUR_TURNING, 3414, u"Could not handle a contour turning solid definition.");
}

}  // namespace
