// DockingFrameXMLTagNameGetter: the element name of a docking frame in the document.
#pragma once

#include "tqWorkRig/model/dockingframevisitor.h"

namespace tqWorkRig {

/// Yields "DockingFramePlug" for a plug and "DockingFrameSocket" for a socket.
class DockingFrameXMLTagNameGetter : public DockingFrameVisitor {
public:
    DockingFrameXMLTagNameGetter() : m_tagName(nullptr) {}

    void Visit(const DockingFrameSocket& socket) override;
    void Visit(const DockingFramePlug& plug) override;
    /// Throws tqException "Not implemented!".
    [[noreturn]] void Visit(const DockingFrame& frame) override;

    /// The element name of the last frame visited; null before any.
    const char* GetTagName() const { return m_tagName; }

private:
    const char* m_tagName;
};

}  // namespace tqWorkRig
