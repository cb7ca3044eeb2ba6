// Stock: a workpiece, with the plugs by which it sits on its fixtures, its part and its stock geometry.
#pragma once

#include <vector>

#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "tqWorkRig/model/dockableobject.h"

namespace tqWorkRig {

class DockingFramePlug;
class Geometry;

/// A workpiece. Copies share the plug list and the geometries.
class TQ_EXPORT Stock : public DockableObject {
public:
    using PlugPointer = misc::tqAutoPointer<DockingFramePlug>;
    using PlugList = std::vector<PlugPointer>;
    using PlugListPointer = misc::tqAutoPointer<PlugList>;
    using GeometryPointer = misc::tqAutoPointer<Geometry>;

    /// A new, empty plug list and null geometries.
    explicit Stock(const tqstring& displayName);
    Stock(const Stock& other);
    Stock& operator=(const Stock& other);
    ~Stock() override;

    /// Calls visitor.Visit(const Stock&).
    void AcceptVisitor(DockableObjectVisitor& visitor) const override;
    /// True when the plug list holds this very plug (by address); the plug's parent link is not read.
    virtual bool CheckIfParentOf(const PlugPointer& plug) const;

    /// Appends the plug and makes this stock its parent; a null plug, or one already listed, changes nothing.
    void Add(const PlugPointer& plug);

    /// The same object, or DockableObject equality, then the plug lists pairwise in order, the part geometry and
    /// the stock geometry (through their classes).
    bool operator==(const Stock& other) const;
    bool operator!=(const Stock& other) const { return !(*this == other); }

    /// The plugs.
    const PlugListPointer& GetPlugs() const { return m_plugs; }
    /// The plugs, writable so that a caller may reseat the list.
    PlugListPointer& GetPlugs() { return m_plugs; }
    /// The finished part's shape; may be null.
    const GeometryPointer& GetPartGeometry() const { return m_partGeometry; }
    /// The finished part's shape; may be null.
    GeometryPointer& GetPartGeometry() { return m_partGeometry; }
    /// Shares the given geometry.
    void SetPartGeometry(const GeometryPointer& geometry) { m_partGeometry = geometry; }
    /// The raw stock's shape; may be null.
    const GeometryPointer& GetStockGeometry() const { return m_stockGeometry; }
    /// The raw stock's shape; may be null.
    GeometryPointer& GetStockGeometry() { return m_stockGeometry; }
    /// Shares the given geometry.
    void SetStockGeometry(const GeometryPointer& geometry) { m_stockGeometry = geometry; }

private:
    PlugListPointer m_plugs;
    GeometryPointer m_partGeometry;
    GeometryPointer m_stockGeometry;
};

}  // namespace tqWorkRig
