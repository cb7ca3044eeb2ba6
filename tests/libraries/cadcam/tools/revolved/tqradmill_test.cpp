// tqRadMill: the concave corner radius and its rule among the common ones.
#include "cadcam/tools/revolved/tqradmill.h"

#include "revolvedtest.h"

namespace {

using cadcam::tqRadMill;
using Extender = cadcam::tqTypedRevolvedTool::tqShoulderDefinitionExtender;
using namespace revolvedtest;

struct P {
    double d = 10, lf = 20, ls = 30, rc = 3;
    bool extender = false;
    double lb = 25;
};
tqRadMill Make(const P& p) {
    if (p.extender) return tqRadMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, Extender(kMetric, 12, p.lb));
    return tqRadMill(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc);
}

const char* const kCorner = "Tool radius must be bigger than corner radius.";

TEST(tqRadMill, CornerRuleFiresAtItsBoundariesAmongTheCommonOnes) {
    ExpectRules<P>({{[](P& p) { p.rc = -kTiny; }, 2336, kCorner},
                    {[](P& p) { p.rc = 5; }, 2336, kCorner},
                    {[](P& p) { p.rc = kNaN; }, 2336, kCorner},
                    {[](P& p) { p.rc = kInf; }, 2336, kCorner},
                    // After the shoulder length, before the extender's base.
                    {[](P& p) { p.ls = 10, p.rc = 5; }, 2107, "Invalid shoulder length"},
                    {[](P& p) { p.rc = 5, p.extender = true, p.lb = 40; }, 2336, kCorner}},
                   {[](P& p) { p.rc = 0; }, [](P& p) { p.rc = Down(5); }, [](P& p) { p.lf = 3, p.ls = 3; }}, Make);
}

}  // namespace
