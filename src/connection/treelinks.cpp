// TreeLinks: the two steps that link a new node to an existing one in both directions.
#include "connection/treelinks.h"

#include "tqWorkRig/connection/treehelper.h"

namespace tqWorkRig {
namespace detail_ {

// Each step makes the node first and links last, so that a failure leaves the tree as it was.
misc::tqAutoPointer<SocketNode> TreeLinks::AttachSocket(PlugNode& node,
                                                        const misc::tqAutoPointer<DockingFrameSocket>& socket) {
    misc::tqAutoPointer<SocketNode> socketNode = TreeHelper::CreateNewSocketNode(socket);
    node.InternalGetChildren().push_back(socketNode);
    socketNode->SetParent(&node);
    return socketNode;
}

misc::tqAutoPointer<PlugNode> TreeLinks::AttachPlug(SocketNode& node,
                                                    const misc::tqAutoPointer<DockingFramePlug>& plug) {
    misc::tqAutoPointer<PlugNode> plugNode = TreeHelper::CreateNewPlugNode(plug);
    plugNode->SetParent(&node);
    node.SetChild(plugNode);
    return plugNode;
}

}  // namespace detail_
}  // namespace tqWorkRig
