// DockingFrameVersionGetter: the "version" a docking frame element carries.
#pragma once

#include "tqWorkRig/model/dockingframevisitor.h"

namespace tqWorkRig {

/// Yields ObjectsVersion of the visited frame's class.
class DockingFrameVersionGetter : public DockingFrameVisitor {
public:
    DockingFrameVersionGetter() : m_version(0) {}

    void Visit(const DockingFrameSocket& socket) override;
    void Visit(const DockingFramePlug& plug) override;
    /// Throws tqException "Not implemented!".
    [[noreturn]] void Visit(const DockingFrame& frame) override;

    /// The version of the last frame visited; 0 before any.
    int GetVersion() const { return m_version; }

private:
    int m_version;
};

}  // namespace tqWorkRig
