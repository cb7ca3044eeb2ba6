// Arbor: its definition, binary stream, plug, socket and equality.
#include "tqWorkRig/model/arbor.h"

#include "misc/tqmemoryiostream.h"
#include "model/dockingframelists.h"
#include "tqWorkRig/model/dockableobjectvisitor.h"
#include "tqWorkRig/model/dockingframeplug.h"
#include "tqWorkRig/model/dockingframesocket.h"

namespace tqWorkRig {

Arbor::Arbor(const tqstring& displayName)
    : DockableObject(displayName), m_binaryRepresentation(new misc::tqMemoryIOStream()) {}

Arbor::Arbor(const Arbor& other) = default;

Arbor& Arbor::operator=(const Arbor& other) = default;

Arbor::~Arbor() = default;

void Arbor::AcceptVisitor(DockableObjectVisitor& visitor) const { visitor.Visit(*this); }

bool Arbor::operator==(const Arbor& other) const {
    if (this == &other) return true;
    ComparingScope comparing(*this);
    return DockableObject::operator==(other) && detail_::FramesEqual(m_plug, other.m_plug) &&
           detail_::FramesEqual(m_socket, other.m_socket) && m_arborDefinition == other.m_arborDefinition;
}

void Arbor::SetArborDefinition(const Definition& definition) { m_arborDefinition = definition; }

const Arbor::StreamPointer& Arbor::GetBinaryRepresentation() const {
    UpdateBinaryRepresentation();
    return m_binaryRepresentation;
}

Arbor::StreamPointer& Arbor::GetBinaryRepresentation() {
    UpdateBinaryRepresentation();
    return m_binaryRepresentation;
}

void Arbor::SetBinaryRepresentation(const StreamPointer& stream) { m_binaryRepresentation = stream; }

void Arbor::SetPlug(const PlugPointer& plug) {
    if (plug.IsNull()) return;
    m_plug = plug;
    detail_::LinkFrameToParent(*m_plug, *this);
}

void Arbor::SetSocket(const SocketPointer& socket) {
    if (socket.IsNull()) return;
    m_socket = socket;
    detail_::LinkFrameToParent(*m_socket, *this);
}

void Arbor::UpdateBinaryRepresentation() const {
    // The binary form of a definition is not written yet: the stream is rewritten as empty, so nothing a caller
    // stored survives a read.
    if (m_binaryRepresentation.IsNotNull()) *m_binaryRepresentation = misc::tqMemoryIOStream();
}

}  // namespace tqWorkRig
