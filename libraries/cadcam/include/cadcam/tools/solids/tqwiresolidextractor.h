// tqWireSolidExtractor: a solid definition as the wire solid it has to be.
#pragma once

#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"
#include "cadcam/tools/solids/tqwiresoliddefinition.h"

namespace cadcam {

/// Yields the visited solid as a tqWireSolidDefinition. Any other kind fails with tqcadcamException 2173, the
/// abstract base with 2177; a failed visit leaves the extractor as it was.
template <class T>
class TQ_EXPORT tqWireSolidExtractor : public tqSolidDefinitionVisitorGetter<T> {
public:
    /// Lets solid accept the extractor.
    explicit tqWireSolidExtractor(const tqSolidDefinition<T>& solid);
    ~tqWireSolidExtractor() override;

    /// solid as its class; the reference is into solid.
    static const tqWireSolidDefinition<T>& Extract(const tqSolidDefinition<T>& solid);
    /// The solid extracted last.
    const tqWireSolidDefinition<T>& GetSolid() const { return *m_solid; }

    void Visit(const tqWireSolidDefinition<T>& solid) override;
    void Visit(const tqContourTurningSolidDefinition<T>& solid) override;
    void Visit(const tqTurningSolidDefinition<T>& solid) override;
    void Visit(const tqMeshSolidDefinition<T>& solid) override;
    void Visit(const tqExtrudedSolidDefinition<T>& solid) override;
    void Visit(const tqRevolvedSolidDefinition<T>& solid) override;
    [[noreturn]] void Visit(const tqSolidDefinition<T>& solid) override;

private:
    const tqWireSolidDefinition<T>* m_solid = nullptr;
};

extern template class TQ_EXPORT tqWireSolidExtractor<double>;
extern template class TQ_EXPORT tqWireSolidExtractor<float>;

}  // namespace cadcam
