// tqTaperMill: parameters, the default extender from the clipped top radius, and each rule at its boundary.
#include "cadcam/tools/revolved/tqtapermill.h"

#include <cmath>
#include <limits>

#include "millingtestutil.h"
#include "profilecheck.h"

namespace {

using cadcam::tqTaperMill;
using namespace millingtest;

struct P {
    double d = 10, lf = 20, ls = 30, rc = 1;
    int crt = tqTaperMill::CRT_CORNER;
    double angle = 10;
};
P With(void (*change)(P&)) {
    P p;
    change(p);
    return p;
}
tqTaperMill Make(const P& p) {
    return tqTaperMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, static_cast<tqTaperMill::CornerRadiusType>(p.crt),
                       p.angle);
}
double Tan(double degrees) { return std::tan(degrees * std::acos(-1.0) / 180); }
const double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(tqTaperMill, BuildsAndReadsBack) {
    const tqTaperMill mill = Make(P());
    EXPECT_EQ(mill.GetDiameter(), 10);
    EXPECT_EQ(mill.GetFluteLength(), 20);
    EXPECT_EQ(mill.GetShoulderLength(), 30);
    EXPECT_EQ(mill.GetCornerRadius(), 1);
    EXPECT_EQ(mill.GetCornerRadiusType(), tqTaperMill::CRT_CORNER);
    EXPECT_EQ(mill.GetTaperAngle(), 10);
}

TEST(tqTaperMill, DefaultExtenderTakesTheTopRadiusAtTheFluteLength) {
    // Above the fillet the side reaches R + Lf·tan α.
    const tqTaperMill onSide = Make(P());
    EXPECT_NEAR(onSide.GetShoulderDefinitionExtender().GetDiameter(), 2 * (5 + 20 * Tan(10)), 1e-12);
    EXPECT_EQ(onSide.GetShoulderDefinitionExtender().GetLength(), 20);
    // Flutes that end inside the fillet (centre (R − t, rc)) are wider than D there.
    const tqTaperMill inFillet = Make(With([](P& p) { p.rc = 4, p.angle = 30, p.lf = 1, p.ls = 3; }));
    EXPECT_NEAR(inFillet.GetShoulderDefinitionExtender().GetDiameter(), 2 * (5 - 4 * Tan(30) + std::sqrt(7.0)), 1e-12);

    const tqTaperMill given(kMetric, {}, {}, 10, 20, 30, 1, tqTaperMill::CRT_CORNER, 10,
                            tqTaperMill::tqShoulderDefinitionExtender(kMetric, 12, 25));
    EXPECT_EQ(given.GetShoulderDefinitionExtender().GetDiameter(), 12);
    EXPECT_EQ(given.GetShoulderDefinitionExtender().GetLength(), 25);
}

TEST(tqTaperMill, EachRuleFiresAtItsBoundaryInOrder) {
    ExpectRules<P>(
        {
            {With([](P& p) { p.crt = 3; }), 2109, "Unknown corner radius type"},
            {With([](P& p) { p.crt = -1, p.rc = -1; }), 2109, "Unknown corner radius type"},
            {With([](P& p) { p.rc = -1e-300, p.angle = 0; }), 2163, "Invalid corner radius, it must be >= 0."},
            {With([](P& p) { p.rc = kNaN; }), 2163, "Invalid corner radius, it must be >= 0."},
            {With([](P& p) { p.angle = 0.0999999999, p.rc = 6; }), 2122, "Taper angle must be >=0.1 and <=89."},
            {With([](P& p) { p.angle = 89.0000000001; }), 2122, "Taper angle must be >=0.1 and <=89."},
            {With([](P& p) { p.angle = kNaN; }), 2122, "Taper angle must be >=0.1 and <=89."},
            {With([](P& p) { p.rc = std::nextafter(5.0, 6.0), p.lf = p.ls = 1; }), 2117,
             "Diameter must be at least twice the corner radius length."},
            // The fillet ends at rc·(1 − sin α) = 2, with the given or the full radius (5/tan 30° there).
            {With([](P& p) { p.rc = 4, p.angle = 30, p.lf = 1, p.ls = 2 * (1 - 1e-12); }), 2153,
             "Shoulder length must be > cornerRadius*(1-sin(taperAngle))"},
            {With([](P& p) { p.crt = tqTaperMill::CRT_FULL, p.angle = 30, p.lf = 1, p.ls = 4.3; }), 2153,
             "Shoulder length must be > cornerRadius*(1-sin(taperAngle))"},
        },
        Make);
    ExpectBuilds<P>({With([](P& p) { p.rc = 0; }), With([](P& p) { p.rc = 5; }), With([](P& p) { p.angle = 0.1; }),
                     With([](P& p) { p.angle = 89; }),
                     With([](P& p) { p.crt = tqTaperMill::CRT_NONE, p.rc = 100, p.lf = p.ls = 1; }),
                     With([](P& p) { p.crt = tqTaperMill::CRT_FULL, p.angle = 30, p.lf = 1, p.ls = 4.4; }),
                     With([](P& p) { p.rc = 4, p.angle = 30, p.lf = 1, p.ls = 2 * (1 + 1e-12); })},
                    Make);
}

// The full radius consumes the whole bottom: the profile starts with the arc at exactly (0, 0).
TEST(tqTaperMill, AFullCornerStartsWithTheArcAtTheTip) {
    const tqTaperMill mill = Make(With([](P& p) { p.crt = tqTaperMill::CRT_FULL; }));
    const auto& first = profilecheck::ProfileOf(*mill.GetCuttingPart()).GetItem(0);
    const auto arc = first.DynamicCast<cadcam::tq2dArc<double>>();
    ASSERT_TRUE(arc.IsNotNull());
    EXPECT_EQ(arc->GetStart(), profilecheck::Point(0, 0));
    EXPECT_EQ(arc->GetCentre().x, 0);
}

}  // namespace
