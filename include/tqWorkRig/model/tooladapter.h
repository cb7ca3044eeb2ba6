// ToolAdapter: the tool-side adapter, with sockets that take tool assemblies and plugs into a station.
#pragma once

#include <vector>

#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "tqWorkRig/model/dockableobject.h"

namespace tqWorkRig {

class DockingFramePlug;
class DockingFrameSocket;
class Geometry;

/// A spindle or turret adapter. Copies share the frame lists and the geometry.
class TQ_EXPORT ToolAdapter : public DockableObject {
public:
    using PlugPointer = misc::tqAutoPointer<DockingFramePlug>;
    using PlugList = std::vector<PlugPointer>;
    using PlugListPointer = misc::tqAutoPointer<PlugList>;
    using SocketPointer = misc::tqAutoPointer<DockingFrameSocket>;
    using SocketList = std::vector<SocketPointer>;
    using SocketListPointer = misc::tqAutoPointer<SocketList>;
    using GeometryPointer = misc::tqAutoPointer<Geometry>;

    /// New, empty frame lists, a null geometry, not rotating.
    explicit ToolAdapter(const tqstring& displayName);
    ToolAdapter(const ToolAdapter& other);
    ToolAdapter& operator=(const ToolAdapter& other);
    ~ToolAdapter() override;

    /// Calls visitor.Visit(const ToolAdapter&).
    void AcceptVisitor(DockableObjectVisitor& visitor) const override;
    /// Appends the plug and makes this adapter its parent; a null plug, or one already listed, changes nothing.
    void Add(const PlugPointer& plug);
    /// Appends the socket and makes this adapter its parent; a null socket, or one already listed, changes nothing.
    void Add(const SocketPointer& socket);
    /// True when the socket list holds this very socket (by address).
    bool CheckIfParentOf(const SocketPointer& socket) const;
    /// True when the plug list holds this very plug (by address).
    bool CheckIfParentOf(const PlugPointer& plug) const;

    /// The same object, or DockableObject equality, then the socket list, the plug list (pairwise, in order),
    /// the adapter geometry (through its class) and the rotating flag.
    bool operator==(const ToolAdapter& other) const;
    bool operator!=(const ToolAdapter& other) const { return !(*this == other); }

    /// The sockets.
    const SocketListPointer& GetSockets() const { return m_sockets; }
    /// The sockets, writable so that a caller may reseat the list.
    SocketListPointer& GetSockets() { return m_sockets; }
    /// The plugs.
    const PlugListPointer& GetPlugs() const { return m_plugs; }
    /// The plugs, writable so that a caller may reseat the list.
    PlugListPointer& GetPlugs() { return m_plugs; }
    /// The adapter's shape; may be null.
    const GeometryPointer& GetAdapterGeometry() const { return m_adapterGeometry; }
    /// The adapter's shape; may be null.
    GeometryPointer& GetAdapterGeometry() { return m_adapterGeometry; }
    /// Shares the given geometry.
    void SetAdapterGeometry(const GeometryPointer& geometry) { m_adapterGeometry = geometry; }
    /// True for a driven (rotating) adapter.
    bool GetIsRotating() const { return m_isRotating; }
    /// Stores the rotating flag.
    void SetIsRotating(bool isRotating) { m_isRotating = isRotating; }

private:
    SocketListPointer m_sockets;
    PlugListPointer m_plugs;
    GeometryPointer m_adapterGeometry;
    bool m_isRotating;
};

}  // namespace tqWorkRig
