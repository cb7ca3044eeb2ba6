// tqContourTurningSolidDefinitionExtractor: a solid definition as the contour turning solid it has to be.
#pragma once

#include "cadcam/tools/solids/tqcontourturningsoliddefinition.h"
#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"

namespace cadcam {

/// Yields the visited solid as a tqContourTurningSolidDefinition. Any other kind fails with tqcadcamException 3414, the
/// abstract base with 2177; a failed visit leaves the extractor as it was.
template <class T>
class TQ_EXPORT tqContourTurningSolidDefinitionExtractor : public tqSolidDefinitionVisitorGetter<T> {
public:
    /// Lets solid accept the extractor.
    explicit tqContourTurningSolidDefinitionExtractor(const tqSolidDefinition<T>& solid);
    ~tqContourTurningSolidDefinitionExtractor() override;

    /// solid as its class; the reference is into solid.
    static const tqContourTurningSolidDefinition<T>& Extract(const tqSolidDefinition<T>& solid);
    /// The solid extracted last.
    const tqContourTurningSolidDefinition<T>& GetSolid() const { return *m_solid; }

    void Visit(const tqWireSolidDefinition<T>& solid) override;
    void Visit(const tqContourTurningSolidDefinition<T>& solid) override;
    void Visit(const tqTurningSolidDefinition<T>& solid) override;
    void Visit(const tqMeshSolidDefinition<T>& solid) override;
    void Visit(const tqExtrudedSolidDefinition<T>& solid) override;
    void Visit(const tqRevolvedSolidDefinition<T>& solid) override;
    [[noreturn]] void Visit(const tqSolidDefinition<T>& solid) override;

private:
    const tqContourTurningSolidDefinition<T>* m_solid = nullptr;
};

extern template class TQ_EXPORT tqContourTurningSolidDefinitionExtractor<double>;
extern template class TQ_EXPORT tqContourTurningSolidDefinitionExtractor<float>;

}  // namespace cadcam
