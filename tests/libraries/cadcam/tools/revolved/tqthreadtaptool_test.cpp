// tqThreadTapTool: thread type, pitch, TPI and hand, each rule at its boundary, and what a change of units scales.
#include "cadcam/tools/revolved/tqthreadtaptool.h"

#include "drillingtestutil.h"

namespace {

using cadcam::tqThreadTapTool;
using namespace drillingtest;

struct P {
    double d = 10, lf = 20, ls = 30;
    int type = tqThreadTapTool::TT_PITCH;
    double pitch = 1.5;
    int tpi = 16;
    int direction = tqThreadTapTool::TD_RIGHT_HANDED;
};
P With(void (*change)(P&)) {
    P p;
    change(p);
    return p;
}
tqThreadTapTool Make(const P& p) {
    return tqThreadTapTool(kMetric, {}, {}, p.d, p.lf, p.ls, static_cast<tqThreadTapTool::ThreadType>(p.type), p.pitch,
                           p.tpi, static_cast<tqThreadTapTool::ThreadDirection>(p.direction));
}

const char* const kType = "Invalid thread type for ThreadTap tool";
const char* const kPitch = "Pitch of ThreadTap tool must be greater than 0.";
const char* const kTpi = "TPI of ThreadTap tool must be integer value greater than 0.";
const char* const kDirection = "Invalid thread direction for ThreadTap tool";

TEST(tqThreadTapTool, BuildsReadsBackAndScalesThePitchOnly) {
    tqThreadTapTool tap = Make(P());
    EXPECT_EQ(tap.GetThreadType(), tqThreadTapTool::TT_PITCH);
    EXPECT_EQ(tap.GetPitch(), 1.5);
    EXPECT_EQ(tap.GetTPI(), 16);
    EXPECT_EQ(tap.GetThreadDirection(), tqThreadTapTool::TD_RIGHT_HANDED);
    EXPECT_EQ(tap.GetShoulderDefinitionExtender().GetDiameter(), 10);
    EXPECT_EQ(tap.GetShoulderDefinitionExtender().GetLength(), 20);
    EXPECT_EQ(static_cast<int>(tqThreadTapTool::TT_TPI), 1);
    EXPECT_EQ(static_cast<int>(tqThreadTapTool::TD_LEFT_HANDED), 0);

    tap.SetUnits(kInch);
    EXPECT_EQ(tap.GetPitch(), 1.5 * (1 / 25.4));
    EXPECT_EQ(tap.GetTPI(), 16);
    EXPECT_EQ(tap.GetDiameter(), 10 * (1 / 25.4));
}

TEST(tqThreadTapTool, RulesFireAtTheirBoundariesInOrder) {
    ExpectRules<P>({{With([](P& p) { p.type = 2; }), 3474, kType},
                    {With([](P& p) { p.type = -1; }), 3474, kType},
                    {With([](P& p) { p.pitch = 0; }), 3467, kPitch},
                    {With([](P& p) { p.pitch = kNaN; }), 3467, kPitch},
                    {With([](P& p) { p.type = tqThreadTapTool::TT_TPI, p.tpi = 0; }), 3475, kTpi},
                    {With([](P& p) { p.type = tqThreadTapTool::TT_TPI, p.tpi = -3; }), 3475, kTpi},
                    {With([](P& p) { p.direction = 2; }), 3472, kDirection},
                    {With([](P& p) { p.direction = -1; }), 3472, kDirection},
                    // The first broken rule decides; the common ones come first.
                    {With([](P& p) { p.d = 0, p.type = 2; }), 2105, "Invalid tool diameter"},
                    {With([](P& p) { p.type = 2, p.pitch = 0, p.direction = 2; }), 3474, kType},
                    {With([](P& p) { p.pitch = 0, p.direction = 2; }), 3467, kPitch},
                    {With([](P& p) { p.type = tqThreadTapTool::TT_TPI, p.tpi = 0, p.direction = 2; }), 3475, kTpi}},
                   Make);
    // Only the value the type names is checked.
    ExpectBuilds<P>(
        {With([](P& p) { p.pitch = std::numeric_limits<double>::denorm_min(); }), With([](P& p) { p.tpi = 0; }),
         With([](P& p) { p.type = tqThreadTapTool::TT_TPI, p.tpi = 1, p.pitch = 0; }),
         With([](P& p) { p.direction = tqThreadTapTool::TD_LEFT_HANDED; })},
        Make);
}

}  // namespace
