// tqEndMill: the common rules of the typed revolved tools, the shoulder extender and its default, and the profiles
// (a change of units is checked for every class in revolvedproperty_test.cpp).
#include "cadcam/tools/revolved/tqendmill.h"

#include "profilecheck.h"
#include "revolvedtest.h"

namespace {

using cadcam::tqEndMill;
using Extender = cadcam::tqTypedRevolvedTool::tqShoulderDefinitionExtender;
using namespace revolvedtest;

struct P {
    double d = 10, lf = 20, ls = 40;
    bool extender = false;
    double ds = 12, lb = 30;
};
tqEndMill Make(const P& p) {
    if (p.extender) return tqEndMill(kMetric, {}, {}, p.d, p.lf, p.ls, Extender(kMetric, p.ds, p.lb));
    return tqEndMill(kMetric, {}, {}, p.d, p.lf, p.ls);
}

const char* const kDiameter = "Invalid tool diameter";
const char* const kFlute = "Invalid flute length";
const char* const kShoulder = "Invalid shoulder length";
const char* const kBase = "Shoulder base length must be >= flute length and <= shoulder length";

TEST(tqEndMill, CommonRulesFireAtTheirBoundariesInOrder) {
    ExpectRules<P>({{[](P& p) { p.d = 0; }, 2105, kDiameter},
                    {[](P& p) { p.d = kInf; }, 2105, kDiameter},
                    {[](P& p) { p.d = kNaN; }, 2105, kDiameter},
                    {[](P& p) { p.lf = 0; }, 2103, kFlute},
                    {[](P& p) { p.lf = kInf, p.ls = kInf; }, 2103, kFlute},
                    {[](P& p) { p.lf = kNaN; }, 2103, kFlute},
                    {[](P& p) { p.ls = Down(20); }, 2107, kShoulder},
                    {[](P& p) { p.ls = kInf; }, 2107, kShoulder},
                    {[](P& p) { p.ls = kNaN; }, 2107, kShoulder},
                    {[](P& p) { p.extender = true, p.lb = Down(20); }, 2187, kBase},
                    {[](P& p) { p.extender = true, p.lb = Up(40); }, 2187, kBase},
                    // The first broken rule decides.
                    {[](P& p) { p.d = 0, p.lf = 0; }, 2105, kDiameter},
                    {[](P& p) { p.lf = kNaN, p.ls = 1; }, 2103, kFlute},
                    {[](P& p) { p.ls = 10, p.extender = true, p.lb = 50; }, 2107, kShoulder}},
                   {[](P& p) { p.d = 1e-6; }, [](P& p) { p.lf = 1e-6; }, [](P& p) { p.ls = 20; },
                    [](P& p) { p.extender = true, p.lb = 20; }, [](P& p) { p.extender = true, p.lb = 40; },
                    // The extender may be narrower than the tool.
                    [](P& p) { p.extender = true, p.ds = 1; }},
                   Make);
}

// Sizes below the profile tolerance pass the parameter rules but leave no profile the cutting part accepts.
TEST(tqEndMill, ToolsBelowTheProfileToleranceFailTheCuttingPartRules) {
    EXPECT_THROW_CODE(Make(With(P(), [](P& p) { p.d = kTiny; })), cadcam::tqcadcamException, 2146,
                      "Points must be in trigonometric order in tool part profile");
    EXPECT_THROW_CODE(Make(With(P(), [](P& p) { p.lf = 1e-10; })), cadcam::tqcadcamException, 2320,
                      "Last segment of tool part profile should not be parallel with Ox or at least not going towards "
                      "increasing X values");
}

TEST(tqEndMill, ExtenderRulesFireAtTheirBoundariesInOrder) {
    EXPECT_NO_THROW(Extender(kMetric, kTiny, kTiny));
    EXPECT_THROW_CODE(Extender(kMetric, 0, 1), cadcam::tqcadcamException, 2185, "Invalid shoulder diameter");
    EXPECT_THROW_CODE(Extender(kMetric, kNaN, 1), cadcam::tqcadcamException, 2185, "Invalid shoulder diameter");
    EXPECT_THROW_CODE(Extender(kMetric, 1, 0), cadcam::tqcadcamException, 2186, "Invalid shoulder base length");
    EXPECT_THROW_CODE(Extender(kMetric, 1, kNaN), cadcam::tqcadcamException, 2186, "Invalid shoulder base length");
    EXPECT_THROW_CODE(Extender(kMetric, kInf, 1), cadcam::tqcadcamException, 3473, "cadcam error 3473.");
    EXPECT_THROW_CODE(Extender(kMetric, 1, kInf), cadcam::tqcadcamException, 3473, "cadcam error 3473.");
    EXPECT_THROW_CODE(Extender(kMetric, -1, -1), cadcam::tqcadcamException, 2185, "Invalid shoulder diameter");
    EXPECT_THROW_CODE(Extender(kMetric, kInf, -1), cadcam::tqcadcamException, 2186, "Invalid shoulder base length");
    // The extender is built before the tool looks at its own parameters.
    EXPECT_THROW_CODE(tqEndMill(kMetric, {}, {}, 0, 20, 40, Extender(kMetric, 0, 30)), cadcam::tqcadcamException, 2185,
                      "Invalid shoulder diameter");
}

// The flutes, the shank with its part moved down by Lf, and the tool's outline that joins them.
TEST(tqEndMill, BuildsTheCuttingPartTheShankAndTheToolProfile) {
    using namespace profilecheck;
    const tqEndMill mill = Make(P());
    ExpectProfile(ProfileOf(*mill.GetCuttingPart()), Point(0, 0), {L(5, 0), L(5, 20)}, 0);
    ExpectProfile(mill.GetNonCuttingToolProfile(), Point(0, 20), {L(5, 20), L(5, 40)}, 0);
    ExpectProfile(ProfileOf(*mill.GetNonCuttingPart()), Point(0, 0), {L(5, 0), L(5, 20)}, 0);
    ExpectProfile(mill.GetProfile(), Point(0, 0), {L(5, 0), L(5, 20), L(5, 40)}, 0);
    // The default extender is the diameter at the flutes: given as such, it makes an equal tool.
    EXPECT_EQ(mill, Make(With(P(), [](P& p) { p.extender = true, p.ds = 10, p.lb = 20; })));

    // A given extender: a cone from the top of the flutes to its diameter at its base length, then a cylinder.
    const tqEndMill given = Make(With(P(), [](P& p) { p.extender = true; }));
    ExpectProfile(given.GetNonCuttingToolProfile(), Point(0, 20), {L(5, 20), L(6, 30), L(6, 40)}, 0);
    ExpectProfile(ProfileOf(*given.GetNonCuttingPart()), Point(0, 0), {L(5, 0), L(6, 10), L(6, 20)}, 0);
    ExpectProfile(given.GetProfile(), Point(0, 0), {L(5, 0), L(5, 20), L(6, 30), L(6, 40)}, 0);
    const tqEndMill atShoulder = Make(With(P(), [](P& p) { p.extender = true, p.lb = 40; }));
    ExpectProfile(atShoulder.GetNonCuttingToolProfile(), Point(0, 20), {L(5, 20), L(6, 40)}, 0);

    // No shank: the non-cutting part is there with an empty profile.
    const tqEndMill flutesOnly = Make(With(P(), [](P& p) { p.ls = 20; }));
    EXPECT_TRUE(ProfileOf(*flutesOnly.GetNonCuttingPart()).IsEmpty());
    EXPECT_TRUE(flutesOnly.GetNonCuttingToolProfile().IsEmpty());
    ExpectProfile(flutesOnly.GetProfile(), Point(0, 0), {L(5, 0), L(5, 20)}, 0);
}

}  // namespace
