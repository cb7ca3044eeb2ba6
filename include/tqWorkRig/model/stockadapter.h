// StockAdapter: a fixture, with sockets that take stocks and plugs by which it sits on a station or fixture.
#pragma once

#include <vector>

#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "tqWorkRig/model/dockableobject.h"

namespace tqWorkRig {

class DockingFramePlug;
class DockingFrameSocket;
class Geometry;

/// A fixture such as a vise. Copies share the frame lists and the geometry.
class TQ_EXPORT StockAdapter : public DockableObject {
public:
    using PlugPointer = misc::tqAutoPointer<DockingFramePlug>;
    using PlugList = std::vector<PlugPointer>;
    using PlugListPointer = misc::tqAutoPointer<PlugList>;
    using SocketPointer = misc::tqAutoPointer<DockingFrameSocket>;
    using SocketList = std::vector<SocketPointer>;
    using SocketListPointer = misc::tqAutoPointer<SocketList>;
    using GeometryPointer = misc::tqAutoPointer<Geometry>;

    /// New, empty frame lists and a null geometry.
    explicit StockAdapter(const tqstring& displayName);
    StockAdapter(const StockAdapter& other);
    StockAdapter& operator=(const StockAdapter& other);
    ~StockAdapter() override;

    /// Calls visitor.Visit(const StockAdapter&).
    void AcceptVisitor(DockableObjectVisitor& visitor) const override;
    /// Appends the plug and makes this adapter its parent; a null plug, or one already listed, changes nothing.
    virtual void Add(const PlugPointer& plug);
    /// Appends the socket and makes this adapter its parent; a null socket, or one already listed, changes nothing.
    virtual void Add(const SocketPointer& socket);
    /// True when the socket list holds this very socket (by address).
    virtual bool CheckIfParentOf(const SocketPointer& socket) const;
    /// True when the plug list holds this very plug (by address).
    virtual bool CheckIfParentOf(const PlugPointer& plug) const;

    /// The same object, or DockableObject equality, then the socket list, the plug list (pairwise, in order) and
    /// the fixture geometry (through its class).
    bool operator==(const StockAdapter& other) const;
    bool operator!=(const StockAdapter& other) const { return !(*this == other); }

    /// The sockets.
    const SocketListPointer& GetSockets() const { return m_sockets; }
    /// The sockets, writable so that a caller may reseat the list.
    SocketListPointer& GetSockets() { return m_sockets; }
    /// The plugs.
    const PlugListPointer& GetPlugs() const { return m_plugs; }
    /// The plugs, writable so that a caller may reseat the list.
    PlugListPointer& GetPlugs() { return m_plugs; }
    /// The fixture's shape; may be null.
    const GeometryPointer& GetFixtureGeometry() const { return m_fixtureGeometry; }
    /// The fixture's shape; may be null.
    GeometryPointer& GetFixtureGeometry() { return m_fixtureGeometry; }
    /// Shares the given geometry.
    void SetFixtureGeometry(const GeometryPointer& geometry) { m_fixtureGeometry = geometry; }

private:
    SocketListPointer m_sockets;
    PlugListPointer m_plugs;
    GeometryPointer m_fixtureGeometry;
};

}  // namespace tqWorkRig
