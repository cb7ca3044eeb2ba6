// tqBarrelTangentMillConicalShaft: parameters read back, the default extender at the shoulder, and the cone's
// rules at their boundaries (the rules it shares with tqBarrelTangentMill are tested there).
#include "cadcam/tools/barrel/tqbarreltangentmillconicalshaft.h"

#include <gtest/gtest.h>

#include "barreltest.h"

namespace {

using barreltest::Down;
using barreltest::RaisedBy;
using Mill = cadcam::tqBarrelTangentMillConicalShaft;

// The barrel's centre (−15, 35), radius 40; at 30° the cone leaves it at (−15 + 40·cos 30°, 55).
struct Params {
    double d = 50, lf = 80, ls = 100, alpha = 30, rp = 40, rl = 15, lc = 10;
};

Mill Make(const Params& p) {
    return Mill(measures::tqUnitsFactory::Metric, {}, {}, p.d, p.lf, p.ls, p.alpha, p.rp, p.rl, p.lc);
}

TEST(tqBarrelTangentMillConicalShaft, ReadsBackItsParametersAndExtenderBaseAtTheShoulder) {
    const Mill mill = Make(Params());
    EXPECT_EQ(mill.GetDiameter(), 50);
    EXPECT_EQ(mill.GetFluteLength(), 80);
    EXPECT_EQ(mill.GetShoulderLength(), 100);
    EXPECT_EQ(mill.GetTaperAngle(), 30);
    EXPECT_EQ(mill.GetProfileRadius(), 40);
    EXPECT_EQ(mill.GetLowerRadius(), 15);
    EXPECT_EQ(mill.GetConeLength(), 10);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender().GetDiameter(), 50);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender().GetLength(), 100);
}

TEST(tqBarrelTangentMillConicalShaft, EachRuleFiresAtItsBoundary) {
    struct Case {
        const char* what;
        void (*change)(Params&);
        int number;
    };
    const Case cases[] = {
        {"shared rules come first", [](Params& p) { p.rp = 25, p.alpha = 0; }, 2284},
        {"widest point above the flutes", [](Params& p) { p.lf = Down(35), p.alpha = 0; }, 2297},
        {"no taper", [](Params& p) { p.alpha = 0; }, 2299},
        {"cone along the axis' normal", [](Params& p) { p.alpha = 90; }, 2299},
        {"negative cone length", [](Params& p) { p.lc = -1e-300; }, 2299},
        {"no cone", [](Params& p) { p.lc = 0; }, 0},
        // The cone ends at the height 65.
        {"cone ends just below the flute length", [](Params& p) { p.lf = 65 * (1 + 1e-12); }, 0},
        {"cone ends just above the flute length", [](Params& p) { p.lf = 65 * (1 - 1e-12); }, 2298},
        // 34.0 leaves the cone's end at x ≈ 0.01, 34.1 takes it past the axis.
        {"cone ends right of the axis", [](Params& p) { p.lc = 34, p.lf = 90; }, 0},
        {"cone crosses the axis", [](Params& p) { p.lc = 34.1, p.lf = 90; }, 2298},
    };
    for (const Case& c : cases) {
        Params p;
        c.change(p);
        EXPECT_EQ(RaisedBy([&] { Make(p); }), c.number) << c.what;
    }
}

TEST(tqBarrelTangentMillConicalShaft, AGivenExtenderMayEndBelowTheShoulder) {
    const Mill::tqShoulderDefinitionExtender extender(measures::tqUnitsFactory::Metric, 52, 90);
    const Mill mill(measures::tqUnitsFactory::Metric, {}, {}, 50, 80, 100, 30, 40, 15, 10, extender);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender(), extender);
    EXPECT_NE(mill, Make(Params()));
}

}  // namespace
