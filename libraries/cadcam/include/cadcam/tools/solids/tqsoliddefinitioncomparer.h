// tqSolidDefinitionComparer: exact equality of two solids held through their base.
#pragma once

#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"

namespace cadcam {

/// Accepted by the left solid, compares it with the right one given at construction: the same concrete class
/// and equal by that class's operator==. The abstract base fails with 2183.
template <class T>
class TQ_EXPORT tqSolidDefinitionComparer : public tqSolidDefinitionVisitorGetter<T> {
public:
    explicit tqSolidDefinitionComparer(const tqSolidDefinition<T>& right) : m_right(right) {}
    ~tqSolidDefinitionComparer() override;

    /// True when left and right are of one class and equal.
    static bool Compare(const tqSolidDefinition<T>& left, const tqSolidDefinition<T>& right);
    /// The result of the last visit; false before any.
    bool GetResult() const { return m_result; }

    void Visit(const tqWireSolidDefinition<T>& left) override;
    void Visit(const tqContourTurningSolidDefinition<T>& left) override;
    void Visit(const tqTurningSolidDefinition<T>& left) override;
    void Visit(const tqMeshSolidDefinition<T>& left) override;
    void Visit(const tqExtrudedSolidDefinition<T>& left) override;
    void Visit(const tqRevolvedSolidDefinition<T>& left) override;
    [[noreturn]] void Visit(const tqSolidDefinition<T>& left) override;

private:
    template <class U>
    void CompareWith(const U& left);

    const tqSolidDefinition<T>& m_right;
    bool m_result = false;
};

extern template class TQ_EXPORT tqSolidDefinitionComparer<double>;
extern template class TQ_EXPORT tqSolidDefinitionComparer<float>;

}  // namespace cadcam
