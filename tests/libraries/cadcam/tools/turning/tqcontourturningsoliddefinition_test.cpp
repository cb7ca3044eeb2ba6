// tqContourTurningSolidDefinition: only closed, continuous, simple contours are taken (3415).
#include "cadcam/tools/solids/tqcontourturningsoliddefinition.h"

#include <limits>
#include <vector>

#include "libraries/cadcam/tools/parts/partsamples.h"

namespace {

using tqtest::Profile;
using FloatProfile = tqtest::BasicProfile<float>;
const char* const kText = "Contour must be closed, continuous, and not self-intersecting.";

template <class T>
cadcam::tqContourTurningSolidDefinition<T> Make(const cadcam::tq2dContour<T>& contour) {
    using Solid = cadcam::tqContourTurningSolidDefinition<T>;
    return Solid(tqtest::kMetric, 125, Solid::H_RIGHT, Solid::SK_RECTANGULAR, contour);
}

TEST(tqContourTurningSolidDefinition, AClosedSimpleContourIsKept) {
    const auto square = Profile(0, 0).L(10, 0).L(10, 10).L(0, 10).L(0, 0).Get();
    EXPECT_TRUE(Make(square).GetContour() == square);
    // A lens of a line and a half circle closes as well.
    EXPECT_NO_THROW(Make(Profile(-5, 0).L(5, 0).A(-5, 0, 0, 0).Get()));
    EXPECT_NO_THROW(Make(FloatProfile(0, 0).L(10, 0).L(0, 10).L(0, 0).Get()));
}

TEST(tqContourTurningSolidDefinition, OpenBrokenOrCrossingContoursFail3415) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::vector<cadcam::tq2dContour<double>> bad = {
        {},                                                       // empty
        Profile(0, 0).L(10, 0).L(10, 10).L(0, 10).Get(),          // open
        Profile(0, 0).L(10, 0).L(0, 0).Get(),                     // folds back on itself
        Profile(0, 0).L(10, 10).L(10, 0).L(0, 10).L(0, 0).Get(),  // bow tie
        Profile(0, 0).L(10, 0).L(10, nan).L(0, 0).Get(),          // not finite
        Profile(0, 0).L(10, 0).L(10, 10).M(0, 10).L(0, 0).Get(),  // broken
    };
    for (std::size_t i = 0; i < bad.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_THROW_CODE(Make(bad[i]), cadcam::tqcadcamException, 3415, kText);
    }
    EXPECT_THROW_CODE(Make(FloatProfile(0, 0).L(10, 0).L(10, 10).L(0, 10).Get()), cadcam::tqcadcamException, 3415,
                      kText);
}

}  // namespace
