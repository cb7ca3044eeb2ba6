// tqTaperMill: the default extender from the clipped top radius, each rule at its boundary, and the full corner.
#include "cadcam/tools/revolved/tqtapermill.h"

#include "profilecheck.h"
#include "revolvedtest.h"
#include "tools/shape/profiletoolkit.h"

namespace {

using cadcam::tqTaperMill;
using cadcam::shape::TanDegrees;
using namespace revolvedtest;

struct P {
    double d = 10, lf = 20, ls = 30, rc = 1;
    int crt = tqTaperMill::CRT_CORNER;
    double angle = 10;
};
tqTaperMill Make(const P& p) {
    return tqTaperMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, static_cast<tqTaperMill::CornerRadiusType>(p.crt),
                       p.angle);
}

TEST(tqTaperMill, DefaultExtenderTakesTheTopRadiusAtTheFluteLength) {
    // Above the fillet the side reaches R + Lf·tan α.
    EXPECT_NEAR(Make(P()).GetShoulderDefinitionExtender().GetDiameter(), 2 * (5 + 20 * TanDegrees(10)), 1e-12);
    // Flutes that end inside the fillet (centre (R − t, rc)) are wider than D there.
    const tqTaperMill inFillet = Make(With(P(), [](P& p) { p.rc = 4, p.angle = 30, p.lf = 1, p.ls = 3; }));
    EXPECT_NEAR(inFillet.GetShoulderDefinitionExtender().GetDiameter(), 2 * (5 - 4 * TanDegrees(30) + std::sqrt(7.0)),
                1e-12);
}

TEST(tqTaperMill, EachRuleFiresAtItsBoundaryInOrder) {
    const char* crt = "Unknown corner radius type";
    const char* negative = "Invalid corner radius, it must be >= 0.";
    const char* angle = "Taper angle must be >=0.1 and <=89.";
    const char* shoulder = "Shoulder length must be > cornerRadius*(1-sin(taperAngle))";
    ExpectRules<P>(
        {{[](P& p) { p.crt = 3; }, 2109, crt},
         {[](P& p) { p.crt = -1, p.rc = -1; }, 2109, crt},
         {[](P& p) { p.rc = -1e-300, p.angle = 0; }, 2163, negative},
         {[](P& p) { p.rc = kNaN; }, 2163, negative},
         {[](P& p) { p.angle = 0.0999999999, p.rc = 6; }, 2122, angle},
         {[](P& p) { p.angle = 89.0000000001; }, 2122, angle},
         {[](P& p) { p.angle = kNaN; }, 2122, angle},
         {[](P& p) { p.rc = Up(5), p.lf = p.ls = 1; }, 2117,
          "Diameter must be at least twice the corner radius length."},
         // The fillet ends at rc·(1 − sin α) = 2, with the given or the full radius (5/tan 30° there).
         {[](P& p) { p.rc = 4, p.angle = 30, p.lf = 1, p.ls = 2 * (1 - 1e-12); }, 2153, shoulder},
         {[](P& p) { p.crt = tqTaperMill::CRT_FULL, p.angle = 30, p.lf = 1, p.ls = 4.3; }, 2153, shoulder}},
        {[](P& p) { p.rc = 0; }, [](P& p) { p.rc = 5; }, [](P& p) { p.angle = 0.1; }, [](P& p) { p.angle = 89; },
         [](P& p) { p.crt = tqTaperMill::CRT_NONE, p.rc = 100, p.lf = p.ls = 1; },
         [](P& p) { p.crt = tqTaperMill::CRT_FULL, p.angle = 30, p.lf = 1, p.ls = 4.4; },
         [](P& p) { p.rc = 4, p.angle = 30, p.lf = 1, p.ls = 2 * (1 + 1e-12); }},
        Make);
}

// The full radius consumes the whole bottom: the profile starts with the arc at exactly (0, 0).
TEST(tqTaperMill, AFullCornerStartsWithTheArcAtTheTip) {
    using namespace profilecheck;
    ExpectArcAtTheTip(ProfileOf(*Make(With(P(), [](P& p) { p.crt = tqTaperMill::CRT_FULL; })).GetCuttingPart()));
}

}  // namespace
