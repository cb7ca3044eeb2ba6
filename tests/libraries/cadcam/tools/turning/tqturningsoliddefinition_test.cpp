// tqTurningSolidDefinition: the validation order, the letters each type uses, and every relation at its boundary.
#include "cadcam/tools/solids/tqturningsoliddefinition.h"

#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "cadcam/tools/tqcadcamexception.h"
#include "support/tqtest.h"

namespace {

using E = cadcam::tqcadcamException;
using Turning = cadcam::tqTurningSolidDefinition<double>;
constexpr auto kMetric = measures::tqUnitsFactory::Metric;
const char* const kPositiveText = "Invalid tqTurningSolidDefinition linear parameter must be greater than 0.";
const char* const kZeroText = "Invalid tqTurningSolidDefinition default parameter must be 0";

/// Height, then the letters A to I.
using Values = std::array<double, 10>;
std::size_t Slot(char letter) { return letter == 'h' ? 0 : static_cast<std::size_t>(letter - 'A' + 1); }

Turning Unchecked(Turning::Type type, const Values& values) {
    Turning solid(kMetric);
    solid.SetType(type);
    solid.SetHeight(values[0]);
    for (char letter = 'A'; letter <= 'I'; ++letter) solid.SetParameter(letter, values[Slot(letter)]);
    return solid;
}

/// A valid holder of every type: it uses exactly its non-zero letters.
const std::map<Turning::Type, Values> kTypes = {
    {Turning::GENERIC_TYPE_A, {125, 25, 25, 32, 32, 0, 0, 0, 0, 0}},
    {Turning::GENERIC_TYPE_B, {125, 25, 25, 32, 32, 20, 0, 0, 0, 0}},
    {Turning::GENERIC_TYPE_C, {125, 25, 25, 20, 32, 0, 20, 10, 0, 0}},
    {Turning::GENERIC_TYPE_D, {125, 25, 25, 20, 32, 20, 20, 10, 0, 0}},
    {Turning::GENERIC_TYPE_E, {125, 25, 25, 32, 0, 20, 0, 0, 0, 0}},
    {Turning::GENERIC_TYPE_F, {125, 25, 25, 20, 0, 4, 20, 10, 0, 0}},
    {Turning::GENERIC_TYPE_G, {125, 25, 25, 32, 0, 0, 0, 0, 0, 0}},
    {Turning::BORE_TYPE_A, {125, 25, 25, 32, 32, 0, 0, 0, 40, 50}},
    {Turning::BORE_TYPE_B, {125, 25, 25, 32, 32, 20, 0, 0, 40, 50}},
    {Turning::BORE_TYPE_C, {125, 25, 25, 32, 32, 20, 10, 10, 40, 50}},
};

std::string RelationText(const std::string& greater, const std::string& smaller) {
    return "Invalid tqTurningSolidDefinition linear parameter " + greater + " must be greater than " + smaller + ".";
}

TEST(tqTurningSolidDefinition, EveryTypeValidatesWithItsLettersAndRefusesTheOthers) {
    for (const auto& [type, values] : kTypes) {
        SCOPED_TRACE(type);
        EXPECT_NO_THROW(Unchecked(type, values).Validate());
        for (char letter = 'A'; letter <= 'I'; ++letter) {
            SCOPED_TRACE(std::string(1, letter));
            Values changed = values;
            if (values[Slot(letter)] != 0) {
                for (double bad : {0.0, std::numeric_limits<double>::quiet_NaN()}) {
                    changed[Slot(letter)] = bad;
                    EXPECT_THROW_CODE(Unchecked(type, changed).Validate(), E, 2268, kPositiveText);
                }
            } else {
                changed[Slot(letter)] = std::numeric_limits<double>::denorm_min();
                EXPECT_THROW_CODE(Unchecked(type, changed).Validate(), E, 2040, kZeroText);
            }
        }
    }
}

TEST(tqTurningSolidDefinition, LettersAreCheckedInOneAlphabeticalPass) {
    // Type e does not use D and uses E: the earlier letter decides.
    Values values = kTypes.at(Turning::GENERIC_TYPE_E);
    values[Slot('D')] = 1;
    values[Slot('E')] = 0;
    EXPECT_THROW_CODE(Unchecked(Turning::GENERIC_TYPE_E, values).Validate(), E, 2040, kZeroText);
    values[Slot('A')] = -1;
    EXPECT_THROW_CODE(Unchecked(Turning::GENERIC_TYPE_E, values).Validate(), E, 2268, kPositiveText);
}

/// One relation broken at its boundary by setting one value; the same value moved one ulp the right way passes.
struct RelationCase {
    Turning::Type type;
    int number;
    const char* greater;
    const char* smaller;
    char letter;
    double boundary;
    bool letterIsGreater;
};

TEST(tqTurningSolidDefinition, EveryRelationFailsWhenEqualAndPassesOneUlpAway) {
    const char* cf = "C plus F";
    const std::vector<RelationCase> cases = {
        {Turning::GENERIC_TYPE_A, 2048, "Height", "C", 'h', 32, true},
        {Turning::GENERIC_TYPE_A, 2044, "D", "A", 'D', 25, true},
        {Turning::GENERIC_TYPE_B, 2048, "Height", "C", 'h', 32, true},
        {Turning::GENERIC_TYPE_B, 2044, "D", "A", 'A', 32, false},
        {Turning::GENERIC_TYPE_B, 2046, "D", "E", 'E', 32, false},
        {Turning::GENERIC_TYPE_C, 2049, "Height", cf, 'h', 40, true},
        {Turning::GENERIC_TYPE_C, 2044, "D", "A", 'D', 25, true},
        {Turning::GENERIC_TYPE_C, 2047, "A", "G", 'G', 25, false},
        {Turning::GENERIC_TYPE_D, 2049, "Height", cf, 'F', 105, false},
        {Turning::GENERIC_TYPE_D, 2044, "D", "A", 'D', 25, true},
        {Turning::GENERIC_TYPE_D, 2046, "D", "E", 'E', 32, false},
        {Turning::GENERIC_TYPE_D, 2047, "A", "G", 'G', 25, false},
        {Turning::GENERIC_TYPE_E, 2272, "Height", "C", 'C', 125, false},
        {Turning::GENERIC_TYPE_E, 2050, "A", "E", 'E', 25, false},
        {Turning::GENERIC_TYPE_F, 2274, "Height", cf, 'h', 40, true},
        {Turning::GENERIC_TYPE_F, 2051, "G", "E", 'E', 10, false},
        {Turning::GENERIC_TYPE_F, 2273, "A", "G", 'A', 10, true},
        {Turning::GENERIC_TYPE_G, 2272, "Height", "C", 'h', 32, true},
        {Turning::BORE_TYPE_A, 2054, "D", "A", 'D', 25, true},
        {Turning::BORE_TYPE_A, 2269, "H", "D", 'H', 32, true},
        {Turning::BORE_TYPE_A, 2275, "H", "B", 'B', 40, false},
        {Turning::BORE_TYPE_A, 2270, "I", cf, 'I', 32, true},
        {Turning::BORE_TYPE_A, 2271, "Height", "I", 'h', 50, true},
        {Turning::BORE_TYPE_B, 2054, "D", "A", 'D', 25, true},
        {Turning::BORE_TYPE_B, 2055, "D", "E", 'E', 32, false},
        {Turning::BORE_TYPE_B, 2269, "H", "D", 'D', 40, false},
        {Turning::BORE_TYPE_B, 2275, "H", "B", 'B', 40, false},
        {Turning::BORE_TYPE_B, 2270, "I", cf, 'C', 50, false},
        {Turning::BORE_TYPE_B, 2271, "Height", "I", 'I', 125, false},
        {Turning::BORE_TYPE_C, 2054, "D", "A", 'D', 25, true},
        {Turning::BORE_TYPE_C, 2055, "D", "E", 'E', 32, false},
        {Turning::BORE_TYPE_C, 2056, "A", "G", 'G', 25, false},
        {Turning::BORE_TYPE_C, 2269, "H", "D", 'H', 32, true},
        {Turning::BORE_TYPE_C, 2275, "H", "B", 'B', 40, false},
        {Turning::BORE_TYPE_C, 2270, "I", cf, 'I', 42, true},
        {Turning::BORE_TYPE_C, 2271, "Height", "I", 'h', 50, true},
    };
    const double inf = std::numeric_limits<double>::infinity();
    for (const RelationCase& c : cases) {
        SCOPED_TRACE(c.number);
        Values values = kTypes.at(c.type);
        values[Slot(c.letter)] = c.boundary;
        EXPECT_THROW_CODE(Unchecked(c.type, values).Validate(), E, c.number, RelationText(c.greater, c.smaller));
        values[Slot(c.letter)] = std::nextafter(c.boundary, c.letterIsGreater ? inf : -inf);
        EXPECT_NO_THROW(Unchecked(c.type, values).Validate());
    }
}

TEST(tqTurningSolidDefinition, RelationsRunInTheirTypesOrder) {
    // Both broken: Height = C and D = A in type a (2048 first); D = A and H = D in bore type a (2054 first).
    EXPECT_THROW_CODE(Unchecked(Turning::GENERIC_TYPE_A, {32, 32, 25, 32, 32, 0, 0, 0, 0, 0}).Validate(), E, 2048,
                      RelationText("Height", "C"));
    EXPECT_THROW_CODE(Unchecked(Turning::BORE_TYPE_A, {125, 40, 25, 32, 40, 0, 0, 0, 40, 50}).Validate(), E, 2054,
                      RelationText("D", "A"));
}

TEST(tqTurningSolidDefinition, FieldsAreCheckedBeforeLettersInTheirOrder) {
    const Values good = kTypes.at(Turning::GENERIC_TYPE_A);
    Values broken{};  // A used and 0, H unused and 1
    broken[Slot('H')] = 1;
    auto validate = [&](double height, int hand, int shank, int insert, int type, const Values& values) {
        Turning solid = Unchecked(Turning::GENERIC_TYPE_A, values);
        solid.SetHeight(height);
        solid.SetHand(static_cast<Turning::Hand>(hand));
        solid.SetShank(static_cast<Turning::Shank>(shank));
        solid.SetInsert(static_cast<Turning::Insert>(insert));
        solid.SetType(static_cast<Turning::Type>(type));
        solid.Validate();
    };
    const char* heightText = "Height must be greater than 0";
    const char* insertText = "Invalid tqTurningSolidDefinition insert type.";
    EXPECT_THROW_CODE(validate(0, 2, 2, 9, 7, broken), E, 2036, heightText);
    EXPECT_THROW_CODE(validate(std::nan(""), 1, 0, 0, 0, good), E, 2036, heightText);
    EXPECT_THROW_CODE(validate(-1, 1, 0, 0, 0, good), E, 2036, heightText);
    EXPECT_THROW_CODE(validate(125, 2, 2, 9, 7, broken), E, 2266, "Hand must be left or right.");
    EXPECT_THROW_CODE(validate(125, -1, 0, 0, 0, good), E, 2266, "Hand must be left or right.");
    EXPECT_THROW_CODE(validate(125, 0, 2, 9, 7, broken), E, 2265, "Shank must be rectangular or cylindrical.");
    EXPECT_THROW_CODE(validate(125, 0, 1, 9, 7, broken), E, 2259, "SK_CYLINDRICAL is reserved and not supported.");
    EXPECT_THROW_CODE(validate(125, 0, 0, 9, 7, broken), E, 2264, insertText);
    EXPECT_THROW_CODE(validate(125, 0, 0, -1, 0, good), E, 2264, insertText);
    for (int type : {-1, 7, 11}) {
        EXPECT_THROW_CODE(validate(125, 0, 0, 8, type, broken), E, 2267, "Invalid tqTurningSolidDefinition type.");
    }
    EXPECT_THROW_CODE(validate(125, 0, 0, 8, 0, broken), E, 2268, kPositiveText);
    EXPECT_NO_THROW(validate(125, 0, 0, 8, 0, good));
}

TEST(tqTurningSolidDefinition, TheFullConstructorValidatesAndLettersOutsideAToIAreRefused) {
    EXPECT_THROW_CODE(Turning(kMetric, 125, Turning::H_RIGHT, Turning::SK_RECTANGULAR, Turning::IN_TRIANGLE,
                              Turning::GENERIC_TYPE_A, 25, 25, 32, 25, 0, 0, 0, 0, 0),
                      E, 2044, RelationText("D", "A"));
    const char* letterText = "Invalid tqTurningSolidDefinition parameter must be from A...I.";
    Turning holder = Unchecked(Turning::GENERIC_TYPE_A, kTypes.at(Turning::GENERIC_TYPE_A));
    EXPECT_THROW_CODE(holder.GetParameter('J'), E, 2031, letterText);
    EXPECT_THROW_CODE(holder.SetParameter('@', 1), E, 2031, letterText);
    EXPECT_THROW_CODE(holder.GetParameter('a'), E, 2031, letterText);
    EXPECT_TRUE(holder == Unchecked(Turning::GENERIC_TYPE_A, kTypes.at(Turning::GENERIC_TYPE_A)));
}

TEST(tqTurningSolidDefinition, SinglePrecisionFollowsTheSameRules) {
    using F = cadcam::tqTurningSolidDefinition<float>;
    EXPECT_NO_THROW(F(kMetric, 125, F::H_RIGHT, F::SK_RECTANGULAR, F::IN_TRIANGLE, F::GENERIC_TYPE_G, 25, 25, 32, 0, 0,
                      0, 0, 0, 0));
    EXPECT_THROW_CODE(
        F(kMetric, 32, F::H_RIGHT, F::SK_RECTANGULAR, F::IN_TRIANGLE, F::GENERIC_TYPE_G, 25, 25, 32, 0, 0, 0, 0, 0, 0),
        E, 2272, RelationText("Height", "C"));
}

}  // namespace
