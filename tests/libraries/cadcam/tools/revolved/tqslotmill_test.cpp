// tqSlotMill: the corner radius in the common 2336, 2125 against 3424 at Lf = 2·rc, and the disc's corners.
#include "cadcam/tools/revolved/tqslotmill.h"

#include "profilecheck.h"
#include "revolvedtest.h"

namespace {

using cadcam::tqSlotMill;
using namespace revolvedtest;

struct P {
    double d = 20, lf = 4, ls = 10, rc = 1;
    int crt = tqSlotMill::CRT_CORNER;
};
tqSlotMill Make(const P& p) {
    return tqSlotMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, static_cast<tqSlotMill::CornerRadiusType>(p.crt));
}

TEST(tqSlotMill, EachRuleFiresAtItsBoundaryInOrder) {
    const char* radius = "Tool radius must be bigger than corner radius.";
    ExpectRules<P>(
        {// Only the corner type hands its radius to the common checks, before the class's own.
         {[](P& p) { p.rc = 10, p.lf = p.ls = 30; }, 2336, radius},
         {[](P& p) { p.rc = 10; }, 2336, radius},
         {[](P& p) { p.crt = 3, p.rc = 50; }, 2109, "Unknown corner radius type"},
         {[](P& p) { p.rc = -1e-300; }, 2163, "Invalid corner radius, it must be >= 0."},
         {[](P& p) { p.rc = Up(2); }, 2125, "Flute length must be at least twice the corner radius length."},
         {[](P& p) { p.rc = 2; }, 3424,
          "Flute length must be greater than lower corner radius plus upper corner radius for a tqSlotMill tool."}},
        {[](P& p) { p.rc = Down(2); }, [](P& p) { p.rc = Down(10), p.lf = p.ls = 20; },
         [](P& p) { p.crt = tqSlotMill::CRT_NONE, p.rc = 10; }, [](P& p) { p.crt = tqSlotMill::CRT_FULL, p.rc = 50; }},
        Make);
}

TEST(tqSlotMill, RoundsBothCornersOfTheDisc) {
    using namespace profilecheck;
    ExpectProfile(ProfileOf(*Make(P()).GetCuttingPart()), Point(0, 0),
                  {L(9, 0), A(10, 1, 9, 1, 90), L(10, 3), A(9, 4, 9, 3, 90)}, 0);
    // The full radius of a disc thinner than D meets in the middle of the side and leaves the top flat.
    ExpectProfile(ProfileOf(*Make(With(P(), [](P& p) { p.crt = tqSlotMill::CRT_FULL; })).GetCuttingPart()), Point(0, 0),
                  {L(8, 0), A(10, 2, 8, 2, 90), A(8, 4, 8, 2, 90)}, 0);
    // Flutes longer than D: the full radius is R and the profile ends on the axis; the shank starts there.
    const tqSlotMill tall = Make(With(P(), [](P& p) { p.crt = tqSlotMill::CRT_FULL, p.lf = 30, p.ls = 40; }));
    ExpectProfile(tall.GetProfile(), Point(0, 0),
                  {A(10, 10, 0, 10, 90), L(10, 20), A(0, 30, 0, 20, 90), L(10, 30), L(10, 40)}, 0);
}

}  // namespace
