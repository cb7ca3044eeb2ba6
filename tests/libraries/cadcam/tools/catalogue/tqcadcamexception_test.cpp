// tqcadcamException: the text by number, the default text, and the copy of its own class.
#include <gtest/gtest.h>

#include "cadcam/tools/tqcadcamexception.h"
#include "support/tqtest.h"

namespace {

using cadcam::tqcadcamException;

TEST(tqcadcamException, TakesItsTextFromTheTableByNumber) {
    const struct {
        int number;
        const char* text;
    } cases[] = {
        {2020, "Visitor's method 'Visit' is not implemented."},
        {2105, "Invalid tool diameter"},
        {2147, "Outside diameter must be > 0 "},
        {2313, "Profile radius , maximum diameter and upper diameter values do not form a valid barrel mill"},
        {2049, "Invalid tqTurningSolidDefinition linear parameter Height must be greater than C plus F."},
        {2270, "Invalid tqTurningSolidDefinition linear parameter I must be greater than C plus F."},
        {2023, "Invalid backwards move at the same Y detected in tool profile.Consecutive points at the same Y must "
               "have increasing X values."},
        {3415, "Contour must be closed, continuous, and not self-intersecting."},
        {3473, "cadcam error 3473."},
        {2251, "cadcam error 2251."},
        {0, "cadcam error 0."},
        {-5, "cadcam error -5."},
    };
    for (const auto& c : cases) {
        const tqcadcamException e(c.number);
        EXPECT_EQ(e.GetCode(), c.number);
        EXPECT_EQ(misc::to_utf8(e.GetMessage()), c.text);
    }
}

TEST(tqcadcamException, RethrowsAndClonesAsItsOwnClassWithTheEarlierFailure) {
    const misc::tqException earlier(7, u"earlier");
    const tqcadcamException e(2105, &earlier);
    ASSERT_EQ(e.GetEarlierFailures().size(), 1u);
    EXPECT_EQ(e.GetEarlierFailures().front().code, 7);
    EXPECT_THROW_CODE(e.Rethrow(), tqcadcamException, 2105, "Invalid tool diameter");
    EXPECT_THROW_CODE(e.Clone()->Rethrow(), tqcadcamException, 2105, "Invalid tool diameter");
}

}  // namespace
