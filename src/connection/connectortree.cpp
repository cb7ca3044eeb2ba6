// ConnectorTree: the root, how a plug and a socket find their place, and the queries across objects.
#include "tqWorkRig/connection/connectortree.h"

#include <algorithm>

#include "connection/treelinks.h"
#include "misc/tqexception.h"
#include "tqWorkRig/connection/plugnode.h"
#include "tqWorkRig/connection/socketnode.h"
#include "tqWorkRig/connection/toolassembly.h"
#include "tqWorkRig/connection/treehelper.h"
#include "tqWorkRig/model/dockingframeplug.h"
#include "tqWorkRig/model/dockingframesocket.h"
#include "tqWorkRig/model/stock.h"
#include "tqWorkRig/model/stockadapter.h"
#include "tqWorkRig/model/tooladapter.h"

namespace tqWorkRig {

namespace {

constexpr const char16_t* kAddConnection = u"tqWorkRig::ConnectorTree::AddConnection";

// The three searches differ on purpose; all compare frames by address, depth first, first hit wins.

/// From a plug node: the node itself, then below every child socket. A socket node without a child is an
/// error here and throws the null-pointer failure.
PlugNode* FindPlugNode(PlugNode* start, const DockingFramePlug* wanted) {
    if (start == nullptr) return nullptr;
    if (&*start->GetPlug() == wanted) return start;
    for (const auto& socketNode : start->GetChildren()) {
        if (PlugNode* found = FindPlugNode(&*socketNode->GetChild(), wanted)) return found;
    }
    return nullptr;
}

/// From a plug node, for the object queries: its socket children and below; a childless socket node is
/// passed over.
SocketNode* FindSocketNodeBelow(const PlugNode* start, const DockingFrameSocket* wanted) {
    if (start == nullptr) return nullptr;
    for (const auto& socketNode : start->GetChildren()) {
        if (socketNode->GetSocket().Get() == wanted) return socketNode.Get();
        if (socketNode->GetChild().IsNotNull()) {
            if (SocketNode* found = FindSocketNodeBelow(socketNode->GetChild().Get(), wanted)) return found;
        }
    }
    return nullptr;
}

/// From a socket node, for AddConnection: the node itself, then the sockets of its child plug node.
SocketNode* FindSocketNode(SocketNode* start, const DockingFrameSocket* wanted) {
    if (start == nullptr) return nullptr;
    if (start->GetSocket().Get() == wanted) return start;
    if (start->GetChild().IsNull()) return nullptr;
    for (const auto& socketNode : start->GetChild()->GetChildren()) {
        if (SocketNode* found = FindSocketNode(socketNode.Get(), wanted)) return found;
    }
    return nullptr;
}

}  // namespace

ConnectorTree::ConnectorTree() : BaseObject(tqstring()) {}

ConnectorTree::ConnectorTree(const misc::tqAutoPointer<DockingFramePlug>& plug)
    : BaseObject(tqstring()), m_root(TreeHelper::CreateNewPlugNode(plug)) {}

ConnectorTree::ConnectorTree(const ConnectorTree& other) = default;

ConnectorTree& ConnectorTree::operator=(const ConnectorTree& other) = default;

ConnectorTree::~ConnectorTree() = default;

void ConnectorTree::SetInitialPlug(const misc::tqAutoPointer<DockingFramePlug>& plug) {
    m_root = TreeHelper::CreateNewPlugNode(plug);
}

void ConnectorTree::SetRoot(const misc::tqAutoPointer<PlugNode>& root) { m_root = root; }

void ConnectorTree::AddConnection(const misc::tqAutoPointer<DockingFramePlug>& plug,
                                  const misc::tqAutoPointer<DockingFrameSocket>& socket) {
    if (m_root.IsNull())
        misc::ThrowFailure(kAddConnection, u"WR: First set an initial plug before you can add connections.");
    if (plug.IsNull()) misc::ThrowFailure(kAddConnection, u"WR: Parameter dockingFramePlug must not be null");
    if (socket.IsNull()) misc::ThrowFailure(kAddConnection, u"WR: Parameter dockingFrameSocket must not be null");
    if (plug->GetParent().IsNull())
        misc::ThrowFailure(
            kAddConnection,
            u"WR: dockingFramePlug needs to have a parent when you want to add it to the ConnectorTree.");
    if (socket->GetParent().IsNull())
        misc::ThrowFailure(
            kAddConnection,
            u"WR: dockingFrameSocket needs to have a parent when you want to add it to the ConnectorTree.");

    // First way: the socket's object is already in the tree by one of its plugs; hang the pair below that plug.
    tqstring firstError;
    const auto plugsOfSocketObject = TreeHelper::TryGetPlugs(*socket->GetParent(), firstError);
    if (firstError.empty()) {
        for (const auto& candidate : plugsOfSocketObject) {
            PlugNode* node = FindPlugNode(m_root.Get(), candidate.Get());
            if (node == nullptr) continue;
            misc::tqAutoPointer<SocketNode> newSocket = TreeHelper::CreateNewSocketNode(socket);
            detail_::TreeLinks::AttachPlug(*newSocket, plug);
            node->InternalGetChildren().push_back(newSocket);
            newSocket->SetParent(node);
            return;
        }
    }

    // Second way: the plug's object is in the tree by one of its sockets S; splice the pair in between S and
    // the plug node Q above it.
    tqstring secondError;
    const auto socketsOfPlugObject = TreeHelper::TryGetSockets(*plug->GetParent(), secondError);
    if (secondError.empty()) {
        for (const auto& candidate : socketsOfPlugObject) {
            for (const auto& rootChild : m_root->GetChildren()) {
                SocketNode* found = FindSocketNode(rootChild.Get(), candidate.Get());
                if (found == nullptr) continue;
                TQ_ASSERT(found->GetParent() != nullptr);
                PlugNode& q = *found->GetParent();
                auto& siblings = q.InternalGetChildren();
                const auto at =
                    std::find_if(siblings.begin(), siblings.end(),
                                 [found](const misc::tqAutoPointer<SocketNode>& s) { return s.Get() == found; });
                TQ_ASSERT(at != siblings.end());
                const misc::tqAutoPointer<SocketNode> s = *at;

                misc::tqAutoPointer<SocketNode> t = TreeHelper::CreateNewSocketNode(socket);
                misc::tqAutoPointer<PlugNode> u = detail_::TreeLinks::AttachPlug(*t, plug);
                u->InternalGetChildren().push_back(s);
                // Nothing below can fail: the erase frees the slot that push_back reuses.
                siblings.erase(at);
                siblings.push_back(t);
                t->SetParent(&q);
                s->SetParent(u.Get());
                return;
            }
        }
    }

    tqstring text =
        u"WR: Not able to connect the dockingFramePlug and dockingFrameSocket to this ConnectorTree. Ensure that "
        u"their parents are related to this ConnectorTree.";
    // The quotes stand where they always have: a first text alone is never closed, a second one alone gets a
    // stray quote ahead of its line break.
    if (!firstError.empty()) text += u"\nFirst error message: \"" + firstError;
    if (!secondError.empty()) text += u"\"\nSecond error message: \"" + secondError + u"\"";
    misc::ThrowFailure(kAddConnection, text);
}

misc::tqAutoPointer<std::vector<misc::tqAutoPointer<StockAdapter>>> ConnectorTree::GetAllStockAdapters(
    const misc::tqAutoPointer<Stock>& stock) const {
    misc::tqAutoPointer<std::vector<misc::tqAutoPointer<StockAdapter>>> result(
        new std::vector<misc::tqAutoPointer<StockAdapter>>());
    for (const auto& plug : *stock->GetPlugs()) {
        const PlugNode* node = FindPlugNode(&*m_root, plug.Get());
        if (node == nullptr || node->GetParent() == nullptr) continue;
        // Here the socket and its parent object must be there; a null one throws.
        const auto& owner = node->GetParent()->GetSocket()->GetParent();
        if (owner.IsNull()) misc::detail_::ThrowNullPointer();
        auto adapter = owner.DynamicCast<StockAdapter>();
        if (adapter.IsNotNull()) result->push_back(adapter);
    }
    return result;
}

misc::tqAutoPointer<std::vector<misc::tqAutoPointer<Stock>>> ConnectorTree::GetAllStocks(
    const misc::tqAutoPointer<StockAdapter>& adapter) const {
    misc::tqAutoPointer<std::vector<misc::tqAutoPointer<Stock>>> result(new std::vector<misc::tqAutoPointer<Stock>>());
    for (const auto& socket : *adapter->GetSockets()) {
        const SocketNode* node = FindSocketNodeBelow(&*m_root, socket.Get());
        if (node == nullptr || node->GetChild().IsNull()) continue;
        auto stock = node->GetChild()->GetPlug()->GetParent().DynamicCast<Stock>();
        if (stock.IsNotNull()) result->push_back(stock);
    }
    return result;
}

misc::tqAutoPointer<std::vector<misc::tqAutoPointer<ToolAssembly>>> ConnectorTree::GetAllToolAssemblies(
    const misc::tqAutoPointer<ToolAdapter>& adapter) const {
    misc::tqAutoPointer<std::vector<misc::tqAutoPointer<ToolAssembly>>> result(
        new std::vector<misc::tqAutoPointer<ToolAssembly>>());
    for (const auto& socket : *adapter->GetSockets()) {
        const SocketNode* node = FindSocketNodeBelow(&*m_root, socket.Get());
        if (node == nullptr || node->GetChild().IsNull()) continue;
        auto assembly = node->GetChild()->GetPlug()->GetParent().DynamicCast<ToolAssembly>();
        if (assembly.IsNotNull()) result->push_back(assembly);
    }
    return result;
}

misc::tqAutoPointer<ToolAdapter> ConnectorTree::GetToolAdapter(
    const misc::tqAutoPointer<ToolAssembly>& assembly) const {
    const auto& plug = assembly->GetPlug();
    if (plug.IsNull()) return misc::tqAutoPointer<ToolAdapter>();
    const PlugNode* node = FindPlugNode(&*m_root, plug.Get());
    if (node == nullptr || node->GetParent() == nullptr) return misc::tqAutoPointer<ToolAdapter>();
    return node->GetParent()->GetSocket()->GetParent().DynamicCast<ToolAdapter>();
}

bool ConnectorTree::operator==(const ConnectorTree& other) const {
    if (this == &other) return true;
    if (!BaseObject::operator==(other)) return false;
    return PlugNode::GuardedEqual(m_root.Get(), other.m_root.Get());
}

}  // namespace tqWorkRig
