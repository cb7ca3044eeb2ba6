// The tests of the left- and right-handed taps, which share their parameters and rules.
#pragma once

#include <cmath>

#include "revolvedtest.h"
#include "tools/shape/profiletoolkit.h"

namespace taptest {

using namespace revolvedtest;
using cadcam::shape::ConeHeight;
using cadcam::shape::TanDegrees;

struct P {
    double d = 10, lf = 20, ls = 30, rc = 1;
    int crt = 1;
    double angle = 120;
    int threads = 8;
};
template <class Tap>
Tap Make(const P& p) {
    return Tap(kMetric, {}, {}, p.d, p.lf, p.ls, p.rc, static_cast<typename Tap::CornerRadiusType>(p.crt), p.angle,
               p.threads);
}

/// The lead's height in the default set.
inline double Lead() { return ConeHeight(5, 60); }
/// A flat lead turns by 90° into the side: the tangent points of a corner of radius 2 lie rc·tan 45° from it.
inline double FlatT() { return 2 * TanDegrees(45); }

constexpr const char* kCrt = "Unknown corner radius type";
constexpr const char* kNegative = "Invalid corner radius, it must be >= 0.";
constexpr const char* kAngle = "Tip angle must be >=1 and <=180.";
constexpr const char* kTip = "Tip and shoulder do not intersect each other.";

/// Each rule at its boundary and in order; then the full corner fits wherever the lead does: it is found from the
/// shorter segment and its tangent point is assigned that segment's end, so rounding never pushes the fillet past the
/// flutes (it would at 30° with 57/97 and at 135° with 96/97 of the lead).
template <class Tap>
void ExpectTapRules() {
    ExpectRules<P>({{[](P& p) { p.crt = 3; }, 2109, kCrt},
                    {[](P& p) { p.crt = -1; }, 2109, kCrt},
                    {[](P& p) { p.crt = 0, p.rc = -kTiny; }, 2163, kNegative},
                    {[](P& p) { p.rc = kNaN; }, 2163, kNegative},
                    {[](P& p) { p.angle = Down(1); }, 2113, kAngle},
                    {[](P& p) { p.angle = Up(180); }, 2113, kAngle},
                    {[](P& p) { p.angle = kNaN; }, 2113, kAngle},
                    {[](P& p) { p.crt = 0, p.lf = Down(Lead()); }, 2112, kTip},
                    {[](P& p) { p.crt = 2, p.lf = Down(Lead()); }, 2112, kTip},
                    {[](P& p) { p.angle = 180, p.rc = 2, p.lf = Down(FlatT()); }, 2112, kTip},
                    {[](P& p) { p.angle = 180, p.rc = 5 / TanDegrees(45) * (1 + 1e-12); }, 2112, kTip},
                    {[](P& p) { p.rc = kInf; }, 2112, kTip},
                    // The first broken rule decides.
                    {[](P& p) { p.d = 0, p.crt = 3; }, 2105, "Invalid tool diameter"},
                    {[](P& p) { p.crt = 3, p.rc = -1; }, 2109, kCrt},
                    {[](P& p) { p.rc = -1, p.angle = 0; }, 2163, kNegative},
                    {[](P& p) { p.angle = 0, p.lf = 1e-9; }, 2113, kAngle}},
                   {[](P& p) { p.crt = 0, p.lf = Lead(); }, [](P& p) { p.crt = 0, p.rc = 100; },
                    [](P& p) { p.angle = 180, p.rc = 2, p.lf = FlatT(); },
                    [](P& p) { p.angle = 180, p.rc = 5 / TanDegrees(45) * (1 - 1e-12); },
                    [](P& p) { p.angle = 1, p.lf = 1e3, p.ls = 1e3; }},
                   Make<Tap>);
    for (const double angle : {1.0, 30.0, 59.0, 120.0, 135.0, 179.0, 180.0}) {
        const double lead = ConeHeight(5, angle / 2);
        const double side = std::hypot(5, lead);
        for (const double lf : {lead, Up(lead), lead + 0.1, lead + side / 3, lead + side * 57 / 97,
                                lead + side * 96 / 97, lead + side, Up(lead + side), lead + 10 * side}) {
            if (!(lf > 1e-9)) continue;  // a flat lead at no height: flutes below the profile tolerance
            SCOPED_TRACE(testing::Message() << "angle " << angle << ", flute length " << lf);
            P p;
            p.crt = 2, p.angle = angle, p.lf = lf, p.ls = lf;
            EXPECT_NO_THROW(Make<Tap>(p));
        }
    }
}

}  // namespace taptest
