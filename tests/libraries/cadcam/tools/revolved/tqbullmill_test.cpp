// tqBullMill: the torus corner, each rule at its boundary, and what a change of units scales.
#include "cadcam/tools/revolved/tqbullmill.h"

#include "drillingtestutil.h"
#include "profilecheck.h"

namespace {

using cadcam::tqBullMill;
using namespace drillingtest;

struct P {
    double d = 10, lf = 20, ls = 30, rc = 2;
};
P With(void (*change)(P&)) {
    P p;
    change(p);
    return p;
}
tqBullMill Make(const P& p) { return tqBullMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc); }

const char* const kNegative = "Invalid corner radius, it must be >= 0.";
const char* const kTwice = "Diameter must be at least twice the corner radius length.";

TEST(tqBullMill, BuildsReadsBackAndScalesTheCornerRadius) {
    tqBullMill mill = Make(P());
    EXPECT_EQ(mill.GetCornerRadius(), 2);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender().GetDiameter(), 10);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender().GetLength(), 20);
    EXPECT_NE(mill, Make(With([](P& p) { p.rc = 3; })));
    mill.SetUnits(kInch);
    EXPECT_EQ(mill.GetCornerRadius(), 2 * (1 / 25.4));
}

TEST(tqBullMill, RulesFireAtTheirBoundariesInOrder) {
    ExpectRules<P>({{With([](P& p) { p.rc = -std::numeric_limits<double>::denorm_min(); }), 2163, kNegative},
                    {With([](P& p) { p.rc = kNaN; }), 2163, kNegative},
                    {With([](P& p) { p.rc = Up(5); }), 2117, kTwice},
                    {With([](P& p) { p.rc = kInf; }), 2117, kTwice},
                    {With([](P& p) { p.lf = 3, p.rc = Up(3); }), 3476, "cadcam error 3476."},
                    // The first broken rule decides.
                    {With([](P& p) { p.lf = 3, p.rc = 6; }), 2117, kTwice},
                    {With([](P& p) { p.lf = 0, p.rc = -1; }), 2103, "Invalid flute length"}},
                   Make);
    // A corner of half the diameter is the ball; a corner as high as the flutes still fits.
    ExpectBuilds<P>({With([](P& p) { p.rc = 0; }), With([](P& p) { p.rc = 5; }), With([](P& p) { p.lf = 3, p.rc = 3; }),
                     With([](P& p) { p.lf = 5, p.ls = 5, p.rc = 5; })},
                    Make);
}

TEST(tqBullMill, RoundsTheCornerIntoATorusOrTheBall) {
    using namespace profilecheck;
    ExpectProfile(ProfileOf(*Make(P()).GetCuttingPart()), Point(0, 0), {L(3, 0), A(5, 2, 3, 2, 90), L(5, 20)}, 0);
    // rc = R: the flat is gone and the corner is the exact quarter of the ball.
    ExpectProfile(ProfileOf(*Make(With([](P& p) { p.rc = 5; })).GetCuttingPart()), Point(0, 0),
                  {A(5, 5, 0, 5, 90), L(5, 20)}, 0);
    // rc = Lf: the torus ends at the top of the flutes.
    ExpectProfile(ProfileOf(*Make(With([](P& p) { p.rc = 3, p.lf = 3; })).GetCuttingPart()), Point(0, 0),
                  {L(2, 0), A(5, 3, 2, 3, 90)}, 0);
}

}  // namespace
