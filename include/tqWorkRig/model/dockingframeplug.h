// DockingFramePlug: the male docking frame, which plugs into a socket of another object.
#pragma once

#include "misc/export.h"
#include "tqWorkRig/model/dockingframe.h"

namespace tqWorkRig {

/// A plug: equality is DockingFrame's; compared through the base, a plug never equals a socket.
class TQ_EXPORT DockingFramePlug : public DockingFrame {
public:
    /// The name set, no parent, the identity matrix.
    explicit DockingFramePlug(const tqstring& displayName);
    DockingFramePlug(const DockingFramePlug& other);
    DockingFramePlug& operator=(const DockingFramePlug& other);
    ~DockingFramePlug() override;

    /// Calls visitor.Visit(const DockingFramePlug&).
    void AcceptVisitor(DockingFrameVisitor& visitor) const override;
};

}  // namespace tqWorkRig
