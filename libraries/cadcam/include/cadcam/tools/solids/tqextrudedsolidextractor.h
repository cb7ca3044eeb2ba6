// tqExtrudedSolidExtractor: a solid definition as the extruded solid it has to be.
#pragma once

#include "cadcam/tools/solids/tqextrudedsoliddefinition.h"
#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"

namespace cadcam {

/// Yields the visited solid as a tqExtrudedSolidDefinition. Any other kind fails with tqcadcamException 2171, the
/// abstract base with 2177; a failed visit leaves the extractor as it was.
template <class T>
class TQ_EXPORT tqExtrudedSolidExtractor : public tqSolidDefinitionVisitorGetter<T> {
public:
    /// Lets solid accept the extractor.
    explicit tqExtrudedSolidExtractor(const tqSolidDefinition<T>& solid);
    ~tqExtrudedSolidExtractor() override;

    /// solid as its class; the reference is into solid.
    static const tqExtrudedSolidDefinition<T>& Extract(const tqSolidDefinition<T>& solid);
    /// The solid extracted last.
    const tqExtrudedSolidDefinition<T>& GetSolid() const { return *m_solid; }

    void Visit(const tqWireSolidDefinition<T>& solid) override;
    void Visit(const tqContourTurningSolidDefinition<T>& solid) override;
    void Visit(const tqTurningSolidDefinition<T>& solid) override;
    void Visit(const tqMeshSolidDefinition<T>& solid) override;
    void Visit(const tqExtrudedSolidDefinition<T>& solid) override;
    void Visit(const tqRevolvedSolidDefinition<T>& solid) override;
    [[noreturn]] void Visit(const tqSolidDefinition<T>& solid) override;

private:
    const tqExtrudedSolidDefinition<T>* m_solid = nullptr;
};

extern template class TQ_EXPORT tqExtrudedSolidExtractor<double>;
extern template class TQ_EXPORT tqExtrudedSolidExtractor<float>;

}  // namespace cadcam
