// tqBarrelTangentMill: parameters read back, the default extender, and every rule at its boundary.
#include "cadcam/tools/barrel/tqbarreltangentmill.h"

#include <gtest/gtest.h>

#include <cmath>

#include "barreltest.h"

namespace {

using barreltest::Down;
using barreltest::RaisedBy;
using barreltest::Up;
using Mill = cadcam::tqBarrelTangentMill;

struct Params {
    double d = 10, lf = 20, ls = 40, du = 8, rp = 12, rl = 2;
};

Mill Make(const Params& p) { return Mill(measures::tqUnitsFactory::Metric, {}, {}, p.d, p.lf, p.ls, p.du, p.rp, p.rl); }

// Whole numbers throughout: the barrel's centre (−15, 35), the ball's centre (0, 15) 25 inside it, and the
// upper diameter 18 reached at the height 67.
Params Exact() {
    Params p;
    p.d = 50, p.rp = 40, p.rl = 15, p.du = 18, p.lf = 67, p.ls = 100;
    return p;
}

TEST(tqBarrelTangentMill, ReadsBackItsParametersAndDefaultExtender) {
    const Mill mill = Make(Params());
    EXPECT_EQ(mill.GetDiameter(), 10);
    EXPECT_EQ(mill.GetFluteLength(), 20);
    EXPECT_EQ(mill.GetShoulderLength(), 40);
    EXPECT_EQ(mill.GetUpperDiameter(), 8);
    EXPECT_EQ(mill.GetProfileRadius(), 12);
    EXPECT_EQ(mill.GetLowerRadius(), 2);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender().GetDiameter(), 10);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender().GetLength(), 20);
}

TEST(tqBarrelTangentMill, EachRuleFiresAtItsBoundary) {
    struct Case {
        const char* what;
        void (*change)(Params&);
        bool exact;
        int number;
    };
    const Case cases[] = {
        {"profile radius 0, before 2296", [](Params& p) { p.rp = 0, p.rl = -1; }, false, 2166},
        {"negative lower radius", [](Params& p) { p.rl = -1e-300; }, false, 2296},
        {"no tip ball", [](Params& p) { p.rl = 0; }, false, 0},
        {"tip ball as wide as the tool", [](Params& p) { p.rl = 5; }, false, 2281},
        {"tip ball just narrower", [](Params& p) { p.rl = Down(5); }, false, 0},
        {"profile radius below the tool radius", [](Params& p) { p.rp = Down(5); }, false, 2280},
        {"profile radius = tool radius: a ball", [](Params& p) { p.rp = 5; }, false, 2284},
        {"infinite profile radius", [](Params& p) { p.rp = HUGE_VAL; }, false, 2284},
        {"widest point at the flute length", [](Params& p) { p.lf = 35; }, true, 2298},
        {"widest point above the flutes", [](Params& p) { p.lf = Down(35); }, true, 2297},
        {"upper diameter 0", [](Params& p) { p.du = 0; }, true, 2164},
        {"upper diameter = D", [](Params& p) { p.du = 50; }, true, 0},
        {"upper diameter above D", [](Params& p) { p.du = Up(50); }, true, 2164},
        {"upper diameter reached at the flute length", [](Params&) {}, true, 0},
        {"upper diameter reached above the flutes", [](Params& p) { p.lf = Down(67); }, true, 2298},
    };
    for (const Case& c : cases) {
        Params p = c.exact ? Exact() : Params();
        c.change(p);
        EXPECT_EQ(RaisedBy([&] { Make(p); }), c.number) << c.what;
    }
}

}  // namespace
