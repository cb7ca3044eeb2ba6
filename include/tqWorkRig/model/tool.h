// Tool: a cutting tool as a dockable object, holding its own copy of a catalogue tool, its binary form and plug.
#pragma once

#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "tqWorkRig/model/dockableobject.h"

namespace cadcam {
class tqTool;
}

namespace misc {
class tqMemoryIOStream;
}

namespace tqWorkRig {

class DockingFramePlug;

/// A cutting tool, the end of a chain: it has a plug and no socket. Copies share the catalogue tool, the plug
/// and the binary stream.
class TQ_EXPORT Tool : public DockableObject {
public:
    using ToolPointer = misc::tqAutoPointer<cadcam::tqTool>;
    using PlugPointer = misc::tqAutoPointer<DockingFramePlug>;
    using StreamPointer = misc::tqAutoPointer<misc::tqMemoryIOStream>;

    /// No catalogue tool, a new, empty binary stream and no plug.
    explicit Tool(const tqstring& displayName);
    Tool(const Tool& other);
    Tool& operator=(const Tool& other);
    ~Tool() override;

    /// Calls visitor.Visit(const Tool&).
    void AcceptVisitor(DockableObjectVisitor& visitor) const override;

    /// The same object, or DockableObject equality, then the plug and the catalogue tools (same class, equal
    /// parameters); the stream is not compared.
    bool operator==(const Tool& other) const;
    bool operator!=(const Tool& other) const { return !(*this == other); }

    /// This object's own catalogue tool; null for none.
    const ToolPointer& GetTool() const { return m_tool; }
    /// This object's own catalogue tool; null for none.
    ToolPointer& GetTool() { return m_tool; }
    /// Stores a copy of the tool, never the caller's object, so later changes to it do not reach here; null empties.
    void SetTool(const ToolPointer& tool);

    /// The binary stream, rewritten from the tool before it is handed out.
    const StreamPointer& GetBinaryRepresentation() const;
    /// The binary stream, rewritten from the tool before it is handed out.
    StreamPointer& GetBinaryRepresentation();
    /// Stores the stream; its contents last only until the next read through GetBinaryRepresentation.
    void SetBinaryRepresentation(const StreamPointer& stream);

    /// The plug by which the tool sits in an arbor, a holder or an adapter.
    const PlugPointer& GetPlug() const { return m_plug; }
    /// The plug by which the tool sits in an arbor, a holder or an adapter.
    PlugPointer& GetPlug() { return m_plug; }
    /// Stores the plug and makes this tool its parent; null keeps the plug there is, and the old plug keeps its
    /// link.
    void SetPlug(const PlugPointer& plug);

private:
    void UpdateBinaryRepresentation() const;

    ToolPointer m_tool;
    StreamPointer m_binaryRepresentation;
    PlugPointer m_plug;
};

}  // namespace tqWorkRig
