// tqTurningSolidDefinition: the validation order, the letters each type uses, and every relation at its boundary.
#include "cadcam/tools/solids/tqturningsoliddefinition.h"

#include <cmath>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "cadcam/tools/tqcadcamexception.h"
#include "support/tqtest.h"

namespace {

using cadcam::tqcadcamException;
using Turning = cadcam::tqTurningSolidDefinition<double>;
constexpr auto kMetric = measures::tqUnitsFactory::Metric;

/// Height ('h') and the letters of a holder, by letter; absent letters are 0.
using Values = std::map<char, double>;

Turning Unchecked(Turning::Type type, const Values& values) {
    Turning solid(kMetric);
    solid.SetType(type);
    solid.SetHeight(values.count('h') ? values.at('h') : 125);
    for (const auto& [letter, value] : values) {
        if (letter != 'h') solid.SetParameter(letter, value);
    }
    return solid;
}

/// A valid holder of every type, with its used letters.
struct TypeCase {
    Turning::Type type;
    const char* used;
    Values values;
};
const std::vector<TypeCase> kTypes = {
    {Turning::GENERIC_TYPE_A, "ABCD", {{'A', 25}, {'B', 25}, {'C', 32}, {'D', 32}}},
    {Turning::GENERIC_TYPE_B, "ABCDE", {{'A', 25}, {'B', 25}, {'C', 32}, {'D', 32}, {'E', 20}}},
    {Turning::GENERIC_TYPE_C, "ABCDFG", {{'A', 25}, {'B', 25}, {'C', 20}, {'D', 32}, {'F', 20}, {'G', 10}}},
    {Turning::GENERIC_TYPE_D, "ABCDEFG", {{'A', 25}, {'B', 25}, {'C', 20}, {'D', 32}, {'E', 20}, {'F', 20}, {'G', 10}}},
    {Turning::GENERIC_TYPE_E, "ABCE", {{'A', 25}, {'B', 25}, {'C', 32}, {'E', 20}}},
    {Turning::GENERIC_TYPE_F, "ABCEFG", {{'A', 25}, {'B', 25}, {'C', 20}, {'E', 4}, {'F', 20}, {'G', 10}}},
    {Turning::GENERIC_TYPE_G, "ABC", {{'A', 25}, {'B', 25}, {'C', 32}}},
    {Turning::BORE_TYPE_A, "ABCDHI", {{'A', 25}, {'B', 25}, {'C', 32}, {'D', 32}, {'H', 40}, {'I', 50}}},
    {Turning::BORE_TYPE_B, "ABCDEHI", {{'A', 25}, {'B', 25}, {'C', 32}, {'D', 32}, {'E', 20}, {'H', 40}, {'I', 50}}},
    {Turning::BORE_TYPE_C,
     "ABCDEFGHI",
     {{'A', 25}, {'B', 25}, {'C', 32}, {'D', 32}, {'E', 20}, {'F', 10}, {'G', 10}, {'H', 40}, {'I', 50}}},
};

TEST(tqTurningSolidDefinition, EveryTypeValidatesWithItsLettersAndRefusesTheOthers) {
    for (const TypeCase& c : kTypes) {
        SCOPED_TRACE(c.used);
        EXPECT_NO_THROW(Unchecked(c.type, c.values).Validate());
        for (char letter = 'A'; letter <= 'I'; ++letter) {
            SCOPED_TRACE(std::string(1, letter));
            Turning solid = Unchecked(c.type, c.values);
            if (std::string(c.used).find(letter) != std::string::npos) {
                solid.SetParameter(letter, 0);
                EXPECT_THROW_CODE(solid.Validate(), tqcadcamException, 2268,
                                  "Invalid tqTurningSolidDefinition linear parameter must be greater than 0.");
                solid.SetParameter(letter, std::numeric_limits<double>::quiet_NaN());
                EXPECT_THROW_CODE(solid.Validate(), tqcadcamException, 2268,
                                  "Invalid tqTurningSolidDefinition linear parameter must be greater than 0.");
            } else {
                solid.SetParameter(letter, std::numeric_limits<double>::denorm_min());
                EXPECT_THROW_CODE(solid.Validate(), tqcadcamException, 2040,
                                  "Invalid tqTurningSolidDefinition default parameter must be 0");
            }
        }
    }
}

TEST(tqTurningSolidDefinition, LettersAreCheckedInOneAlphabeticalPass) {
    // Type e does not use D and uses E: the earlier letter decides.
    Values values = kTypes[4].values;
    values['D'] = 1;
    values['E'] = 0;
    EXPECT_THROW_CODE(Unchecked(Turning::GENERIC_TYPE_E, values).Validate(), tqcadcamException, 2040,
                      "Invalid tqTurningSolidDefinition default parameter must be 0");
    values['A'] = -1;
    EXPECT_THROW_CODE(Unchecked(Turning::GENERIC_TYPE_E, values).Validate(), tqcadcamException, 2268,
                      "Invalid tqTurningSolidDefinition linear parameter must be greater than 0.");
}

std::string RelationText(const std::string& greater, const std::string& smaller) {
    return "Invalid tqTurningSolidDefinition linear parameter " + greater + " must be greater than " + smaller + ".";
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
    for (const RelationCase& c : cases) {
        SCOPED_TRACE(c.number);
        Values values;
        for (const TypeCase& t : kTypes) {
            if (t.type == c.type) values = t.values;
        }
        values[c.letter] = c.boundary;
        EXPECT_THROW_CODE(Unchecked(c.type, values).Validate(), tqcadcamException, c.number,
                          RelationText(c.greater, c.smaller));
        const double inf = std::numeric_limits<double>::infinity();
        values[c.letter] = std::nextafter(c.boundary, c.letterIsGreater ? inf : -inf);
        EXPECT_NO_THROW(Unchecked(c.type, values).Validate());
    }
}

TEST(tqTurningSolidDefinition, RelationsRunInTheirTypesOrder) {
    // Both broken: Height = C and D = A in type a (2048 first); D = A and H = D in bore type a (2054 first).
    EXPECT_THROW_CODE(
        Unchecked(Turning::GENERIC_TYPE_A, {{'h', 32}, {'A', 32}, {'B', 25}, {'C', 32}, {'D', 32}}).Validate(),
        tqcadcamException, 2048, RelationText("Height", "C"));
    Values bore = kTypes[7].values;
    bore['A'] = 40;
    bore['D'] = 40;
    bore['H'] = 40;
    EXPECT_THROW_CODE(Unchecked(Turning::BORE_TYPE_A, bore).Validate(), tqcadcamException, 2054,
                      RelationText("D", "A"));
}

TEST(tqTurningSolidDefinition, FieldsAreCheckedBeforeLettersInTheirOrder) {
    const Values good = kTypes[0].values;
    auto validate = [&](double height, int hand, int shank, int insert, int type, const Values& values) {
        Turning solid = Unchecked(Turning::GENERIC_TYPE_A, values);
        solid.SetHeight(height);
        solid.SetHand(static_cast<Turning::Hand>(hand));
        solid.SetShank(static_cast<Turning::Shank>(shank));
        solid.SetInsert(static_cast<Turning::Insert>(insert));
        solid.SetType(static_cast<Turning::Type>(type));
        solid.Validate();
    };
    const Values broken = {{'A', 0}, {'H', 1}};
    EXPECT_THROW_CODE(validate(0, 2, 2, 9, 7, broken), tqcadcamException, 2036, "Height must be greater than 0");
    EXPECT_THROW_CODE(validate(std::nan(""), 1, 0, 0, 0, good), tqcadcamException, 2036,
                      "Height must be greater than 0");
    EXPECT_THROW_CODE(validate(-1, 1, 0, 0, 0, good), tqcadcamException, 2036, "Height must be greater than 0");
    EXPECT_THROW_CODE(validate(125, 2, 2, 9, 7, broken), tqcadcamException, 2266, "Hand must be left or right.");
    EXPECT_THROW_CODE(validate(125, -1, 0, 0, 0, good), tqcadcamException, 2266, "Hand must be left or right.");
    EXPECT_THROW_CODE(validate(125, 0, 2, 9, 7, broken), tqcadcamException, 2265,
                      "Shank must be rectangular or cylindrical.");
    EXPECT_THROW_CODE(validate(125, 0, 1, 9, 7, broken), tqcadcamException, 2259,
                      "SK_CYLINDRICAL is reserved and not supported.");
    EXPECT_THROW_CODE(validate(125, 0, 0, 9, 7, broken), tqcadcamException, 2264,
                      "Invalid tqTurningSolidDefinition insert type.");
    EXPECT_THROW_CODE(validate(125, 0, 0, -1, 0, good), tqcadcamException, 2264,
                      "Invalid tqTurningSolidDefinition insert type.");
    for (int type : {-1, 7, 11}) {
        EXPECT_THROW_CODE(validate(125, 0, 0, 8, type, broken), tqcadcamException, 2267,
                          "Invalid tqTurningSolidDefinition type.");
    }
    EXPECT_NO_THROW(validate(125, 0, 0, 8, 0, good));
}

TEST(tqTurningSolidDefinition, TheFullConstructorValidatesAndLettersOutsideAToIAreRefused) {
    const Turning holder(kMetric, 125, Turning::H_LEFT, Turning::SK_RECTANGULAR, Turning::IN_GROOVE,
                         Turning::GENERIC_TYPE_F, 25, 25, 20, 0, 4, 20, 10, 0, 0);
    EXPECT_EQ(holder.GetHand(), Turning::H_LEFT);
    EXPECT_EQ(holder.GetInsert(), Turning::IN_GROOVE);
    EXPECT_EQ(holder.GetParameter('G'), 10);
    EXPECT_THROW_CODE(Turning(kMetric, 125, Turning::H_RIGHT, Turning::SK_RECTANGULAR, Turning::IN_TRIANGLE,
                              Turning::GENERIC_TYPE_A, 25, 25, 32, 25, 0, 0, 0, 0, 0),
                      tqcadcamException, 2044, RelationText("D", "A"));
    const char* letterText = "Invalid tqTurningSolidDefinition parameter must be from A...I.";
    EXPECT_THROW_CODE(holder.GetParameter('J'), tqcadcamException, 2031, letterText);
    Turning copy(holder);
    EXPECT_THROW_CODE(copy.SetParameter('@', 1), tqcadcamException, 2031, letterText);
    EXPECT_THROW_CODE(copy.GetParameter('a'), tqcadcamException, 2031, letterText);
    EXPECT_TRUE(copy == holder);
}

TEST(tqTurningSolidDefinition, TheDefaultHoldersOfEveryInsertValidateInBothUnits) {
    // Type, then Height and A to G: the metric and the inch values of each.
    const std::vector<std::pair<Turning::Type, std::vector<double>>> holders = {
        {Turning::GENERIC_TYPE_A, {125, 25, 25, 32, 32, 0, 0, 0}},
        {Turning::GENERIC_TYPE_A, {5, 1, 1, 1.25, 1.25, 0, 0, 0}},
        {Turning::GENERIC_TYPE_B, {125, 25, 25, 32, 32, 20, 0, 0}},
        {Turning::GENERIC_TYPE_B, {5, 1, 1, 1.25, 1.25, 0.75, 0, 0}},
        {Turning::GENERIC_TYPE_E, {125, 25, 25, 32, 0, 20, 0, 0}},
        {Turning::GENERIC_TYPE_E, {5, 1, 1, 1.25, 0, 0.75, 0, 0}},
        {Turning::GENERIC_TYPE_F, {125, 25, 25, 20, 0, 4, 20, 10}},
        {Turning::GENERIC_TYPE_F, {5, 1, 1, 0.75, 0, 0.15, 0.75, 0.4}},
    };
    for (const auto& [type, v] : holders) {
        EXPECT_NO_THROW(Turning(kMetric, v[0], Turning::H_RIGHT, Turning::SK_RECTANGULAR, Turning::IN_GROOVE, type,
                                v[1], v[2], v[3], v[4], v[5], v[6], v[7], 0, 0));
    }
}

TEST(tqTurningSolidDefinition, SinglePrecisionFollowsTheSameRules) {
    using F = cadcam::tqTurningSolidDefinition<float>;
    EXPECT_NO_THROW(F(kMetric, 125, F::H_RIGHT, F::SK_RECTANGULAR, F::IN_TRIANGLE, F::GENERIC_TYPE_G, 25, 25, 32, 0, 0,
                      0, 0, 0, 0));
    EXPECT_THROW_CODE(
        F(kMetric, 32, F::H_RIGHT, F::SK_RECTANGULAR, F::IN_TRIANGLE, F::GENERIC_TYPE_G, 25, 25, 32, 0, 0, 0, 0, 0, 0),
        tqcadcamException, 2272, RelationText("Height", "C"));
}

}  // namespace
