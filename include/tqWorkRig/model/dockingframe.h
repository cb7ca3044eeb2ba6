// DockingFrame: a coordinate frame fixed on a dockable object, the abstract base of plug and socket.
#pragma once

#include "cadcam/geometry/tqmatrix.h"
#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "tqWorkRig/model/baseobject.h"

namespace tqWorkRig {

class DockableObject;
class DockingFrameVisitor;

/// A placement on a parent object. The parent link does not own: the parent makes it from its own `this` with
/// a control block of its own, and the frame clears that block's owns flag when it dies. A frame is to receive a
/// parent once: assigning over a link that is the last of its block deletes the old parent.
class TQ_EXPORT DockingFrame : public BaseObject {
public:
    using Matrix = cadcam::tqMatrix<double, 4, 4>;
    using ParentPointer = misc::tqAutoPointer<DockableObject>;

    /// The name set, no parent, the identity matrix.
    explicit DockingFrame(const tqstring& displayName);
    /// Copies the base and the matrix and shares the parent link's control block.
    DockingFrame(const DockingFrame& other);
    /// Member by member; the target's old link is released as any tqAutoPointer is.
    DockingFrame& operator=(const DockingFrame& other);
    /// Clears the parent link's owns flag before letting go of it, so the parent survives.
    ~DockingFrame() override;

    /// Calls the visitor's Visit for this frame's concrete class.
    virtual void AcceptVisitor(DockingFrameVisitor& visitor) const = 0;

    /// The same frame, or BaseObject equality, the sixteen elements exactly equal, and equal parents: a parent
    /// whose own comparison is under way counts as equal, so a frame never recurses back into it.
    bool operator==(const DockingFrame& other) const;
    bool operator!=(const DockingFrame& other) const { return !(*this == other); }

    /// The placement on the parent.
    Matrix& GetMatrix() { return m_matrix; }
    /// The placement on the parent.
    const Matrix& GetMatrix() const { return m_matrix; }
    /// Replaces the placement.
    void SetMatrix(const Matrix& matrix) { m_matrix = matrix; }

    /// The object that carries the frame; null until the frame is added to one.
    ParentPointer& GetParent() { return m_parent; }
    /// The object that carries the frame; null until the frame is added to one.
    const ParentPointer& GetParent() const { return m_parent; }
    /// Plain assignment over the old link (see the class comment).
    void SetParent(const ParentPointer& parent) { m_parent = parent; }

private:
    ParentPointer m_parent;
    Matrix m_matrix;
};

}  // namespace tqWorkRig
