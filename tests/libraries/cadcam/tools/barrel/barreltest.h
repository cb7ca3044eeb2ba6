// Helpers of the barrel tool tests: the texts the rules must carry, the number a construction raises, and tables of
// changed parameter sets.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "cadcam/tools/tqcadcamexception.h"
#include "misc/tqstring.h"

namespace barreltest {

/// The text a failure of this number must carry: written out for numbers with a text, the default otherwise.
inline std::string ExpectedText(std::int32_t number) {
    static const std::map<std::int32_t, std::string> texts = {
        {2107, "Invalid shoulder length"},
        {2109, "Unknown corner radius type"},
        {2122, "Taper angle must be >=0.1 and <=89."},
        {2163, "Invalid corner radius, it must be >= 0."},
        {2164, "Invalid upper diameter"},
        {2166, "Invalid profile radius"},
        {2187, "Shoulder base length must be >= flute length and <= shoulder length"},
        {2280, "Reference diameter should be greater or equal 0 for barrel mill"},
        {2281, "Maximum diameter should be greater than reference diameter for barrel mill"},
        {2282, "Profile radius must be greater than radial distance of profile"},
        {2283, "Unknown radial position profile definition type for Barrel mill"},
        {2284, "Profile radius must be greater than axial distance of profile"},
        {2285, "Profile radius must be greater than radial distance of profile plus reference radius"},
        {2286, "Unknown axial position profile definition type for Barrel mill"},
        {2287, "Profile radius must be greater than radial distance of profile plus upper radius"},
        {2288, "Profile radius must be greater than flute length minus axial distance of profile"},
        {2289, "Unknown flute height definition type for Barrel mill"},
        {2290, "Value in flute height definition must be greater 0."},
        {2291, "Value in axial position of profile definition must be greater or equal 0."},
        {2293, "Corner radius must be lower than full corner radius"},
        {2294, "Error computing fillet parameters for a tqBarrelMill tool"},
        {2295, "Error computing fillet parameters for a tqBarrelAdvancedMill tool"},
        {2309, "Upper Diameter should be positive value"},
        {2310, "Flute Length should be positive value"},
        {2311, "Shoulder Length should be greater than flute length"},
        {2312, "Maximum diameter value must be maximum diameter value"},
        {2313, "Profile radius , maximum diameter and upper diameter values do not form a valid barrel mill"},
        {2314, "Corner radius should be smaller than Profile Radius"},
        {2315, "Corner radius fillet is not fitting inside barrel"},
        {3433, "Invalid upper radius, it must be >= 0."},
        {3435, "Error computing fillet parameters for a tqBarrelTaperMill tool."},
    };
    const auto it = texts.find(number);
    return it != texts.end() ? it->second : "cadcam error " + std::to_string(number) + ".";
}

/// Runs build and gives 0 when it succeeds, else the number of the tqcadcamException it threw, whose text is
/// checked against ExpectedText. Any other exception fails the test.
template <class Build>
std::int32_t RaisedBy(Build build) {
    try {
        build();
        return 0;
    } catch (const cadcam::tqcadcamException& e) {
        EXPECT_EQ(misc::to_utf8(e.GetMessage()), ExpectedText(e.GetCode())) << "number " << e.GetCode();
        return e.GetCode();
    } catch (...) {
        ADD_FAILURE() << "an exception other than tqcadcamException";
        return -1;
    }
}

/// The next double above or below x.
inline double Up(double x) { return std::nextafter(x, HUGE_VAL); }
inline double Down(double x) { return std::nextafter(x, -HUGE_VAL); }

/// A change to a parameter set and the number the construction must then raise (0: it builds).
template <class P>
struct Case {
    const char* what;
    void (*change)(P&);
    std::int32_t number;
};

/// Applies each case to base and checks what make raises for it.
template <class P, class Make>
void ExpectCases(const P& base, const std::vector<Case<P>>& cases, Make make) {
    for (const Case<P>& c : cases) {
        P p = base;
        c.change(p);
        EXPECT_EQ(RaisedBy([&] { make(p); }), c.number) << c.what;
    }
}

}  // namespace barreltest
