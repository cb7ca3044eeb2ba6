// tqDoveMill: parameters, the default extender, and each rule at its boundary.
#include "cadcam/tools/revolved/tqdovemill.h"

#include <cmath>
#include <limits>

#include "millingtestutil.h"
#include "profilecheck.h"

namespace {

using cadcam::tqDoveMill;
using namespace millingtest;

struct P {
    double d = 10, lf = 5, ls = 30, rc = 1;
    int crt = tqDoveMill::CRT_CORNER;
    double angle = 10;
};
P With(void (*change)(P&)) {
    P p;
    change(p);
    return p;
}
tqDoveMill Make(const P& p) {
    return tqDoveMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, static_cast<tqDoveMill::CornerRadiusType>(p.crt),
                      p.angle);
}
const double kPi = std::acos(-1.0);
// The fillet at the bottom corner turns by 90° + α: t = rc·tan(45° + α/2), here with α = 10.
const double kTanHalfTurn = std::tan(50 * kPi / 180);
const double kSide1 = 1 / std::cos(10 * kPi / 180);  // the side's length for Lf = 1

TEST(tqDoveMill, BuildsReadsBackAndKeepsTheDiameterForTheShank) {
    const tqDoveMill mill = Make(P());
    EXPECT_EQ(mill.GetDiameter(), 10);
    EXPECT_EQ(mill.GetCornerRadius(), 1);
    EXPECT_EQ(mill.GetCornerRadiusType(), tqDoveMill::CRT_CORNER);
    EXPECT_EQ(mill.GetTaperAngle(), 10);
    // The side narrows upward, so the default shank is the bottom diameter.
    EXPECT_EQ(mill.GetShoulderDefinitionExtender().GetDiameter(), 10);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender().GetLength(), 5);
}

TEST(tqDoveMill, EachRuleFiresAtItsBoundaryInOrder) {
    const char* invalid = "Invalid tool definition";
    ExpectRules<P>(
        {
            {With([](P& p) { p.crt = 3, p.rc = -1; }), 2109, "Unknown corner radius type"},
            {With([](P& p) { p.rc = -1e-300, p.angle = 0; }), 2163, "Invalid corner radius, it must be >= 0."},
            {With([](P& p) { p.angle = 0.0999999999, p.lf = p.ls = 100; }), 2122,
             "Taper angle must be >=0.1 and <=89."},
            {With([](P& p) { p.angle = 89.0000000001; }), 2122, "Taper angle must be >=0.1 and <=89."},
            // The side reaches the axis at Lf·tan 45° = R.
            {With([](P& p) { p.crt = 0, p.angle = 45, p.lf = 5 * (1 + 1e-9); }), 2141, invalid},
            // The fillet runs past the bottom (t > R), or past the side (t > Lf/cos α).
            {With([](P& p) { p.rc = 5 / kTanHalfTurn * (1 + 1e-9); }), 2141, invalid},
            {With([](P& p) { p.lf = 1, p.rc = kSide1 / kTanHalfTurn * (1 + 1e-9); }), 2141, invalid},
        },
        Make);
    ExpectBuilds<P>({With([](P& p) { p.crt = 0, p.angle = 45, p.lf = 5 * (1 - 1e-9); }),
                     With([](P& p) { p.rc = 5 / kTanHalfTurn * (1 - 1e-9); }),
                     With([](P& p) { p.lf = 1, p.rc = kSide1 / kTanHalfTurn * (1 - 1e-9); }),
                     With([](P& p) { p.crt = tqDoveMill::CRT_FULL, p.rc = 100; }),
                     With([](P& p) { p.crt = tqDoveMill::CRT_FULL, p.lf = 1; })},
                    Make);
}

// The full radius consumes the whole bottom: the profile starts with the arc at exactly (0, 0).
TEST(tqDoveMill, AFullCornerStartsWithTheArcAtTheTip) {
    const tqDoveMill mill = Make(With([](P& p) { p.crt = tqDoveMill::CRT_FULL; }));
    const auto& first = profilecheck::ProfileOf(*mill.GetCuttingPart()).GetItem(0);
    const auto arc = first.DynamicCast<cadcam::tq2dArc<double>>();
    ASSERT_TRUE(arc.IsNotNull());
    EXPECT_EQ(arc->GetStart(), profilecheck::Point(0, 0));
    EXPECT_EQ(arc->GetCentre().x, 0);
}

}  // namespace
