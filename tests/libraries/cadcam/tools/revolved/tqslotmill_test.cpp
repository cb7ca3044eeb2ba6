// tqSlotMill: parameters, the corner radius in the common 2336, and 2125 against 3424 at Lf = 2·rc.
#include "cadcam/tools/revolved/tqslotmill.h"

#include <cmath>

#include "millingtestutil.h"
#include "profilecheck.h"

namespace {

using cadcam::tqSlotMill;
using namespace millingtest;

struct P {
    double d = 20, lf = 4, ls = 10, rc = 1;
    int crt = tqSlotMill::CRT_CORNER;
};
P With(void (*change)(P&)) {
    P p;
    change(p);
    return p;
}
tqSlotMill Make(const P& p) {
    return tqSlotMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, static_cast<tqSlotMill::CornerRadiusType>(p.crt));
}

TEST(tqSlotMill, BuildsAndReadsBack) {
    const tqSlotMill mill = Make(P());
    EXPECT_EQ(mill.GetDiameter(), 20);
    EXPECT_EQ(mill.GetFluteLength(), 4);
    EXPECT_EQ(mill.GetCornerRadius(), 1);
    EXPECT_EQ(mill.GetCornerRadiusType(), tqSlotMill::CRT_CORNER);
    // Even a full radius that ends the disc on the axis leaves the default shank at D.
    const tqSlotMill full = Make(With([](P& p) { p.crt = tqSlotMill::CRT_FULL, p.lf = 30, p.ls = 30; }));
    EXPECT_EQ(full.GetShoulderDefinitionExtender().GetDiameter(), 20);
    EXPECT_EQ(full.GetShoulderDefinitionExtender().GetLength(), 30);
}

TEST(tqSlotMill, EachRuleFiresAtItsBoundaryInOrder) {
    const char* radius = "Tool radius must be bigger than corner radius.";
    ExpectRules<P>(
        {
            // Only the corner type hands its radius to the common checks, before the class's own.
            {With([](P& p) { p.rc = 10, p.lf = p.ls = 30; }), 2336, radius},
            {With([](P& p) { p.rc = 10; }), 2336, radius},
            {With([](P& p) { p.crt = 3, p.rc = 50; }), 2109, "Unknown corner radius type"},
            {With([](P& p) { p.rc = -1e-300; }), 2163, "Invalid corner radius, it must be >= 0."},
            {With([](P& p) { p.rc = std::nextafter(2.0, 3.0); }), 2125,
             "Flute length must be at least twice the corner radius length."},
            {With([](P& p) { p.rc = 2; }), 3424,
             "Flute length must be greater than lower corner radius plus upper corner radius for a tqSlotMill tool."},
        },
        Make);
    ExpectBuilds<P>({With([](P& p) { p.rc = std::nextafter(2.0, 0.0); }),
                     With([](P& p) { p.rc = std::nextafter(10.0, 0.0), p.lf = p.ls = 20; }),
                     With([](P& p) { p.crt = tqSlotMill::CRT_NONE, p.rc = 10; }),
                     With([](P& p) { p.crt = tqSlotMill::CRT_FULL, p.rc = 50; })},
                    Make);
}

TEST(tqSlotMill, RoundsBothCornersOfTheDisc) {
    using namespace profilecheck;
    ExpectProfile(ProfileOf(*Make(P()).GetCuttingPart()), Point(0, 0),
                  {L(9, 0), A(10, 1, 9, 1, 90), L(10, 3), A(9, 4, 9, 3, 90)}, 0);
    // The full radius of a disc thinner than D meets in the middle of the side and leaves the top flat.
    ExpectProfile(ProfileOf(*Make(With([](P& p) { p.crt = tqSlotMill::CRT_FULL; })).GetCuttingPart()), Point(0, 0),
                  {L(8, 0), A(10, 2, 8, 2, 90), A(8, 4, 8, 2, 90)}, 0);
    // Flutes longer than D: the full radius is R and the profile ends on the axis.
    const tqSlotMill tall = Make(With([](P& p) { p.crt = tqSlotMill::CRT_FULL, p.lf = 30, p.ls = 40; }));
    ExpectProfile(ProfileOf(*tall.GetCuttingPart()), Point(0, 0),
                  {A(10, 10, 0, 10, 90), L(10, 20), A(0, 30, 0, 20, 90)}, 0);
    // The shank starts at the axis, at the top of the flutes.
    ExpectProfile(tall.GetProfile(), Point(0, 0),
                  {A(10, 10, 0, 10, 90), L(10, 20), A(0, 30, 0, 20, 90), L(10, 30), L(10, 40)}, 0);
}

}  // namespace
