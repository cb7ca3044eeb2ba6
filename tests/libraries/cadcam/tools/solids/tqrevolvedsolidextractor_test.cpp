// tqRevolvedSolidExtractor: yields a tqRevolvedSolidDefinition and refuses every other kind with 2170.
#include "cadcam/tools/solids/tqrevolvedsolidextractor.h"

#include "solidsamples.h"

namespace {

TEST(tqRevolvedSolidExtractor, YieldsItsKindAndRefusesTheOthers) {
    tqtest::ExpectExtractsOnly<cadcam::tqRevolvedSolidExtractor, cadcam::tqRevolvedSolidDefinition>(
        cadcam::SDT_REVOLVED, 2170, u"Couldn't handle revolved solid definition");
}

// Every extractor is made the same way; this one stands for all.
TEST(tqRevolvedSolidExtractor, AFailedVisitKeepsTheSolid) {
    const auto solids = tqtest::OneOfEachKind<double>();
    cadcam::tqRevolvedSolidExtractor<double> extractor(*solids[cadcam::SDT_REVOLVED]);
    EXPECT_THROW(solids[cadcam::SDT_MESH]->AcceptVisitor(extractor), cadcam::tqcadcamException);
    EXPECT_EQ(static_cast<const void*>(&extractor.GetSolid()),
              static_cast<const void*>(solids[cadcam::SDT_REVOLVED].Get()));
}

}  // namespace
