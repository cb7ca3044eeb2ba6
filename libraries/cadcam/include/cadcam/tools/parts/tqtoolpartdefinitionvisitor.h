// tqToolPartDefinitionVisitor: the visitor over tool part roles.
#pragma once

#include "cadcam/tools/parts/tqtoolpartdefinitionlist.h"
#include "misc/export.h"

namespace cadcam {

/// One Visit per role, in this slot order, and last the abstract base's, where a visitor fails (2184).
template <class T>
class TQ_EXPORT tqToolPartDefinitionVisitor {
public:
    virtual ~tqToolPartDefinitionVisitor();
    virtual void Visit(const tqHolderDefinition<T>& part) = 0;
    virtual void Visit(const tqArborDefinition<T>& part) = 0;
    virtual void Visit(const tqNonCuttingPartDefinition<T>& part) = 0;
    virtual void Visit(const tqCuttingPartDefinition<T>& part) = 0;
    /// Reached only by a part that does not override AcceptVisitor.
    virtual void Visit(const tqToolPartDefinition<T>& part) = 0;
};

extern template class TQ_EXPORT tqToolPartDefinitionVisitor<double>;
extern template class TQ_EXPORT tqToolPartDefinitionVisitor<float>;

}  // namespace cadcam
