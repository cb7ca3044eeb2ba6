// tqThreadTapTool: thread type, pitch, TPI and hand, each rule at its boundary.
#include "cadcam/tools/revolved/tqthreadtaptool.h"

#include "revolvedtest.h"

namespace {

using cadcam::tqThreadTapTool;
using namespace revolvedtest;

struct P {
    double d = 10, lf = 20, ls = 30;
    int type = tqThreadTapTool::TT_PITCH;
    double pitch = 1.5;
    int tpi = 16;
    int direction = tqThreadTapTool::TD_RIGHT_HANDED;
};
tqThreadTapTool Make(const P& p) {
    return tqThreadTapTool(kMetric, {}, {}, p.d, p.lf, p.ls, static_cast<tqThreadTapTool::ThreadType>(p.type), p.pitch,
                           p.tpi, static_cast<tqThreadTapTool::ThreadDirection>(p.direction));
}

const char* const kType = "Invalid thread type for ThreadTap tool";
const char* const kPitch = "Pitch of ThreadTap tool must be greater than 0.";
const char* const kTpi = "TPI of ThreadTap tool must be integer value greater than 0.";
const char* const kDirection = "Invalid thread direction for ThreadTap tool";

TEST(tqThreadTapTool, RulesFireAtTheirBoundariesInOrder) {
    // The stored numbers of the kinds.
    EXPECT_EQ(static_cast<int>(tqThreadTapTool::TT_TPI), 1);
    EXPECT_EQ(static_cast<int>(tqThreadTapTool::TD_LEFT_HANDED), 0);
    ExpectRules<P>({{[](P& p) { p.type = 2; }, 3474, kType},
                    {[](P& p) { p.type = -1; }, 3474, kType},
                    {[](P& p) { p.pitch = 0; }, 3467, kPitch},
                    {[](P& p) { p.pitch = kNaN; }, 3467, kPitch},
                    {[](P& p) { p.type = tqThreadTapTool::TT_TPI, p.tpi = 0; }, 3475, kTpi},
                    {[](P& p) { p.direction = 2; }, 3472, kDirection},
                    {[](P& p) { p.direction = -1; }, 3472, kDirection},
                    // The first broken rule decides; the common ones come first.
                    {[](P& p) { p.d = 0, p.type = 2; }, 2105, "Invalid tool diameter"},
                    {[](P& p) { p.type = 2, p.pitch = 0, p.direction = 2; }, 3474, kType},
                    {[](P& p) { p.pitch = 0, p.direction = 2; }, 3467, kPitch},
                    {[](P& p) { p.type = tqThreadTapTool::TT_TPI, p.tpi = 0, p.direction = 2; }, 3475, kTpi}},
                   // Only the value the type names is checked.
                   {[](P& p) { p.pitch = kTiny; }, [](P& p) { p.tpi = 0; },
                    [](P& p) { p.type = tqThreadTapTool::TT_TPI, p.tpi = 1, p.pitch = 0; },
                    [](P& p) { p.direction = tqThreadTapTool::TD_LEFT_HANDED; }},
                   Make);
}

}  // namespace
