// PlugNode: the node of a connector tree that stands for a plug, with the socket nodes of the same object below it.
#pragma once

#include <vector>

#include "cadcam/geometry/tqmatrix.h"
#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "tqWorkRig/model/baseobject.h"

namespace tqWorkRig {

class ConnectorTree;
class DockingFrameSocket;
class DockingFramePlug;
class SocketNode;
class TreeHelper;
namespace detail_ {
class TreeLinks;
}

/// A plug of one object in a connector tree; its children are sockets of that same object. Owns its children,
/// refers to its parent without owning it. Nodes are built only by TreeHelper, ConnectorTree and AddChild.
class TQ_EXPORT PlugNode : public BaseObject {
public:
    ~PlugNode() override;
    PlugNode(const PlugNode&) = delete;
    PlugNode& operator=(const PlugNode&) = delete;

    /// The frame this node stands for.
    const misc::tqAutoPointer<DockingFramePlug>& GetPlug() const;
    /// The socket nodes below this node, in order of attachment.
    const std::vector<misc::tqAutoPointer<SocketNode>>& GetChildren() const;
    /// The socket node this node is plugged into; null on a root.
    SocketNode* GetParent() const;
    /// The node's plug transform; the identity on a new node.
    const cadcam::tqMatrix<double, 4, 4>& GetPlugTransform() const;
    /// Replaces the plug transform.
    void SetPlugTransform(const cadcam::tqMatrix<double, 4, 4>& transform);

    /// Appends a socket node for `socket` and plugs a new node for `plugIntoChild` into it; returns that new
    /// plug node. A null argument throws before anything changes.
    misc::tqAutoPointer<PlugNode> AddChild(const misc::tqAutoPointer<DockingFrameSocket>& socket,
                                           const misc::tqAutoPointer<DockingFramePlug>& plugIntoChild);

    /// Structural equality: children, plug, parent, then the transform, exactly.
    bool operator==(const PlugNode& other) const;
    bool operator!=(const PlugNode& other) const { return !(*this == other); }

private:
    friend class ConnectorTree;
    friend class SocketNode;
    friend class TreeHelper;
    friend class detail_::TreeLinks;

    struct Impl;

    /// A detached node for `plug`, stored as it is, null included.
    explicit PlugNode(const misc::tqAutoPointer<DockingFramePlug>& plug);

    std::vector<misc::tqAutoPointer<SocketNode>>& InternalGetChildren();
    void SetParent(SocketNode* parent);
    /// Appends without a check and without touching the child's parent.
    void AddChild(const misc::tqAutoPointer<SocketNode>& child);

    /// The recursion step of every node comparison: nulls by the pointer rule, and true at once while `left`
    /// is itself being compared further up, which is what ends the walk back through parents.
    static bool GuardedEqual(const PlugNode* left, const PlugNode* right);

    Impl* m_impl;
    mutable bool m_inComparison;
};

}  // namespace tqWorkRig
