// tqSolidDefinitionBoundingBox: the axis-aligned box of a solid of any kind.
#pragma once

#include "cadcam/geometry/tq3dboundingbox.h"
#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"

namespace cadcam {

/// The exact box of a solid in its own coordinates: arcs count with their extremes within the sweep, so a box
/// side lies where the solid touches it. An empty solid gives an uninitialised box. Failures (tqcadcamException):
/// 2174 an infinite wire, 2171 an extruded solid with a zero plane normal, 2030 a turning holder of no known type
/// or hand, 3414 a contour turning solid of no known hand, 2177 a solid of no known kind.
class TQ_EXPORT tqSolidDefinitionBoundingBox : public tqSolidDefinitionVisitorGetter<double> {
public:
    tqSolidDefinitionBoundingBox();
    ~tqSolidDefinitionBoundingBox() override;

    /// The box of solid.
    static tq3dBoundingBox Of(const tqSolidDefinition<double>& solid);
    /// The box of the solid visited last.
    const tq3dBoundingBox& GetBox() const { return m_box; }

    void Visit(const tqWireSolidDefinition<double>& solid) override;
    void Visit(const tqContourTurningSolidDefinition<double>& solid) override;
    void Visit(const tqTurningSolidDefinition<double>& solid) override;
    void Visit(const tqMeshSolidDefinition<double>& solid) override;
    void Visit(const tqExtrudedSolidDefinition<double>& solid) override;
    void Visit(const tqRevolvedSolidDefinition<double>& solid) override;
    /// Fails with tqcadcamException 2177.
    [[noreturn]] void Visit(const tqSolidDefinition<double>& solid) override;

private:
    tq3dBoundingBox m_box;
};

}  // namespace cadcam
