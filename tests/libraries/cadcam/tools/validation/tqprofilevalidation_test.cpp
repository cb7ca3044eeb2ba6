// tqProfileValidation and its roles: each rule at its boundary with each role's number and text, rule order,
// and heads with arcs as the catalogue builds them.
#include "cadcam/tools/validation/tqprofilevalidation.h"

#include <cmath>
#include <limits>
#include <vector>

#include "cadcam/geometry/tq2dpoint.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "cadcam/tools/validation/tqarborvalidation.h"
#include "cadcam/tools/validation/tqcuttingpartvalidation.h"
#include "cadcam/tools/validation/tqholdervalidation.h"
#include "cadcam/tools/validation/tqnoncuttingpartvalidation.h"
#include "cadcam/tools/validation/tqtoolpartprofilevalidation.h"
#include "libraries/cadcam/tools/parts/partsamples.h"

using namespace cadcam;

namespace {

using Item = tqtest::Profile::Item;
template <class T>
using Builder = tqtest::BasicProfile<T>;
using B = tqtest::Profile;

// Every profile below whose largest coordinate is 10 has ε = 1e-8; those reaching 8 have 8e-9.
const double kEps10 = 1e-8;
const double kEps8 = 8e-9;

const tqCuttingPartValidation<double> kCutting;
const tqNonCuttingPartValidation<double> kNonCutting;
const tqArborValidation<double> kArbor;
const tqHolderValidation<double> kHolder;
const tqToolPartProfileValidation<double> kPart;
const tqProfileValidation<double> kPlain;

/// A validator with the numbers and texts of the rules whose words depend on the role.
struct Role {
    const char* name;
    const tqProfileToShapeIf<double>* validator;
    int contour;
    const char* contourText;
    int radius;
    const char* radiusText;
    int sign;
    const char* signText;
    int start;
    const char* startText;
    int height;
    const char* heightText;
};

const Role kRoles[] = {
    {"cutting", &kCutting, 2244, "Tool cutting part contour not valid", 2198, "Invalid radius in cutting part profile",
     2206, "Cutting part profile must have only positive X values", 2202, "Cutting part profile must start at Y=0",
     2200, "Invalid height in cutting part profile"},
    {"non-cutting", &kNonCutting, 2245, "Tool non cutting part contour not valid", 2199,
     "Invalid radius in non cutting part profile", 2207, "Non cutting part profile must have only positive X values",
     2203, "Non cutting part profile must start at Y=0", 2201, "Invalid height in non cutting part profile"},
    {"arbor", &kArbor, 2317, "Tool arbor contour not valid", 2136, "Invalid radius in arbor profile", 2208,
     "Arbor profile must have only positive X values", 2204, "Arbor profile must start at Y=0", 2137,
     "Invalid height in arbor profile"},
    {"holder", &kHolder, 2318, "Tool holder contour not valid", 2134, "Invalid radius in holder profile", 2209,
     "Holder profile must have only positive X values", 2205, "Holder profile must start at Y=0", 2135,
     "Invalid height in holder profile"},
    {"part", &kPart, 2243, "Tool part contour not valid", 2340, "Invalid Radius in tool part profile", 2161,
     "The tool part profile must have only positive X", 2160,
     "The tool part profile must start at Y less or equal to 0", 2144, "Invalid Height in profile"},
    {"plain", &kPlain, 2243, "Tool part contour not valid", 2143, "Invalid Radius in profile", 2161,
     "The tool part profile must have only positive X", 2160,
     "The tool part profile must start at Y less or equal to 0", 2144, "Invalid Height in profile"},
};

const char* const kContinuity = "Tool part profile is not continuous";
const char* const kSelfIntersection = "Tool part profile should not self intersect";
const char* const kBackwards =
    "Invalid backwards move at the same Y detected in tool profile.Consecutive points at the same Y must have "
    "increasing X values.";
const char* const kLastSegment =
    "Last segment of tool part profile should not be parallel with Ox or at least not going towards increasing X "
    "values";
const char* const kFirstLine =
    "The horizontal line passing through first point of tool part contour should not intersect the contour";
const char* const kLastLine =
    "The horizontal line passing through last point of tool part contour should not intersect the contour";
const char* const kOrder = "Points must be in trigonometric order in tool part profile";

#define EXPECT_RULE(role, profile, number, text) \
    EXPECT_THROW_CODE((role).validator->Validate((profile).Get()), tqcadcamException, number, text)

}  // namespace

TEST(TqProfileValidation, HeadsWithArcsPassEveryValidator) {
    const B profiles[] = {
        B(0, 0).A(3, 3, 0, 3).L(3, 10),                        // ball end
        B(0, 0).L(3, 0).A(5, 2, 3, 2).L(5, 10),                // bull mill
        B(0, 0).L(3, 0).A(5, 2, 5, 0, false).L(5, 10),         // concave corner rounding
        B(0, 0).L(3, 0).A(5, 2, 3, 2).L(5, 8).A(3, 10, 3, 8),  // slot mill ending on its upper arc
        B(2, 0).A(4, 2, 2, 2).L(4, 10),                        // tangent to the bottom closing segment
        B(0, 0).L(5e-8, 0).L(1e-7, 0).A(5, 5, 0, 5).L(5, 10),  // short flat items are fine
    };
    for (const Role& role : kRoles) {
        SCOPED_TRACE(role.name);
        for (const B& profile : profiles) EXPECT_NO_THROW(role.validator->Validate(profile.Get()));
        EXPECT_NO_THROW(role.validator->Validate(tq2dContour<double>()));  // empty is valid
    }
    // Single precision takes the same profiles.
    EXPECT_NO_THROW(tqCuttingPartValidation<float>().Validate(Builder<float>(0, 0).A(3, 3, 0, 3).L(3, 10).Get()));
    EXPECT_NO_THROW(tqHolderValidation<float>().Validate(
        Builder<float>(0, 0).L(1, 0).L(1, 0.6f).L(1.25f, 0.6f).L(1.25f, 1.4f).L(0.875f, 2.75f).Get()));
}

TEST(TqProfileValidation, ItemsMustBeFiniteLinesAndArcs) {
    const double nan = std::numeric_limits<double>::quiet_NaN(), inf = std::numeric_limits<double>::infinity();
    const Item nested = B(0, 0).L(1, 1).Get().Clone();
    const B cases[] = {B(0, 0).L(5, 0).Add(Item(new tq2dPoint<double>({5, 0}))).L(5, 10), B(0, 0).Add(nested).L(5, 10),
                       B(0, 0).L(5, 0).L(nan, 10), B(0, 0).L(inf, 0)};
    for (const Role& role : kRoles)
        for (const B& profile : cases) {
            SCOPED_TRACE(role.name);
            EXPECT_RULE(role, profile, role.contour, role.contourText);
        }
}

TEST(TqProfileValidation, ArcRadiusAboveTolerance) {
    const auto corner = [](double r) { return B(0, 0).L(5 - r, 0).A(5, r, 5 - r, r).L(5, 10); };
    for (const Role& role : kRoles) {
        SCOPED_TRACE(role.name);
        EXPECT_RULE(role, corner(0.9 * kEps10), role.radius, role.radiusText);
        EXPECT_NO_THROW(role.validator->Validate(corner(1.1 * kEps10).Get()));
    }
}

TEST(TqProfileValidation, RoleWordedRulesFireAtTheirBoundaries) {
    for (const Role& role : kRoles) {
        SCOPED_TRACE(role.name);
        const auto validate = [&](const B& profile) { role.validator->Validate(profile.Get()); };
        // Sign of X, endpoints and arc extremes.
        EXPECT_NO_THROW(validate(B(-0.9 * kEps10, 0).L(5, 0).L(5, 10)));
        EXPECT_RULE(role, B(-1.1 * kEps10, 0).L(5, 0).L(5, 10), role.sign, role.signText);
        EXPECT_RULE(role, B(0, 0).A(0, 4, 0, 2, false).L(5, 10), role.sign, role.signText);
        EXPECT_NO_THROW(validate(B(0, 0).A(0, 4, 0, 2).L(5, 10)));
        // Start at Y = 0.
        EXPECT_NO_THROW(validate(B(0, 0.9 * kEps10).L(5, 0).L(5, 10)));
        EXPECT_NO_THROW(validate(B(0, -0.9 * kEps10).L(5, 0).L(5, 10)));
        EXPECT_RULE(role, B(0, 1.1 * kEps10).L(5, 0).L(5, 10), role.start, role.startText);
        if (&role == &kRoles[5]) {  // only the plain profile may start lower
            EXPECT_NO_THROW(validate(B(0, -5).L(5, -5).L(5, 10)));
        } else {
            EXPECT_RULE(role, B(0, -1.1 * kEps10).L(5, -1.1 * kEps10).L(5, 10), role.start, role.startText);
        }
        // Nothing below the start, arc extremes included.
        EXPECT_NO_THROW(validate(B(0, 0).L(5, -0.9 * kEps10).L(5, 10)));
        EXPECT_RULE(role, B(0, 0).L(5, -1.1 * kEps10).L(5, 10), role.height, role.heightText);
        EXPECT_RULE(role, B(0, 0).L(2, 0).A(4, 0, 3, 0).L(5, 10), role.height, role.heightText);
    }
}

TEST(TqProfileValidation, ContinuityAndSelfIntersection) {
    const auto notch = [](double gap) { return B(0, 0).L(6, 0).L(6, 6).L(3, 8).L(6 - gap, 3).L(4, 4); };
    for (const Role& role : kRoles) {
        SCOPED_TRACE(role.name);
        // A gap between items.
        EXPECT_RULE(role, B(0, 0).L(5, 0).M(5, 1.1 * kEps10).L(5, 10), 2323, kContinuity);
        EXPECT_NO_THROW(role.validator->Validate(B(0, 0).L(5, 0).M(5, 0.9 * kEps10).L(5, 10).Get()));
        // Items that are not neighbours: crossing, or closer than ε.
        EXPECT_RULE(role, B(0, 0).L(5, 0).L(5, 10).L(2, 5).L(8, 6), 2324, kSelfIntersection);
        EXPECT_RULE(role, notch(0.9 * kEps8), 2324, kSelfIntersection);
        EXPECT_NO_THROW(role.validator->Validate(notch(1.1 * kEps8).Get()));
        // Neighbours folding back onto each other, along a line and around a circle.
        EXPECT_RULE(role, B(0, 0).L(5, 0).L(5, 10).L(5, 4), 2324, kSelfIntersection);
        EXPECT_RULE(role, B(0, 0).L(3, 0).A(5, 2, 3, 2).Add(Item(new tq2dArc<double>({3, 2}, 2, 0, -45))), 2324,
                    kSelfIntersection);
        // Discontinuity is reported before a negative X.
        EXPECT_RULE(role, B(-1, 0).L(5, 0).M(5, 1).L(5, 10), 2323, kContinuity);
    }
}

TEST(TqProfileValidation, FlatItemsMoveOutward) {
    for (const Role& role : kRoles) {
        SCOPED_TRACE(role.name);
        EXPECT_RULE(role, B(0, 0).L(5, 0).L(5, 5).L(3, 5).L(3, 10), 2023, kBackwards);
        EXPECT_RULE(role, B(0, 0).L(0.9 * kEps10, 0).L(5, 10), 2023, kBackwards);
        EXPECT_NO_THROW(role.validator->Validate(B(0, 0).L(1.1 * kEps10, 0).L(5, 10).Get()));
        // A first item running flat inward is already a backwards move.
        EXPECT_RULE(role, B(5, 0).L(0, 0).L(0, 10), 2023, kBackwards);
        // A flat last item is reported by the last-segment rule, before the role's last-two-points rule.
        EXPECT_RULE(role, B(0, 0).L(5, 0).L(5, 10).L(6, 10), 2320, kLastSegment);
        EXPECT_RULE(role, B(0, 0).L(5, 0).L(5, 10).L(6, 10 + 0.9 * kEps10), 2320, kLastSegment);
        EXPECT_NO_THROW(role.validator->Validate(B(0, 0).L(5, 0).L(5, 10).L(6, 10 + 1.1 * kEps10).Get()));
    }
}

TEST(TqProfileValidation, ClosingSegmentsMeetTheProfileOnlyAtTheirEnd) {
    const auto bottom = [](double yEnd) { return B(3, 0).L(5, 0).L(5, 10).L(1, 9).L(1, yEnd); };
    const auto top = [](double below) { return B(0, 0).L(2, 5 - below).L(3, 2).L(6, 2).L(6, 8).L(4, 5); };
    for (const Role& role : kRoles) {
        SCOPED_TRACE(role.name);
        EXPECT_RULE(role, bottom(0.5 * kEps10), 2321, kFirstLine);
        EXPECT_NO_THROW(role.validator->Validate(bottom(1.1 * kEps10).Get()));
        EXPECT_RULE(role, top(0.5 * kEps8), 2322, kLastLine);
        EXPECT_NO_THROW(role.validator->Validate(top(1.5 * kEps8).Get()));
        EXPECT_RULE(role, B(0, 0).L(5, 0).L(5, 8).L(2, 10).L(4, 9), 2322, kLastLine);
    }
}

TEST(TqProfileValidation, LoopMustEncloseAPositiveArea) {
    // With every X at or above zero, the loop closed along the axis cannot run clockwise without breaking an
    // earlier rule; what is left for this one is a loop of no area, such as a profile lying on the axis.
    for (const Role& role : kRoles) {
        SCOPED_TRACE(role.name);
        EXPECT_RULE(role, B(0, 0).L(0, 10), 2146, kOrder);
        // Area 5·x against ε² = 1e-16.
        EXPECT_RULE(role, B(0, 0).L(1.9e-17, 10), 2146, kOrder);
        EXPECT_NO_THROW(role.validator->Validate(B(0, 0).L(2.1e-17, 10).Get()));
    }
    // The default arbor walked backwards stops at its start rule first.
    EXPECT_RULE(kRoles[2], B(17, 45).L(17, 30).L(12, 0).L(0, 0), 2204, "Arbor profile must start at Y=0");
}
