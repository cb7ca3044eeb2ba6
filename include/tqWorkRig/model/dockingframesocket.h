// DockingFrameSocket: the female docking frame, into which a plug of another object goes.
#pragma once

#include "misc/export.h"
#include "tqWorkRig/model/dockingframe.h"

namespace tqWorkRig {

/// A socket: equality is DockingFrame's; compared through the base, a socket never equals a plug.
class TQ_EXPORT DockingFrameSocket : public DockingFrame {
public:
    /// The name set, no parent, the identity matrix.
    explicit DockingFrameSocket(const tqstring& displayName);
    DockingFrameSocket(const DockingFrameSocket& other);
    DockingFrameSocket& operator=(const DockingFrameSocket& other);
    ~DockingFrameSocket() override;

    /// Calls visitor.Visit(const DockingFrameSocket&).
    void AcceptVisitor(DockingFrameVisitor& visitor) const override;
};

}  // namespace tqWorkRig
