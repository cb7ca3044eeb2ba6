// GeometryVisitor: the operations that differ by the concrete class of a geometry.
#pragma once

#include "misc/export.h"

namespace tqWorkRig {

class Box;
class Cylinder;
class Geometry;
class Mesh;

/// One Visit for each concrete geometry, and one for the abstract base, declared in slot order.
/// A geometry's AcceptVisitor calls exactly one of them, the one of its own class.
class TQ_EXPORT GeometryVisitor {
public:
    /// Called by a Cylinder.
    virtual void Visit(const Cylinder& cylinder) = 0;
    /// Called by a Box.
    virtual void Visit(const Box& box) = 0;
    /// Called by a Mesh.
    virtual void Visit(const Mesh& mesh) = 0;
    /// Called only by a geometry class outside the three above; implementations throw, as the base is abstract.
    virtual void Visit(const Geometry& geometry) = 0;
    virtual ~GeometryVisitor();
};

}  // namespace tqWorkRig
