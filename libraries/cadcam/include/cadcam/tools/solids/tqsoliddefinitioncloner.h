// tqSolidDefinitionCloner: a deep copy of a solid of any kind.
#pragma once

#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"
#include "misc/tqautopointer.h"

namespace cadcam {

/// After a solid accepted it, holds a copy of that solid's own class; the abstract base fails with 2183.
template <class T>
class TQ_EXPORT tqSolidDefinitionCloner : public tqSolidDefinitionVisitorGetter<T> {
public:
    tqSolidDefinitionCloner() = default;
    ~tqSolidDefinitionCloner() override;

    /// A copy of solid, of its own class.
    static misc::tqAutoPointer<tqSolidDefinition<T>> Clone(const tqSolidDefinition<T>& solid);
    /// The copy made by the last visit; null before any.
    const misc::tqAutoPointer<tqSolidDefinition<T>>& GetClone() const { return m_clone; }

    void Visit(const tqWireSolidDefinition<T>& solid) override;
    void Visit(const tqContourTurningSolidDefinition<T>& solid) override;
    void Visit(const tqTurningSolidDefinition<T>& solid) override;
    void Visit(const tqMeshSolidDefinition<T>& solid) override;
    void Visit(const tqExtrudedSolidDefinition<T>& solid) override;
    void Visit(const tqRevolvedSolidDefinition<T>& solid) override;
    [[noreturn]] void Visit(const tqSolidDefinition<T>& solid) override;

private:
    misc::tqAutoPointer<tqSolidDefinition<T>> m_clone;
};

extern template class TQ_EXPORT tqSolidDefinitionCloner<double>;
extern template class TQ_EXPORT tqSolidDefinitionCloner<float>;

}  // namespace cadcam
