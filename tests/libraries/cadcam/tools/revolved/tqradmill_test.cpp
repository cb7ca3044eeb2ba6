// tqRadMill: the concave corner radius, its rule among the common ones, and what a change of units scales.
#include "cadcam/tools/revolved/tqradmill.h"

#include "drillingtestutil.h"

namespace {

using cadcam::tqRadMill;
using Extender = cadcam::tqTypedRevolvedTool::tqShoulderDefinitionExtender;
using namespace drillingtest;

struct P {
    double d = 10, lf = 20, ls = 30, rc = 3;
    bool extender = false;
    double lb = 25;
};
P With(void (*change)(P&)) {
    P p;
    change(p);
    return p;
}
tqRadMill Make(const P& p) {
    if (p.extender) return tqRadMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, Extender(kMetric, 12, p.lb));
    return tqRadMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc);
}

const char* const kCorner = "Tool radius must be bigger than corner radius.";

TEST(tqRadMill, BuildsReadsBackAndScalesTheCornerRadius) {
    tqRadMill mill = Make(P());
    EXPECT_EQ(mill.GetCornerRadius(), 3);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender(), Extender(kMetric, 10, 20));
    // Flutes below the corner radius end inside the arc; the shank still takes the diameter.
    EXPECT_EQ(Make(With([](P& p) { p.lf = 1; })).GetShoulderDefinitionExtender(), Extender(kMetric, 10, 1));
    EXPECT_NE(mill, Make(With([](P& p) { p.rc = 2; })));
    mill.SetUnits(kInch);
    EXPECT_EQ(mill.GetCornerRadius(), 3 * (1 / 25.4));
}

TEST(tqRadMill, CornerRuleFiresAtItsBoundariesAmongTheCommonOnes) {
    ExpectRules<P>({{With([](P& p) { p.rc = -std::numeric_limits<double>::denorm_min(); }), 2336, kCorner},
                    {With([](P& p) { p.rc = 5; }), 2336, kCorner},
                    {With([](P& p) { p.rc = kNaN; }), 2336, kCorner},
                    {With([](P& p) { p.rc = kInf; }), 2336, kCorner},
                    // After the shoulder length, before the extender's base.
                    {With([](P& p) { p.ls = 10, p.rc = 5; }), 2107, "Invalid shoulder length"},
                    {With([](P& p) { p.rc = 5, p.extender = true, p.lb = 40; }), 2336, kCorner}},
                   Make);
    ExpectBuilds<P>(
        {With([](P& p) { p.rc = 0; }), With([](P& p) { p.rc = Down(5); }), With([](P& p) { p.lf = 3, p.ls = 3; })},
        Make);
}

}  // namespace
