// tqTurningSolidDefinition: fields, validation and scaling; instantiated for float and double.
#include "cadcam/tools/solids/tqturningsoliddefinition.h"

#include <cstdint>
#include <cstring>
#include <vector>

#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"
#include "cadcam/tools/tqcadcamexception.h"

namespace cadcam {
namespace {

/// One relation "X must be greater than Y" (or "than Y plus Z"); 'h' stands for Height, 0 for no Z.
struct Relation {
    std::int32_t number;
    char greater;
    char smaller;
    char plus;
};

/// The letters a holder type uses and the relations between them, in the order they are checked.
struct TypeRules {
    const char* used;
    std::vector<Relation> relations;
};

// Offset, neutral and bore types each have their own number for the same relation.
const TypeRules* RulesOf(int type) {
    static const TypeRules kGenericA{"ABCD", {{2048, 'h', 'C', 0}, {2044, 'D', 'A', 0}}};
    static const TypeRules kGenericB{"ABCDE", {{2048, 'h', 'C', 0}, {2044, 'D', 'A', 0}, {2046, 'D', 'E', 0}}};
    static const TypeRules kGenericC{"ABCDFG", {{2049, 'h', 'C', 'F'}, {2044, 'D', 'A', 0}, {2047, 'A', 'G', 0}}};
    static const TypeRules kGenericD{
        "ABCDEFG", {{2049, 'h', 'C', 'F'}, {2044, 'D', 'A', 0}, {2046, 'D', 'E', 0}, {2047, 'A', 'G', 0}}};
    static const TypeRules kGenericE{"ABCE", {{2272, 'h', 'C', 0}, {2050, 'A', 'E', 0}}};
    static const TypeRules kGenericF{"ABCEFG", {{2274, 'h', 'C', 'F'}, {2051, 'G', 'E', 0}, {2273, 'A', 'G', 0}}};
    static const TypeRules kGenericG{"ABC", {{2272, 'h', 'C', 0}}};
    static const TypeRules kBoreA{
        "ABCDHI",
        {{2054, 'D', 'A', 0}, {2269, 'H', 'D', 0}, {2275, 'H', 'B', 0}, {2270, 'I', 'C', 'F'}, {2271, 'h', 'I', 0}}};
    static const TypeRules kBoreB{"ABCDEHI",
                                  {{2054, 'D', 'A', 0},
                                   {2055, 'D', 'E', 0},
                                   {2269, 'H', 'D', 0},
                                   {2275, 'H', 'B', 0},
                                   {2270, 'I', 'C', 'F'},
                                   {2271, 'h', 'I', 0}}};
    static const TypeRules kBoreC{"ABCDEFGHI",
                                  {{2054, 'D', 'A', 0},
                                   {2055, 'D', 'E', 0},
                                   {2056, 'A', 'G', 0},
                                   {2269, 'H', 'D', 0},
                                   {2275, 'H', 'B', 0},
                                   {2270, 'I', 'C', 'F'},
                                   {2271, 'h', 'I', 0}}};
    // Type 7 has no meaning.
    static const TypeRules* const kByType[] = {&kGenericA, &kGenericB, &kGenericC, &kGenericD, &kGenericE, &kGenericF,
                                               &kGenericG, nullptr,    &kBoreA,    &kBoreB,    &kBoreC};
    if (type < 0 || type > 10) return nullptr;
    return kByType[type];
}

}  // namespace

template <class T>
tqTurningSolidDefinition<T>::tqTurningSolidDefinition(measures::tqUnitsFactory::Units units)
    : tqTypedExtrudedSolidDefinition<T>(units, 0, tqTypedExtrudedSolidDefinition<T>::H_RIGHT,
                                        tqTypedExtrudedSolidDefinition<T>::SK_RECTANGULAR),
      m_insert(IN_TRIANGLE),
      m_type(GENERIC_TYPE_A),
      m_parameters{} {}

template <class T>
tqTurningSolidDefinition<T>::tqTurningSolidDefinition(measures::tqUnitsFactory::Units units, T height, Hand hand,
                                                      Shank shank, Insert insert, Type type, T a, T b, T c, T d, T e,
                                                      T f, T g, T h, T i)
    : tqTypedExtrudedSolidDefinition<T>(units, height, hand, shank),
      m_insert(insert),
      m_type(type),
      m_parameters({a, b, c, d, e, f, g, h, i}) {
    Validate();
}

template <class T>
tqTurningSolidDefinition<T>::tqTurningSolidDefinition(const tqTurningSolidDefinition&) = default;
template <class T>
tqTurningSolidDefinition<T>& tqTurningSolidDefinition<T>::operator=(const tqTurningSolidDefinition&) = default;
template <class T>
tqTurningSolidDefinition<T>::~tqTurningSolidDefinition() = default;

template <class T>
T tqTurningSolidDefinition<T>::GetParameter(char letter) const {
    if (letter < 'A' || letter > 'I') throw tqcadcamException(2031);
    return m_parameters[letter - 'A'];
}

template <class T>
void tqTurningSolidDefinition<T>::SetParameter(char letter, T value) {
    if (letter < 'A' || letter > 'I') throw tqcadcamException(2031);
    m_parameters[letter - 'A'] = value;
}

template <class T>
void tqTurningSolidDefinition<T>::Validate() const {
    using Base = tqTypedExtrudedSolidDefinition<T>;
    if (!(this->GetHeight() > 0)) throw tqcadcamException(2036);
    const int hand = this->GetHand();
    if (hand != Base::H_LEFT && hand != Base::H_RIGHT) throw tqcadcamException(2266);
    const int shank = this->GetShank();
    if (shank != Base::SK_RECTANGULAR && shank != Base::SK_CYLINDRICAL) throw tqcadcamException(2265);
    if (shank == Base::SK_CYLINDRICAL) throw tqcadcamException(2259);
    const int insert = m_insert;
    if (insert < IN_TRIANGLE || insert > IN_GROOVE) throw tqcadcamException(2264);
    const TypeRules* rules = RulesOf(m_type);
    if (rules == nullptr) throw tqcadcamException(2267);

    for (char letter = 'A'; letter <= 'I'; ++letter) {
        const bool used = std::strchr(rules->used, letter) != nullptr;
        const T value = GetParameter(letter);
        if (used && !(value > 0)) throw tqcadcamException(2268);
        if (!used && value != 0) throw tqcadcamException(2040);
    }

    auto valueOf = [this](char letter) { return letter == 'h' ? this->GetHeight() : GetParameter(letter); };
    for (const Relation& relation : rules->relations) {
        const T smaller =
            relation.plus == 0 ? valueOf(relation.smaller) : valueOf(relation.smaller) + valueOf(relation.plus);
        if (!(valueOf(relation.greater) > smaller)) throw tqcadcamException(relation.number);
    }
}

template <class T>
void tqTurningSolidDefinition<T>::AcceptVisitor(tqSolidDefinitionVisitorGetter<T>& visitor) const {
    visitor.Visit(*this);
}

template <class T>
bool tqTurningSolidDefinition<T>::operator==(const tqTurningSolidDefinition& other) const {
    return this->BaseEquals(other) && m_insert == other.m_insert && m_type == other.m_type &&
           m_parameters == other.m_parameters;
}

template <class T>
void tqTurningSolidDefinition<T>::Scale(measures::tqUnitsFactory::Units units, const double& factor) {
    tqTypedExtrudedSolidDefinition<T>::Scale(units, factor);
    for (T& value : m_parameters) value *= static_cast<T>(factor);
}

template class tqTurningSolidDefinition<double>;
template class tqTurningSolidDefinition<float>;

}  // namespace cadcam
