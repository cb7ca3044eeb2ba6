// tqLolMill: parameters, the shank diameter that 2240 reads, and the arbor checked last.
#include "cadcam/tools/revolved/tqlolmill.h"

#include <cmath>
#include <limits>

#include "cadcam/tools/parts/tqarbordefinition.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "millingtestutil.h"

namespace {

using cadcam::tqLolMill;
using namespace millingtest;

enum ArborKind { kWithSolid, kWithoutSolid, kNone };
struct P {
    double d = 10, lf = 20, ls = 30, od = 6;
    double shankDiameter = 0;  // 0: the default extender
    ArborKind arbor = kWithSolid;
};
P With(void (*change)(P&)) {
    P p;
    change(p);
    return p;
}
tqLolMill::ArborPointer Arbor(ArborKind kind) {
    if (kind == kNone) return {};
    if (kind == kWithoutSolid) return tqLolMill::ArborPointer(new cadcam::tqArborDefinition<double>());
    // An empty profile is still a solid.
    misc::tqAutoPointer<cadcam::tqSolidDefinition<double>> solid(
        new cadcam::tqRevolvedSolidDefinition<double>(kMetric));
    return tqLolMill::ArborPointer(new cadcam::tqArborDefinition<double>(kMetric, solid));
}
tqLolMill Make(const P& p) {
    if (p.shankDiameter == 0) return tqLolMill(kMetric, Arbor(p.arbor), {}, p.d, p.lf, p.ls, p.od);
    return tqLolMill(kMetric, Arbor(p.arbor), {}, p.d, p.lf, p.ls, p.od,
                     tqLolMill::tqShoulderDefinitionExtender(kMetric, p.shankDiameter, p.lf));
}

TEST(tqLolMill, BuildsAndReadsBack) {
    const tqLolMill mill = Make(P());
    EXPECT_EQ(mill.GetDiameter(), 10);
    EXPECT_EQ(mill.GetOutsideDiameter(), 6);
    // Nothing above the ball's equator is wider than the ball.
    EXPECT_EQ(mill.GetShoulderDefinitionExtender().GetDiameter(), 10);
    EXPECT_EQ(mill.GetShoulderDefinitionExtender().GetLength(), 20);
}

TEST(tqLolMill, EachRuleFiresAtItsBoundaryInOrder) {
    const char* outside = "Invalid Outside Diameter";
    const char* smaller = "Outside diameter must be smaller than the tool diameter.";
    const char* shank = "Invalid Outside Diameter : The outside diameter must be smaller than the shaft diameter";
    const char* flute = "Invalid flute length : The flute length must be greater than the ball radius";
    ExpectRules<P>(
        {
            {With([](P& p) { p.od = 0, p.arbor = kNone; }), 2155, outside},
            {With([](P& p) { p.od = std::numeric_limits<double>::quiet_NaN(); }), 2155, outside},
            {With([](P& p) { p.od = 10, p.lf = p.ls = 5; }), 2191, smaller},
            {With([](P& p) { p.od = std::numeric_limits<double>::infinity(); }), 2191, smaller},
            {With([](P& p) { p.shankDiameter = 6, p.lf = p.ls = 5; }), 2240, shank},
            {With([](P& p) { p.lf = 5, p.arbor = kNone; }), 2241, flute},
            {With([](P& p) { p.arbor = kNone; }), 2138, "Arbor not defined"},
            {With([](P& p) { p.arbor = kWithoutSolid; }), 2138, "Arbor not defined"},
        },
        Make);
    ExpectBuilds<P>({With([](P& p) { p.od = std::nextafter(10.0, 0.0); }),
                     With([](P& p) { p.shankDiameter = std::nextafter(6.0, 7.0); }),
                     With([](P& p) { p.lf = std::nextafter(5.0, 6.0); })},
                    Make);
}

}  // namespace
