// tqTurningSolidDefinitionExtractor: a solid definition as the turning holder solid it has to be.
#pragma once

#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"
#include "cadcam/tools/solids/tqturningsoliddefinition.h"

namespace cadcam {

/// Yields the visited solid as a tqTurningSolidDefinition. Any other kind fails with tqcadcamException 2030, the
/// abstract base with 2177; a failed visit leaves the extractor as it was.
template <class T>
class TQ_EXPORT tqTurningSolidDefinitionExtractor : public tqSolidDefinitionVisitorGetter<T> {
public:
    /// Lets solid accept the extractor.
    explicit tqTurningSolidDefinitionExtractor(const tqSolidDefinition<T>& solid);
    ~tqTurningSolidDefinitionExtractor() override;

    /// solid as its class; the reference is into solid.
    static const tqTurningSolidDefinition<T>& Extract(const tqSolidDefinition<T>& solid);
    /// The solid extracted last.
    const tqTurningSolidDefinition<T>& GetSolid() const { return *m_solid; }

    void Visit(const tqWireSolidDefinition<T>& solid) override;
    void Visit(const tqContourTurningSolidDefinition<T>& solid) override;
    void Visit(const tqTurningSolidDefinition<T>& solid) override;
    void Visit(const tqMeshSolidDefinition<T>& solid) override;
    void Visit(const tqExtrudedSolidDefinition<T>& solid) override;
    void Visit(const tqRevolvedSolidDefinition<T>& solid) override;
    [[noreturn]] void Visit(const tqSolidDefinition<T>& solid) override;

private:
    const tqTurningSolidDefinition<T>* m_solid = nullptr;
};

extern template class TQ_EXPORT tqTurningSolidDefinitionExtractor<double>;
extern template class TQ_EXPORT tqTurningSolidDefinitionExtractor<float>;

}  // namespace cadcam
