// tqBullMill: the torus corner and each rule at its boundary.
#include "cadcam/tools/revolved/tqbullmill.h"

#include "profilecheck.h"
#include "revolvedtest.h"

namespace {

using cadcam::tqBullMill;
using namespace revolvedtest;

struct P {
    double d = 10, lf = 20, ls = 30, rc = 2;
};
tqBullMill Make(const P& p) { return tqBullMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc); }

const char* const kNegative = "Invalid corner radius, it must be >= 0.";
const char* const kTwice = "Diameter must be at least twice the corner radius length.";

TEST(tqBullMill, RulesFireAtTheirBoundariesInOrder) {
    ExpectRules<P>({{[](P& p) { p.rc = -kTiny; }, 2163, kNegative},
                    {[](P& p) { p.rc = kNaN; }, 2163, kNegative},
                    {[](P& p) { p.rc = Up(5); }, 2117, kTwice},
                    {[](P& p) { p.rc = kInf; }, 2117, kTwice},
                    {[](P& p) { p.lf = 3, p.rc = Up(3); }, 3476, "cadcam error 3476."},
                    // The first broken rule decides.
                    {[](P& p) { p.lf = 3, p.rc = 6; }, 2117, kTwice},
                    {[](P& p) { p.lf = 0, p.rc = -1; }, 2103, "Invalid flute length"}},
                   // A corner of half the diameter is the ball; a corner as high as the flutes still fits.
                   {[](P& p) { p.rc = 0; }, [](P& p) { p.rc = 5; }, [](P& p) { p.lf = 3, p.rc = 3; },
                    [](P& p) { p.lf = 5, p.ls = 5, p.rc = 5; }},
                   Make);
}

TEST(tqBullMill, RoundsTheCornerIntoATorusOrTheBall) {
    using namespace profilecheck;
    ExpectProfile(ProfileOf(*Make(P()).GetCuttingPart()), Point(0, 0), {L(3, 0), A(5, 2, 3, 2, 90), L(5, 20)}, 0);
    // rc = R: the flat is gone and the corner is the exact quarter of the ball.
    ExpectProfile(ProfileOf(*Make(With(P(), [](P& p) { p.rc = 5; })).GetCuttingPart()), Point(0, 0),
                  {A(5, 5, 0, 5, 90), L(5, 20)}, 0);
    // rc = Lf: the torus ends at the top of the flutes.
    ExpectProfile(ProfileOf(*Make(With(P(), [](P& p) { p.rc = 3, p.lf = 3; })).GetCuttingPart()), Point(0, 0),
                  {L(2, 0), A(5, 3, 2, 3, 90)}, 0);
}

}  // namespace
