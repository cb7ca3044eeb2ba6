// tqSolidDefinitionTypeFinder: which concrete kind a solid definition is.
#pragma once

#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"

namespace cadcam {

/// The concrete kinds of solid definition, numbered in the order of the visitor's slots.
enum tqSolidDefinitionType : int {
    SDT_WIRE = 0,
    SDT_CONTOUR_TURNING = 1,
    SDT_TURNING = 2,
    SDT_MESH = 3,
    SDT_EXTRUDED = 4,
    SDT_REVOLVED = 5
};

/// Tells the kind of the solid it visits; the abstract base fails with tqcadcamException 2183.
template <class T>
class TQ_EXPORT tqSolidDefinitionTypeFinder : public tqSolidDefinitionVisitorGetter<T> {
public:
    /// Lets solid accept the finder.
    explicit tqSolidDefinitionTypeFinder(const tqSolidDefinition<T>& solid);
    ~tqSolidDefinitionTypeFinder() override;

    /// The kind of solid.
    static tqSolidDefinitionType Find(const tqSolidDefinition<T>& solid);
    /// The kind of the solid visited last.
    tqSolidDefinitionType GetType() const { return m_type; }

    void Visit(const tqWireSolidDefinition<T>& solid) override;
    void Visit(const tqContourTurningSolidDefinition<T>& solid) override;
    void Visit(const tqTurningSolidDefinition<T>& solid) override;
    void Visit(const tqMeshSolidDefinition<T>& solid) override;
    void Visit(const tqExtrudedSolidDefinition<T>& solid) override;
    void Visit(const tqRevolvedSolidDefinition<T>& solid) override;
    /// Fails with 2183.
    [[noreturn]] void Visit(const tqSolidDefinition<T>& solid) override;

private:
    tqSolidDefinitionType m_type = SDT_REVOLVED;
};

extern template class TQ_EXPORT tqSolidDefinitionTypeFinder<double>;
extern template class TQ_EXPORT tqSolidDefinitionTypeFinder<float>;

}  // namespace cadcam
