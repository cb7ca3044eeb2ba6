// tqSolidDefinitionVisitorGetter: the visitor over solid definitions.
#pragma once

#include "cadcam/tools/solids/tqsoliddefinitionlist.h"
#include "misc/export.h"

namespace cadcam {

/// One Visit per concrete solid, in this slot order, and last the abstract base's, where a visitor fails.
/// Every slot is pure: a visitor states what it does with each kind.
template <class T>
class TQ_EXPORT tqSolidDefinitionVisitorGetter {
public:
    virtual ~tqSolidDefinitionVisitorGetter();
    virtual void Visit(const tqWireSolidDefinition<T>& solid) = 0;
    virtual void Visit(const tqContourTurningSolidDefinition<T>& solid) = 0;
    virtual void Visit(const tqTurningSolidDefinition<T>& solid) = 0;
    virtual void Visit(const tqMeshSolidDefinition<T>& solid) = 0;
    virtual void Visit(const tqExtrudedSolidDefinition<T>& solid) = 0;
    virtual void Visit(const tqRevolvedSolidDefinition<T>& solid) = 0;
    /// Reached only by a solid that does not override AcceptVisitor; a visitor fails here.
    virtual void Visit(const tqSolidDefinition<T>& solid) = 0;
};

extern template class TQ_EXPORT tqSolidDefinitionVisitorGetter<double>;
extern template class TQ_EXPORT tqSolidDefinitionVisitorGetter<float>;

}  // namespace cadcam
