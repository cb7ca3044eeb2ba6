// tqReamer: the entry chamfer's factor, each rule at its boundary, and a change of units that keeps the factor.
#include "cadcam/tools/revolved/tqreamer.h"

#include "drillingtestutil.h"

namespace {

using cadcam::tqReamer;
using namespace drillingtest;

struct P {
    double d = 10, lf = 20, ls = 30, factor = 0.2;
};
P With(void (*change)(P&)) {
    P p;
    change(p);
    return p;
}
tqReamer Make(const P& p) { return tqReamer(kMetric, {}, {}, p.d, p.lf, p.ls, p.factor); }

const char* const kFactor = "Factor must be within [0, 1] interval.";
const char* const kChamfer = "Invalid chamfer distance.";

TEST(tqReamer, BuildsReadsBackAndKeepsTheFactorOnAChangeOfUnits) {
    tqReamer reamer = Make(P());
    EXPECT_EQ(reamer.GetFactor(), 0.2);
    EXPECT_EQ(reamer.GetShoulderDefinitionExtender().GetDiameter(), 10);
    EXPECT_EQ(reamer.GetShoulderDefinitionExtender().GetLength(), 20);
    EXPECT_NE(reamer, Make(With([](P& p) { p.factor = 0.3; })));
    reamer.SetUnits(kInch);
    EXPECT_EQ(reamer.GetFactor(), 0.2);
    EXPECT_EQ(reamer.GetDiameter(), 10 * (1 / 25.4));
}

TEST(tqReamer, RulesFireAtTheirBoundariesInOrder) {
    ExpectRules<P>({{With([](P& p) { p.factor = -std::numeric_limits<double>::denorm_min(); }), 3469, kFactor},
                    {With([](P& p) { p.factor = Up(1); }), 3469, kFactor},
                    {With([](P& p) { p.factor = 1.5; }), 3469, kFactor},
                    {With([](P& p) { p.factor = kNaN; }), 3469, kFactor},
                    // The chamfer of radial size factor·R must end within the flutes.
                    {With([](P& p) { p.factor = 1, p.lf = Down(5), p.ls = 5; }), 3470, kChamfer},
                    // The first broken rule decides.
                    {With([](P& p) { p.factor = 1.5, p.lf = 1; }), 3469, kFactor},
                    {With([](P& p) { p.lf = kNaN, p.factor = 2; }), 2103, "Invalid flute length"}},
                   Make);
    ExpectBuilds<P>({With([](P& p) { p.factor = 0; }), With([](P& p) { p.factor = 1; }),
                     With([](P& p) { p.factor = 1, p.lf = 5, p.ls = 5; })},
                    Make);
}

}  // namespace
