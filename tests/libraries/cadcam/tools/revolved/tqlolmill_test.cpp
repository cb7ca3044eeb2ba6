// tqLolMill: the outside diameter, the shank diameter that 2240 reads, and the arbor checked last.
#include "cadcam/tools/revolved/tqlolmill.h"

#include "cadcam/tools/parts/tqarbordefinition.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "revolvedtest.h"

namespace {

using cadcam::tqLolMill;
using namespace revolvedtest;

enum ArborKind { kWithSolid, kWithoutSolid, kNone };
struct P {
    double d = 10, lf = 20, ls = 30, od = 6;
    double shankDiameter = 0;  // 0: the default extender
    ArborKind arbor = kWithSolid;
};
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

TEST(tqLolMill, EachRuleFiresAtItsBoundaryInOrder) {
    const char* outside = "Invalid Outside Diameter";
    const char* smaller = "Outside diameter must be smaller than the tool diameter.";
    const char* shank = "Invalid Outside Diameter : The outside diameter must be smaller than the shaft diameter";
    const char* flute = "Invalid flute length : The flute length must be greater than the ball radius";
    ExpectRules<P>({{[](P& p) { p.od = 0, p.arbor = kNone; }, 2155, outside},
                    {[](P& p) { p.od = kNaN; }, 2155, outside},
                    {[](P& p) { p.od = 10, p.lf = p.ls = 5; }, 2191, smaller},
                    {[](P& p) { p.od = kInf; }, 2191, smaller},
                    {[](P& p) { p.shankDiameter = 6, p.lf = p.ls = 5; }, 2240, shank},
                    {[](P& p) { p.lf = 5, p.arbor = kNone; }, 2241, flute},
                    {[](P& p) { p.arbor = kNone; }, 2138, "Arbor not defined"},
                    {[](P& p) { p.arbor = kWithoutSolid; }, 2138, "Arbor not defined"}},
                   {[](P& p) { p.od = Down(10); }, [](P& p) { p.shankDiameter = Up(6); }, [](P& p) { p.lf = Up(5); }},
                   Make);
}

}  // namespace
