// Arbor: the part between tool and holder, with its definition, its binary form, its plug and its socket.
#pragma once

#include "cadcam/tools/parts/tqarbordefinition.h"
#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "tqWorkRig/model/dockableobject.h"

namespace misc {
class tqMemoryIOStream;
}

namespace tqWorkRig {

class DockingFramePlug;
class DockingFrameSocket;

/// An arbor: it plugs into a holder's socket, and a tool plugs into its socket. Copies share the plug, the
/// socket and the binary stream.
class TQ_EXPORT Arbor : public DockableObject {
public:
    using Definition = cadcam::tqArborDefinition<double>;
    using PlugPointer = misc::tqAutoPointer<DockingFramePlug>;
    using SocketPointer = misc::tqAutoPointer<DockingFrameSocket>;
    using StreamPointer = misc::tqAutoPointer<misc::tqMemoryIOStream>;

    /// An empty definition, a new, empty binary stream, no plug and no socket.
    explicit Arbor(const tqstring& displayName);
    Arbor(const Arbor& other);
    Arbor& operator=(const Arbor& other);
    ~Arbor() override;

    /// Calls visitor.Visit(const Arbor&).
    void AcceptVisitor(DockableObjectVisitor& visitor) const override;

    /// The same object, or DockableObject equality, then plug, socket and definition; the stream is not compared.
    bool operator==(const Arbor& other) const;
    bool operator!=(const Arbor& other) const { return !(*this == other); }

    /// The arbor's part definition.
    const Definition& GetArborDefinition() const { return m_arborDefinition; }
    /// The arbor's part definition.
    Definition& GetArborDefinition() { return m_arborDefinition; }
    /// Copies the definition in.
    void SetArborDefinition(const Definition& definition);

    /// The binary stream, rewritten from the definition before it is handed out.
    const StreamPointer& GetBinaryRepresentation() const;
    /// The binary stream, rewritten from the definition before it is handed out.
    StreamPointer& GetBinaryRepresentation();
    /// Stores the stream; its contents last only until the next read through GetBinaryRepresentation.
    void SetBinaryRepresentation(const StreamPointer& stream);

    /// The plug by which the arbor sits in a holder.
    const PlugPointer& GetPlug() const { return m_plug; }
    /// The plug by which the arbor sits in a holder.
    PlugPointer& GetPlug() { return m_plug; }
    /// Stores the plug and makes this arbor its parent; null keeps the plug there is, and the old plug keeps its
    /// link.
    void SetPlug(const PlugPointer& plug);
    /// The socket that takes the tool.
    const SocketPointer& GetSocket() const { return m_socket; }
    /// The socket that takes the tool.
    SocketPointer& GetSocket() { return m_socket; }
    /// Stores the socket and makes this arbor its parent; null keeps the socket there is.
    void SetSocket(const SocketPointer& socket);

private:
    void UpdateBinaryRepresentation() const;

    Definition m_arborDefinition;
    StreamPointer m_binaryRepresentation;
    PlugPointer m_plug;
    SocketPointer m_socket;
};

}  // namespace tqWorkRig
