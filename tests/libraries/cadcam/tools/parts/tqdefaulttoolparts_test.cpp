// tqDefaultToolParts: the default arbors and holders in both unit systems, and the choice by the tool's class.
#include "cadcam/tools/parts/tqdefaulttoolparts.h"

#include "cadcam/tools/other/tqwiretool.h"
#include "cadcam/tools/revolved/tqendmill.h"
#include "cadcam/tools/solids/tqcontourturningsoliddefinition.h"
#include "cadcam/tools/solids/tqturningsoliddefinition.h"
#include "cadcam/tools/turning/tqcontourturningtool.h"
#include "cadcam/tools/turning/tqgrooveturningtool.h"
#include "cadcam/tools/turning/tqroundturningtool.h"
#include "partsamples.h"

namespace {

using cadcam::tqDefaultToolParts;
using Turning = cadcam::tqTurningSolidDefinition<double>;
using tqtest::kInch;
using tqtest::kMetric;

const cadcam::tq2dContour<double>& ProfileOf(const cadcam::tqToolPartDefinition<double>& part) {
    return dynamic_cast<const cadcam::tqRevolvedSolidDefinition<double>&>(*part.GetSolid()).GetProfile();
}
const Turning& TurningOf(const cadcam::tqToolPartDefinition<double>& part) {
    return dynamic_cast<const Turning&>(*part.GetSolid());
}

/// The end of a profile's last line: its outer top point.
cadcam::tqPoint2d Top(const cadcam::tq2dContour<double>& profile) {
    return dynamic_cast<const cadcam::tq2dLine<double>&>(*profile.GetItem(profile.GetCount() - 1)).GetEnd();
}

TEST(tqDefaultToolParts, MillingPartsAreLineProfilesInEitherUnits) {
    // Building them ran the arbor and holder profile rules.
    EXPECT_EQ(Top(ProfileOf(*tqDefaultToolParts::MillingArbor(kMetric))), cadcam::tqPoint2d(17, 45));
    EXPECT_EQ(Top(ProfileOf(*tqDefaultToolParts::MillingArbor(kInch))), cadcam::tqPoint2d(0.7, 1.75));
    EXPECT_EQ(Top(ProfileOf(*tqDefaultToolParts::MillingHolder(kMetric))), cadcam::tqPoint2d(22, 70));
    EXPECT_EQ(Top(ProfileOf(*tqDefaultToolParts::MillingHolder(kInch))), cadcam::tqPoint2d(0.875, 2.75));
    EXPECT_EQ(tqDefaultToolParts::MillingHolder(kInch)->GetSolid()->GetUnits(), kInch);
    EXPECT_NE(tqDefaultToolParts::MillingArbor(kMetric).Get(), tqDefaultToolParts::MillingArbor(kMetric).Get());
    EXPECT_TRUE(ProfileOf(*tqDefaultToolParts::TurningArbor(kInch)).IsEmpty());
    EXPECT_EQ(tqDefaultToolParts::TurningArbor(kInch)->GetUnits(), kInch);
}

TEST(tqDefaultToolParts, EachTurningHolderValidatesWithItsInsertAndType) {
    const Turning::Type types[] = {Turning::GENERIC_TYPE_A, Turning::GENERIC_TYPE_B, Turning::GENERIC_TYPE_B,
                                   Turning::GENERIC_TYPE_A, Turning::GENERIC_TYPE_A, Turning::GENERIC_TYPE_A,
                                   Turning::GENERIC_TYPE_E, Turning::GENERIC_TYPE_A, Turning::GENERIC_TYPE_F};
    for (auto units : {kMetric, kInch}) {
        for (int insert = 0; insert <= 8; ++insert) {
            SCOPED_TRACE(insert);
            const auto holder = tqDefaultToolParts::TurningHolder(units, insert);
            const Turning& solid = TurningOf(*holder);
            EXPECT_NO_THROW(solid.Validate());
            EXPECT_EQ(solid.GetInsert(), insert);
            EXPECT_EQ(solid.GetType(), types[insert]);
            EXPECT_EQ(solid.GetHeight(), units == kMetric ? 125 : 5);
            EXPECT_EQ(solid.GetHand(), Turning::H_RIGHT);
            EXPECT_EQ(solid.GetUnits(), units);
        }
        EXPECT_TRUE(
            tqDefaultToolParts::ContourTurningHolder(units)->IsEqual(*tqDefaultToolParts::TurningHolder(units, 1)));
    }
    EXPECT_EQ(TurningOf(*tqDefaultToolParts::TurningHolder(kInch, 8)).GetParameter('E'), 0.15);
    const char* text = "Invalid tqTurningSolidDefinition insert type.";
    EXPECT_THROW_CODE(tqDefaultToolParts::TurningHolder(kMetric, 9), cadcam::tqcadcamException, 2264, text);
    EXPECT_THROW_CODE(tqDefaultToolParts::TurningHolder(kInch, -1), cadcam::tqcadcamException, 2264, text);
}

TEST(tqDefaultToolParts, TheToolsClassAndUnitsChooseTheParts) {
    const cadcam::tqEndMill mill(kInch, {}, {}, 0.5, 1, 2);
    EXPECT_TRUE(tqDefaultToolParts::ArborFor(mill)->IsEqual(*tqDefaultToolParts::MillingArbor(kInch)));
    EXPECT_TRUE(tqDefaultToolParts::HolderFor(mill)->IsEqual(*tqDefaultToolParts::MillingHolder(kInch)));
    const cadcam::tqWireTool wire(kMetric, {}, {}, 0.25, 400, true);
    EXPECT_TRUE(tqDefaultToolParts::HolderFor(wire)->IsEqual(*tqDefaultToolParts::MillingHolder(kMetric)));

    const auto holder = tqDefaultToolParts::TurningHolder(kMetric, 0);
    const cadcam::tqRoundTurningTool round(kInch, {}, holder, 0.2, 0.5);
    EXPECT_TRUE(tqDefaultToolParts::ArborFor(round)->IsEqual(*tqDefaultToolParts::TurningArbor(kInch)));
    EXPECT_TRUE(tqDefaultToolParts::HolderFor(round)->IsEqual(*tqDefaultToolParts::TurningHolder(kInch, 6)));
    using Groove = cadcam::tqGrooveTurningTool;
    const Groove groove(kMetric, {}, holder, 4, Groove::TYPE_A, 0.2, 20, 3, 5, 4, 30);
    EXPECT_EQ(TurningOf(*tqDefaultToolParts::HolderFor(groove)).GetInsert(), Turning::IN_GROOVE);

    const cadcam::tqContourTurningTool contour(
        kMetric, {}, holder, 3,
        cadcam::tqContourTurningSolidDefinition<double>(kMetric, 20, Turning::H_RIGHT, Turning::SK_RECTANGULAR,
                                                        tqtest::Profile(0, 0).L(5, 10).L(-5, 10).L(0, 0).Get()));
    EXPECT_TRUE(tqDefaultToolParts::HolderFor(contour)->IsEqual(*tqDefaultToolParts::ContourTurningHolder(kMetric)));
    EXPECT_TRUE(tqDefaultToolParts::ArborFor(contour)->IsEqual(*tqDefaultToolParts::TurningArbor(kMetric)));
}

}  // namespace
