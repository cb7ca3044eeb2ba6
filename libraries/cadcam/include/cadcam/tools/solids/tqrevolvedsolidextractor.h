// tqRevolvedSolidExtractor: a solid definition as the revolved solid it has to be.
#pragma once

#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"

namespace cadcam {

/// Yields the visited solid as a tqRevolvedSolidDefinition. Any other kind fails with tqcadcamException 2170, the
/// abstract base with 2177; a failed visit leaves the extractor as it was.
template <class T>
class TQ_EXPORT tqRevolvedSolidExtractor : public tqSolidDefinitionVisitorGetter<T> {
public:
    /// Lets solid accept the extractor.
    explicit tqRevolvedSolidExtractor(const tqSolidDefinition<T>& solid);
    ~tqRevolvedSolidExtractor() override;

    /// solid as its class; the reference is into solid.
    static const tqRevolvedSolidDefinition<T>& Extract(const tqSolidDefinition<T>& solid);
    /// The solid extracted last.
    const tqRevolvedSolidDefinition<T>& GetSolid() const { return *m_solid; }

    void Visit(const tqWireSolidDefinition<T>& solid) override;
    void Visit(const tqContourTurningSolidDefinition<T>& solid) override;
    void Visit(const tqTurningSolidDefinition<T>& solid) override;
    void Visit(const tqMeshSolidDefinition<T>& solid) override;
    void Visit(const tqExtrudedSolidDefinition<T>& solid) override;
    void Visit(const tqRevolvedSolidDefinition<T>& solid) override;
    [[noreturn]] void Visit(const tqSolidDefinition<T>& solid) override;

private:
    const tqRevolvedSolidDefinition<T>* m_solid = nullptr;
};

extern template class TQ_EXPORT tqRevolvedSolidExtractor<double>;
extern template class TQ_EXPORT tqRevolvedSolidExtractor<float>;

}  // namespace cadcam
