// DockingFrameVisitor: the operations that differ by the concrete class of a docking frame.
#pragma once

#include "misc/export.h"

namespace tqWorkRig {

class DockingFrame;
class DockingFramePlug;
class DockingFrameSocket;

/// One Visit for each concrete frame and one for the abstract base, declared in slot order.
/// A frame's AcceptVisitor calls exactly one of them, the one of its own class.
class TQ_EXPORT DockingFrameVisitor {
public:
    /// Called by a DockingFrameSocket.
    virtual void Visit(const DockingFrameSocket& socket) = 0;
    /// Called by a DockingFramePlug.
    virtual void Visit(const DockingFramePlug& plug) = 0;
    /// Called only by a frame class outside the two above; implementations throw, as the base is abstract.
    virtual void Visit(const DockingFrame& frame) = 0;
    virtual ~DockingFrameVisitor();
};

}  // namespace tqWorkRig
