// tqFaceMill: parameters, the default extender at the outside diameter, and 2123 in each of its forms.
#include "cadcam/tools/revolved/tqfacemill.h"

#include <cmath>
#include <limits>

#include "millingtestutil.h"

namespace {

using cadcam::tqFaceMill;
using namespace millingtest;

struct P {
    double d = 10, lf = 10, ls = 30, rc = 1;
    int crt = tqFaceMill::CRT_CORNER;
    double od = 14, angle = 45;
};
P With(void (*change)(P&)) {
    P p;
    change(p);
    return p;
}
tqFaceMill Make(const P& p) {
    return tqFaceMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, static_cast<tqFaceMill::CornerRadiusType>(p.crt), p.od,
                      p.angle);
}
const double kPi = std::acos(-1.0);
// The lead face from (5, 0) to (7, 2) is shorter than the bottom; the corner turns by 45°.
const double kFullRadius = std::hypot(2.0, 2 / std::tan(kPi / 4)) / std::tan(kPi / 8);
const char* kNoIntersection = "Taper and shoulder do not intersect each other.";

TEST(tqFaceMill, BuildsReadsBackAndTakesTheOutsideDiameterForTheShank) {
    const tqFaceMill mill = Make(P());
    EXPECT_EQ(mill.GetDiameter(), 10);
    EXPECT_EQ(mill.GetCornerRadius(), 1);
    EXPECT_EQ(mill.GetCornerRadiusType(), tqFaceMill::CRT_CORNER);
    EXPECT_EQ(mill.GetOutsideDiameter(), 14);
    EXPECT_EQ(mill.GetTaperAngle(), 45);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender().GetDiameter(), 14);
    EXPECT_EQ(Make(With([](P& p) { p.od = 10; })).GetShoulderDefinitionExtender().GetDiameter(), 10);
}

TEST(tqFaceMill, EachRuleFiresAtItsBoundaryInOrder) {
    ExpectRules<P>(
        {
            {With([](P& p) { p.crt = 3, p.rc = -1; }), 2109, "Unknown corner radius type"},
            {With([](P& p) { p.rc = -1e-300, p.angle = 0; }), 2163, "Invalid corner radius, it must be >= 0."},
            {With([](P& p) { p.angle = 89.0000000001, p.od = 1; }), 2122, "Taper angle must be >=0.1 and <=89."},
            {With([](P& p) { p.od = std::nextafter(10.0, 0.0); }), 2123, kNoIntersection},
            {With([](P& p) { p.od = std::numeric_limits<double>::quiet_NaN(); }), 2123, kNoIntersection},
            {With([](P& p) { p.od = std::numeric_limits<double>::infinity(); }), 2123, kNoIntersection},
            // The lead face reaches OD/2 at h = (OD/2 − R)/tan α = Lf for OD = 30.
            {With([](P& p) { p.od = 30 * (1 + 1e-9); }), 2123, kNoIntersection},
            {With([](P& p) { p.rc = kFullRadius * (1 + 1e-9); }), 2123, kNoIntersection},
            // Without a lead face the fillet meets the side: t = rc against R.
            {With([](P& p) { p.od = 10, p.rc = 5 * (1 + 1e-9); }), 2123, kNoIntersection},
        },
        Make);
    ExpectBuilds<P>({With([](P& p) { p.od = 30 * (1 - 1e-9); }), With([](P& p) { p.rc = kFullRadius * (1 - 1e-9); }),
                     With([](P& p) { p.od = 10, p.rc = 5; }), With([](P& p) { p.crt = tqFaceMill::CRT_FULL; }),
                     With([](P& p) { p.crt = tqFaceMill::CRT_NONE, p.rc = 100; })},
                    Make);
}

}  // namespace
