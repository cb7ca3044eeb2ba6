// Tool: its own copy of a catalogue tool, binary stream, plug and equality.
#include "tqWorkRig/model/tool.h"

#include "cadcam/tools/tqtool.h"
#include "misc/tqmemoryiostream.h"
#include "model/dockingframelists.h"
#include "tqWorkRig/model/dockableobjectvisitor.h"
#include "tqWorkRig/model/dockingframeplug.h"

namespace tqWorkRig {

Tool::Tool(const tqstring& displayName)
    : DockableObject(displayName), m_binaryRepresentation(new misc::tqMemoryIOStream()) {}

Tool::Tool(const Tool& other) = default;

Tool& Tool::operator=(const Tool& other) = default;

Tool::~Tool() = default;

void Tool::AcceptVisitor(DockableObjectVisitor& visitor) const { visitor.Visit(*this); }

bool Tool::operator==(const Tool& other) const {
    if (this == &other) return true;
    ComparingScope comparing(*this);
    if (!DockableObject::operator==(other) || !detail_::FramesEqual(m_plug, other.m_plug)) return false;
    if (m_tool.IsNull() || other.m_tool.IsNull()) return m_tool.IsNull() && other.m_tool.IsNull();
    return m_tool->IsEqual(*other.m_tool);
}

void Tool::SetTool(const ToolPointer& tool) { m_tool = tool.IsNull() ? ToolPointer() : tool->Clone(); }

const Tool::StreamPointer& Tool::GetBinaryRepresentation() const {
    UpdateBinaryRepresentation();
    return m_binaryRepresentation;
}

Tool::StreamPointer& Tool::GetBinaryRepresentation() {
    UpdateBinaryRepresentation();
    return m_binaryRepresentation;
}

void Tool::SetBinaryRepresentation(const StreamPointer& stream) { m_binaryRepresentation = stream; }

void Tool::SetPlug(const PlugPointer& plug) {
    if (plug.IsNull()) return;
    m_plug = plug;
    detail_::LinkFrameToParent(*m_plug, *this);
}

void Tool::UpdateBinaryRepresentation() const {
    // The binary form of a tool is not written yet: the stream is rewritten as empty, so nothing a caller stored
    // survives a read.
    if (m_binaryRepresentation.IsNotNull()) *m_binaryRepresentation = misc::tqMemoryIOStream();
}

}  // namespace tqWorkRig
