// tqConvexTipMill: parameters and each rule at its boundary.
#include "cadcam/tools/revolved/tqconvextipmill.h"

#include <cmath>
#include <limits>

#include "millingtestutil.h"

namespace {

using cadcam::tqConvexTipMill;
using namespace millingtest;

struct P {
    double d = 10, lf = 10, ls = 20, rc = 1, rt = 8, rf = 1;
};
P With(void (*change)(P&)) {
    P p;
    change(p);
    return p;
}
tqConvexTipMill Make(const P& p) { return tqConvexTipMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, p.rt, p.rf); }
const double kInfinity = std::numeric_limits<double>::infinity();

TEST(tqConvexTipMill, BuildsAndReadsBack) {
    const tqConvexTipMill mill = Make(P());
    EXPECT_EQ(mill.GetDiameter(), 10);
    EXPECT_EQ(mill.GetCornerRadius(), 1);
    EXPECT_EQ(mill.GetConvexTipRadius(), 8);
    EXPECT_EQ(mill.GetFlatnessRadius(), 1);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender().GetDiameter(), 10);
}

TEST(tqConvexTipMill, EachRuleFiresAtItsBoundaryInOrder) {
    const char* tip = "Convex tip radius should be >= half tool diameter";
    const char* flat = "Tool radius minus corner radius must be greater than flatness radius for convex tip mill tool";
    ExpectRules<P>(
        {
            {With([](P& p) { p.rc = -1e-300, p.rf = -1; }), 2163, "Invalid corner radius, it must be >= 0."},
            {With([](P& p) { p.rf = -1e-300, p.rt = 0; }), 2235, "Flatness radius for convex tip mill must be >= 0"},
            {With([](P& p) { p.rf = 4, p.rt = 0; }), 2234, flat},
            {With([](P& p) { p.rc = kInfinity; }), 2234, flat},
            {With([](P& p) { p.rt = std::nextafter(5.0, 0.0); }), 2422, tip},
            {With([](P& p) { p.rt = kInfinity; }), 2422, tip},
            {With([](P& p) { p.rt = std::numeric_limits<double>::quiet_NaN(); }), 2422, tip},
        },
        Make);
    // A hemisphere (Rt = R without flat or fillet), flutes that end inside the tip, a flat up to R − rc.
    ExpectBuilds<P>({With([](P& p) { p.rt = 5; }), With([](P& p) { p.rt = 5, p.rc = p.rf = 0; }),
                     With([](P& p) { p.lf = 0.5; }), With([](P& p) { p.rf = std::nextafter(4.0, 0.0); })},
                    Make);
}

}  // namespace
