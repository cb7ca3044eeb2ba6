// tqBarrelAdvancedMill: the diameter and flute length its definitions give, units, and every rule at its boundary.
#include "cadcam/tools/barrel/tqbarreladvancedmill.h"

#include "barreltest.h"

namespace {

using namespace barreltest;
using Mill = cadcam::tqBarrelAdvancedMill;
using FH = Mill::FluteHeightDefinition;
using AP = Mill::AxialPositionDefinition;
using RP = Mill::RadialPositionDefinition;
constexpr auto kMetric = measures::tqUnitsFactory::Metric;
constexpr auto kInch = measures::tqUnitsFactory::Inch;

// The barrel's centre 6 beyond the axis at the height 5, radius 10: maximum diameter 8, flutes 6 long.
struct Params {
    int fhBy = FH::FH_DEF_BY_LENGTH, apBy = AP::AP_DEF_BY_DISTANCE, rpBy = RP::RP_DEF_BY_DISTANCE;
    double fh = 6, ap = 5, rpv = 6, rc = 1;
    int crt = Mill::CRT_CORNER;
    double ls = 30, rp = 10;
};

Mill Make(const Params& p, measures::tqUnitsFactory::Units units = kMetric) {
    return Mill(units, {}, {}, FH(units, p.fh, static_cast<FH::DefinitionType>(p.fhBy)),
                AP(units, p.ap, static_cast<AP::DefinitionType>(p.apBy)),
                RP(units, p.rpv, static_cast<RP::DefinitionType>(p.rpBy)), p.rc,
                static_cast<Mill::CornerRadiusType>(p.crt), p.ls, p.rp);
}

// Centre 2 beyond the axis at the height 8, radius 10: D = 16, the barrel meets the bottom at 4, and the
// diameter 8 at the height 16; the full corner radius is 8 both on the axis and at the widest point.
Params ByDiameters() {
    Params p;
    p.rpBy = RP::RP_DEF_BY_DISTANCE, p.rpv = 2;
    p.apBy = AP::AP_DEF_BY_REFERENCE_DIAMETER, p.ap = 8;
    p.fhBy = FH::FH_DEF_BY_UPPER_DIAMETER, p.fh = 8;
    return p;
}

TEST(tqBarrelAdvancedMill, DiameterAndFluteLengthFollowFromEitherKindOfDefinition) {
    Params byDistances;
    byDistances.rpBy = RP::RP_DEF_BY_MAX_DIAMETER, byDistances.rpv = 16, byDistances.ap = 8, byDistances.fh = 16;
    for (const Params& p : {ByDiameters(), byDistances}) {
        const Mill mill = Make(p);
        EXPECT_EQ(mill.GetDiameter(), 16);
        EXPECT_EQ(mill.GetFluteLength(), 16);
    }
    // The same barrel from other definitions is another tool.
    EXPECT_NE(Make(ByDiameters()), Make(byDistances));
}

TEST(tqBarrelAdvancedMill, DefinitionsTakeTheToolsUnitsAndScaleWithIt) {
    Mill mill(kInch, {}, {}, FH(kMetric, 6, FH::FH_DEF_BY_LENGTH), AP(kMetric, 5, AP::AP_DEF_BY_DISTANCE),
              RP(kMetric, 6, RP::RP_DEF_BY_DISTANCE), 1, Mill::CRT_CORNER, 30, 10);
    EXPECT_EQ(mill, Make(Params(), kInch));
    EXPECT_EQ(mill.GetRadialPositionDefinition().GetUnits(), kInch);
    mill.SetUnits(kMetric);
    EXPECT_EQ(mill.GetFluteHeightDefinition().GetUnits(), kMetric);
    EXPECT_DOUBLE_EQ(mill.GetFluteHeightDefinition().GetValue(), 6 * 25.4);
    EXPECT_DOUBLE_EQ(mill.GetAxialPositionDefinition().GetValue(), 5 * 25.4);
    EXPECT_DOUBLE_EQ(mill.GetRadialPositionDefinition().GetValue(), 6 * 25.4);
    EXPECT_DOUBLE_EQ(mill.GetProfileRadius(), 10 * 25.4);
    EXPECT_DOUBLE_EQ(mill.GetDiameter(), 8 * 25.4);
}

TEST(tqBarrelAdvancedMill, EachRuleFiresAtItsBoundary) {
    ExpectCases<Params>(
        Params(),
        {{"unknown kinds, flute height first", [](Params& p) { p.fhBy = 2, p.apBy = 2, p.rpBy = -1, p.crt = 3; }, 2289},
         {"unknown axial kind next", [](Params& p) { p.apBy = 2, p.rpBy = -1, p.crt = 3; }, 2286},
         {"unknown radial kind next", [](Params& p) { p.rpBy = -1, p.crt = 3; }, 2283},
         {"unknown corner radius type", [](Params& p) { p.crt = 3, p.rp = 0; }, 2109},
         {"profile radius 0", [](Params& p) { p.rp = 0, p.rc = -1; }, 2166},
         {"negative corner radius", [](Params& p) { p.rc = -1e-300, p.fh = 0; }, 2163},
         {"flute height 0", [](Params& p) { p.fh = 0; }, 2290},
         {"negative axial distance", [](Params& p) { p.ap = -1e-300; }, 2291},
         {"negative reference diameter", [](Params& p) { p.apBy = AP::AP_DEF_BY_REFERENCE_DIAMETER, p.ap = -1e-300; },
          2280},
         {"radial distance = profile radius", [](Params& p) { p.rpv = 10; }, 2282},
         {"axial distance = profile radius", [](Params& p) { p.ap = 10; }, 2284},
         // With the centre 6 beyond the axis, the barrel meets the bottom on the axis at the height 8.
         {"barrel meets the bottom on the axis", [](Params& p) { p.ap = 8, p.fh = 9, p.crt = 0; }, 0},
         {"barrel meets the bottom left of the axis", [](Params& p) { p.ap = Up(8), p.fh = 9, p.crt = 0; }, 2280},
         {"centre at the bottom: reference = maximum diameter", [](Params& p) { p.ap = 0; }, 2281},
         {"reference radius + distance = profile radius",
          [](Params& p) { p.apBy = AP::AP_DEF_BY_REFERENCE_DIAMETER, p.ap = 8; }, 2285},
         {"reference radius just smaller",
          [](Params& p) { p.apBy = AP::AP_DEF_BY_REFERENCE_DIAMETER, p.ap = 8 - 1e-12, p.crt = 0; }, 0},
         {"flutes a profile radius above the centre", [](Params& p) { p.fh = 15; }, 2288},
         {"flutes end on the axis", [](Params& p) { p.fh = 13; }, 0},
         {"flutes end left of the axis", [](Params& p) { p.fh = Up(13); }, 2164},
         {"upper diameter = maximum diameter", [](Params& p) { p.fhBy = FH::FH_DEF_BY_UPPER_DIAMETER, p.fh = 8; },
          2287},
         {"upper diameter above it", [](Params& p) { p.fhBy = FH::FH_DEF_BY_UPPER_DIAMETER, p.fh = Up(8); }, 2164},
         {"flutes end at the widest point", [](Params& p) { p.fh = 5; }, 0},
         {"flutes end below the widest point", [](Params& p) { p.fh = Down(5); }, 2312},
         {"shoulder below the derived flute length", [](Params& p) { p.ls = Down(6); }, 2107},
         {"full corner on the axis", [](Params& p) { p.crt = Mill::CRT_FULL; }, 0}},
        [](const Params& p) { Make(p); });
}

TEST(tqBarrelAdvancedMill, CornerRulesComeAfterTheCommonOnes) {
    const Mill::tqShoulderDefinitionExtender below(kMetric, 10, Down(6));
    EXPECT_EQ(RaisedBy([&] {
                  Mill(kMetric, {}, {}, FH(kMetric, 6, FH::FH_DEF_BY_LENGTH), AP(kMetric, 5, AP::AP_DEF_BY_DISTANCE),
                       RP(kMetric, 6, RP::RP_DEF_BY_DISTANCE), 100, Mill::CRT_CORNER, 30, 10, below);
              }),
              2187);
    // Centre 1 on this side of the axis and a reference radius of 1: the barrel touches the bottom under its
    // centre, which lies at the height Rp, so the full corner radius equals the profile radius.
    Params touching;
    touching.rpv = -1, touching.apBy = AP::AP_DEF_BY_REFERENCE_DIAMETER, touching.ap = 2, touching.fh = 15;
    touching.crt = Mill::CRT_FULL;
    ExpectCases<Params>(ByDiameters(),
                        {{"corner = full radius", [](Params& p) { p.rc = 8; }, 2293},
                         {"corner just below it", [](Params& p) { p.rc = Down(8); }, 0},
                         {"full corner", [](Params& p) { p.crt = Mill::CRT_FULL; }, 0}},
                        [](const Params& p) { Make(p); });
    ExpectCases<Params>(touching,
                        {{"full corner = profile radius", [](Params&) {}, 2295},
                         {"reference radius 1.25", [](Params& p) { p.ap = 2.5; }, 0}},
                        [](const Params& p) { Make(p); });
}

}  // namespace
