// Holder: its definition, binary stream, plug, socket and equality.
#include "tqWorkRig/model/holder.h"

#include "misc/tqmemoryiostream.h"
#include "model/dockingframelists.h"
#include "tqWorkRig/model/dockableobjectvisitor.h"
#include "tqWorkRig/model/dockingframeplug.h"
#include "tqWorkRig/model/dockingframesocket.h"

namespace tqWorkRig {

Holder::Holder(const tqstring& displayName)
    : DockableObject(displayName), m_binaryRepresentation(new misc::tqMemoryIOStream()) {}

Holder::Holder(const Holder& other) = default;

Holder& Holder::operator=(const Holder& other) = default;

Holder::~Holder() = default;

void Holder::AcceptVisitor(DockableObjectVisitor& visitor) const { visitor.Visit(*this); }

bool Holder::operator==(const Holder& other) const {
    if (this == &other) return true;
    ComparingScope comparing(*this);
    return DockableObject::operator==(other) && detail_::FramesEqual(m_plug, other.m_plug) &&
           detail_::FramesEqual(m_socket, other.m_socket) && m_holderDefinition == other.m_holderDefinition;
}

void Holder::SetHolderDefinition(const Definition& definition) { m_holderDefinition = definition; }

const Holder::StreamPointer& Holder::GetBinaryRepresentation() const {
    UpdateBinaryRepresentation();
    return m_binaryRepresentation;
}

Holder::StreamPointer& Holder::GetBinaryRepresentation() {
    UpdateBinaryRepresentation();
    return m_binaryRepresentation;
}

void Holder::SetBinaryRepresentation(const StreamPointer& stream) { m_binaryRepresentation = stream; }

void Holder::SetPlug(const PlugPointer& plug) {
    if (plug.IsNull()) return;
    m_plug = plug;
    detail_::LinkFrameToParent(*m_plug, *this);
}

void Holder::SetSocket(const SocketPointer& socket) {
    if (socket.IsNull()) return;
    m_socket = socket;
    detail_::LinkFrameToParent(*m_socket, *this);
}

void Holder::UpdateBinaryRepresentation() const {
    // The binary form of a definition is not written yet: the stream is rewritten as empty, so nothing a caller
    // stored survives a read.
    if (m_binaryRepresentation.IsNotNull()) *m_binaryRepresentation = misc::tqMemoryIOStream();
}

}  // namespace tqWorkRig
