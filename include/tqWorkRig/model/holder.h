// Holder: the part that takes the tool into the spindle or turret, with its definition, binary form, plug and socket.
#pragma once

#include "cadcam/tools/parts/tqholderdefinition.h"
#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "tqWorkRig/model/dockableobject.h"

namespace misc {
class tqMemoryIOStream;
}

namespace tqWorkRig {

class DockingFramePlug;
class DockingFrameSocket;

/// A holder: it plugs into a tool adapter's socket, and an arbor or a tool plugs into its socket. Copies share
/// the plug, the socket and the binary stream.
class TQ_EXPORT Holder : public DockableObject {
public:
    using Definition = cadcam::tqHolderDefinition<double>;
    using PlugPointer = misc::tqAutoPointer<DockingFramePlug>;
    using SocketPointer = misc::tqAutoPointer<DockingFrameSocket>;
    using StreamPointer = misc::tqAutoPointer<misc::tqMemoryIOStream>;

    /// An empty definition, a new, empty binary stream, no plug and no socket.
    explicit Holder(const tqstring& displayName);
    Holder(const Holder& other);
    Holder& operator=(const Holder& other);
    ~Holder() override;

    /// Calls visitor.Visit(const Holder&).
    void AcceptVisitor(DockableObjectVisitor& visitor) const override;

    /// The same object, or DockableObject equality, then plug, socket and definition; the stream is not compared.
    bool operator==(const Holder& other) const;
    bool operator!=(const Holder& other) const { return !(*this == other); }

    /// The holder's part definition.
    const Definition& GetHolderDefinition() const { return m_holderDefinition; }
    /// The holder's part definition.
    Definition& GetHolderDefinition() { return m_holderDefinition; }
    /// Copies the definition in.
    void SetHolderDefinition(const Definition& definition);

    /// The binary stream, rewritten from the definition before it is handed out.
    const StreamPointer& GetBinaryRepresentation() const;
    /// The binary stream, rewritten from the definition before it is handed out.
    StreamPointer& GetBinaryRepresentation();
    /// Stores the stream; its contents last only until the next read through GetBinaryRepresentation.
    void SetBinaryRepresentation(const StreamPointer& stream);

    /// The plug by which the holder sits in an adapter.
    const PlugPointer& GetPlug() const { return m_plug; }
    /// The plug by which the holder sits in an adapter.
    PlugPointer& GetPlug() { return m_plug; }
    /// Stores the plug and makes this holder its parent; null keeps the plug there is, and the old plug keeps its
    /// link.
    void SetPlug(const PlugPointer& plug);
    /// The socket that takes the arbor or the tool.
    const SocketPointer& GetSocket() const { return m_socket; }
    /// The socket that takes the arbor or the tool.
    SocketPointer& GetSocket() { return m_socket; }
    /// Stores the socket and makes this holder its parent; null keeps the socket there is.
    void SetSocket(const SocketPointer& socket);

private:
    void UpdateBinaryRepresentation() const;

    Definition m_holderDefinition;
    StreamPointer m_binaryRepresentation;
    PlugPointer m_plug;
    SocketPointer m_socket;
};

}  // namespace tqWorkRig
