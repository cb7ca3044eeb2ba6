// SocketNode: the node of a connector tree that stands for a socket, with at most one plug node docked in it.
#pragma once

#include "misc/export.h"
#include "misc/tqautopointer.h"

namespace tqWorkRig {

class ConnectorTree;
class DockingFrameSocket;
class PlugNode;
class TreeHelper;
namespace detail_ {
class TreeLinks;
}

/// A socket of one object in a connector tree; its child is the plug of the next object plugged into it.
/// Owns its child, refers to its parent without owning it.
class TQ_EXPORT SocketNode {
public:
    ~SocketNode();
    SocketNode(const SocketNode&) = delete;
    SocketNode& operator=(const SocketNode&) = delete;

    /// The frame this node stands for.
    const misc::tqAutoPointer<DockingFrameSocket>& GetSocket() const;
    /// The plug node docked in this socket; null until something is plugged in.
    const misc::tqAutoPointer<PlugNode>& GetChild() const;
    /// The plug node this socket belongs to; null until attached.
    PlugNode* GetParent() const;

    /// Structural equality: child, socket, then parent.
    bool operator==(const SocketNode& other) const;
    bool operator!=(const SocketNode& other) const { return !(*this == other); }

private:
    friend class ConnectorTree;
    friend class PlugNode;
    friend class TreeHelper;
    friend class detail_::TreeLinks;

    struct Impl;

    /// A detached node for `socket`, stored as it is, null included.
    explicit SocketNode(const misc::tqAutoPointer<DockingFrameSocket>& socket);

    misc::tqAutoPointer<PlugNode>& InternalGetChild();
    void SetParent(PlugNode* parent);
    /// Replaces the child without touching the new child's parent.
    void SetChild(const misc::tqAutoPointer<PlugNode>& child);

    /// As PlugNode::GuardedEqual, for socket nodes.
    static bool GuardedEqual(const SocketNode* left, const SocketNode* right);

    Impl* m_impl;
    mutable bool m_inComparison;
};

}  // namespace tqWorkRig
