// tqTurningSolidDefinition: a turning holder given by insert kind, type and the lengths A to I.
#pragma once

#include <array>

#include "cadcam/tools/solids/tqtypedextrudedsoliddefinition.h"

namespace cadcam {

/// A turning holder of a catalogue type. Setters store anything; Validate (also run by the full constructor)
/// refuses what the type does not allow.
template <class T>
class TQ_EXPORT tqTurningSolidDefinition : public tqTypedExtrudedSolidDefinition<T> {
public:
    using typename tqTypedExtrudedSolidDefinition<T>::Hand;
    using typename tqTypedExtrudedSolidDefinition<T>::Shank;
    /// The kind of insert the holder takes.
    enum Insert : int {
        IN_TRIANGLE = 0, IN_DIAMOND = 1, IN_PARALLELOGRAM = 2, IN_SQUARE = 3, IN_OCTAGONAL = 4,
        IN_PENTAGONAL = 5, IN_ROUND = 6, IN_HEXAGONAL = 7, IN_GROOVE = 8
    };
    /// The holder type; 7 has no meaning.
    enum Type : int {
        GENERIC_TYPE_A = 0, GENERIC_TYPE_B = 1, GENERIC_TYPE_C = 2, GENERIC_TYPE_D = 3, GENERIC_TYPE_E = 4,
        GENERIC_TYPE_F = 5, GENERIC_TYPE_G = 6, BORE_TYPE_A = 8, BORE_TYPE_B = 9, BORE_TYPE_C = 10
    };

    /// Height 0, right hand, rectangular shank, triangle insert, generic type a, all letters 0; not validated.
    explicit tqTurningSolidDefinition(measures::tqUnitsFactory::Units units);
    /// Every field at once, then Validate.
    tqTurningSolidDefinition(measures::tqUnitsFactory::Units units, T height, Hand hand, Shank shank, Insert insert,
                             Type type, T a, T b, T c, T d, T e, T f, T g, T h, T i);
    tqTurningSolidDefinition(const tqTurningSolidDefinition&);
    tqTurningSolidDefinition& operator=(const tqTurningSolidDefinition&);
    ~tqTurningSolidDefinition() override;

    Insert GetInsert() const { return m_insert; }
    void SetInsert(Insert insert) { m_insert = insert; }
    Type GetType() const { return m_type; }
    void SetType(Type type) { m_type = type; }
    /// The length of a letter 'A' to 'I'; any other letter throws tqcadcamException 2031.
    T GetParameter(char letter) const;
    void SetParameter(char letter, T value);

    /// Throws tqcadcamException for the first rule the fields break.
    void Validate() const;

    void AcceptVisitor(tqSolidDefinitionVisitorGetter<T>& visitor) const override;

    bool operator==(const tqTurningSolidDefinition& other) const;
    bool operator!=(const tqTurningSolidDefinition& other) const { return !(*this == other); }

protected:
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    Insert m_insert;
    Type m_type;
    std::array<T, 9> m_parameters;
};

extern template class TQ_EXPORT tqTurningSolidDefinition<double>;
extern template class TQ_EXPORT tqTurningSolidDefinition<float>;

}  // namespace cadcam
