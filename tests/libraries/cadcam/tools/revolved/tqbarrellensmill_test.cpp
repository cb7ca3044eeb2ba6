// tqBarrelLensMill: parameters and each rule at its boundary.
#include "cadcam/tools/revolved/tqbarrellensmill.h"

#include <cmath>
#include <limits>

#include "millingtestutil.h"

namespace {

using cadcam::tqBarrelLensMill;
using namespace millingtest;

struct P {
    double d = 10, lf = 10, ls = 20, rc = 1, rt = 8;
};
P With(void (*change)(P&)) {
    P p;
    change(p);
    return p;
}
tqBarrelLensMill Make(const P& p) { return tqBarrelLensMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, p.rt); }

TEST(tqBarrelLensMill, BuildsAndReadsBack) {
    const tqBarrelLensMill mill = Make(P());
    EXPECT_EQ(mill.GetDiameter(), 10);
    EXPECT_EQ(mill.GetCornerRadius(), 1);
    EXPECT_EQ(mill.GetConvexTipRadius(), 8);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender().GetDiameter(), 10);
}

TEST(tqBarrelLensMill, EachRuleFiresAtItsBoundaryInOrder) {
    ExpectRules<P>(
        {
            {With([](P& p) { p.rc = -1e-300, p.rt = 0; }), 2163, "Invalid corner radius, it must be >= 0."},
            {With([](P& p) { p.rt = std::nextafter(5.0, 0.0), p.rc = 5; }), 3431, "cadcam error 3431."},
            {With([](P& p) { p.rt = std::numeric_limits<double>::infinity(); }), 3431, "cadcam error 3431."},
            {With([](P& p) { p.rc = 5; }), 3432, "cadcam error 3432."},
        },
        Make);
    ExpectBuilds<P>({With([](P& p) { p.rt = 5; }), With([](P& p) { p.rc = std::nextafter(5.0, 0.0); }),
                     With([](P& p) { p.rc = 0; }), With([](P& p) { p.lf = 0.5; })},
                    Make);
}

}  // namespace
