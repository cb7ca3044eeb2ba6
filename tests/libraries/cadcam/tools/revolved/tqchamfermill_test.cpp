// tqChamferMill: parameters, the default extender at the outside diameter, and each rule at its boundary.
#include "cadcam/tools/revolved/tqchamfermill.h"

#include <cmath>
#include <limits>

#include "millingtestutil.h"

namespace {

using cadcam::tqChamferMill;
using namespace millingtest;

struct P {
    double d = 2, lf = 10, ls = 20, rc = 0.2;
    int crt = tqChamferMill::CRT_CORNER;
    double angle = 45, od = 10;
};
P With(void (*change)(P&)) {
    P p;
    change(p);
    return p;
}
tqChamferMill Make(const P& p) {
    return tqChamferMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, static_cast<tqChamferMill::CornerRadiusType>(p.crt),
                         p.angle, p.od);
}
// The bottom (length 1) is shorter than the cone; the corner turns by 45°.
const double kFullRadius = 1 / std::tan(std::acos(-1.0) / 8);
const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInfinity = std::numeric_limits<double>::infinity();

TEST(tqChamferMill, BuildsReadsBackAndTakesTheOutsideDiameterForTheShank) {
    const tqChamferMill mill = Make(P());
    EXPECT_EQ(mill.GetDiameter(), 2);
    EXPECT_EQ(mill.GetCornerRadius(), 0.2);
    EXPECT_EQ(mill.GetCornerRadiusType(), tqChamferMill::CRT_CORNER);
    EXPECT_EQ(mill.GetTaperAngle(), 45);
    EXPECT_EQ(mill.GetOutsideDiameter(), 10);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender().GetDiameter(), 10);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender().GetLength(), 10);
}

TEST(tqChamferMill, EachRuleFiresAtItsBoundaryInOrder) {
    const char* positive = "Outside diameter must be > 0 ";
    ExpectRules<P>(
        {
            {With([](P& p) { p.crt = -1, p.rc = -1; }), 2109, "Unknown corner radius type"},
            {With([](P& p) { p.rc = kNaN, p.angle = 0; }), 2163, "Invalid corner radius, it must be >= 0."},
            {With([](P& p) { p.angle = 0.0999999999, p.od = 0; }), 2122, "Taper angle must be >=0.1 and <=89."},
            {With([](P& p) { p.od = 0; }), 2147, positive},
            {With([](P& p) { p.od = kNaN; }), 2147, positive},
            {With([](P& p) { p.od = -kInfinity; }), 2147, positive},
            {With([](P& p) { p.od = kInfinity; }), 2155, "Invalid Outside Diameter"},
            {With([](P& p) { p.od = std::nextafter(2.0, 0.0); }), 2151, "Outside diameter must be >= tool diameter"},
            {With([](P& p) { p.od = 2; }), 2251, "cadcam error 2251."},
            // The cone reaches OD/2 at h = (OD/2 − R)/tan α = Lf for OD = 22.
            {With([](P& p) { p.od = 22 * (1 + 1e-9), p.ls = 10; }), 2123,
             "Taper and shoulder do not intersect each other."},
            {With([](P& p) { p.ls = 10, p.rc = 100; }), 3423, "Invalid shaft length."},
            {With([](P& p) { p.rc = kFullRadius * (1 + 1e-12); }), 2152, "Corner radius must be < full corner radius"},
        },
        Make);
    ExpectBuilds<P>({With([](P& p) { p.od = 22 * (1 - 1e-9); }), With([](P& p) { p.ls = std::nextafter(10.0, 11.0); }),
                     With([](P& p) { p.rc = kFullRadius * (1 - 1e-9); }),
                     With([](P& p) { p.crt = tqChamferMill::CRT_FULL, p.rc = 100; }),
                     With([](P& p) { p.crt = tqChamferMill::CRT_NONE, p.rc = 100; })},
                    Make);
}

}  // namespace
