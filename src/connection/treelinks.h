// TreeLinks: the library's own door to the private links of connector tree nodes.
#pragma once

#include <vector>

#include "misc/tqautopointer.h"
#include "tqWorkRig/connection/plugnode.h"
#include "tqWorkRig/connection/socketnode.h"

namespace tqWorkRig {
namespace detail_ {

/// Changes node links for code inside the library (tree growth, converters, readers) and its tests. Attach
/// sets both directions of a link at once; the single-sided steps are for builders that link nodes they made.
class TreeLinks {
public:
    TreeLinks() = delete;

    /// attach-socket: a new socket node for `socket`, appended to `node`'s children with `node` as its parent.
    static misc::tqAutoPointer<SocketNode> AttachSocket(PlugNode& node,
                                                        const misc::tqAutoPointer<DockingFrameSocket>& socket);
    /// attach-plug: a new plug node for `plug`, made `node`'s child with `node` as its parent.
    static misc::tqAutoPointer<PlugNode> AttachPlug(SocketNode& node,
                                                    const misc::tqAutoPointer<DockingFramePlug>& plug);

    /// A detached node for `plug`, null allowed.
    static misc::tqAutoPointer<PlugNode> MakePlugNode(const misc::tqAutoPointer<DockingFramePlug>& plug) {
        return misc::tqAutoPointer<PlugNode>(new PlugNode(plug));
    }
    /// A detached node for `socket`, null allowed.
    static misc::tqAutoPointer<SocketNode> MakeSocketNode(const misc::tqAutoPointer<DockingFrameSocket>& socket) {
        return misc::tqAutoPointer<SocketNode>(new SocketNode(socket));
    }
    static std::vector<misc::tqAutoPointer<SocketNode>>& Children(PlugNode& node) { return node.InternalGetChildren(); }
    static misc::tqAutoPointer<PlugNode>& Child(SocketNode& node) { return node.InternalGetChild(); }
    static void SetParent(PlugNode& node, SocketNode* parent) { node.SetParent(parent); }
    static void SetParent(SocketNode& node, PlugNode* parent) { node.SetParent(parent); }
    static void SetChild(SocketNode& node, const misc::tqAutoPointer<PlugNode>& child) { node.SetChild(child); }
    static void AddChild(PlugNode& node, const misc::tqAutoPointer<SocketNode>& child) { node.AddChild(child); }
};

}  // namespace detail_
}  // namespace tqWorkRig
