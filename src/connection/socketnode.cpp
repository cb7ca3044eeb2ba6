// SocketNode: its implementation record and the guarded structural comparison.
#include "tqWorkRig/connection/socketnode.h"

#include "connection/comparison.h"
#include "tqWorkRig/connection/plugnode.h"
#include "tqWorkRig/model/dockingframesocket.h"

namespace tqWorkRig {

// Member order matters: destruction releases the child before the socket.
struct SocketNode::Impl {
    explicit Impl(const misc::tqAutoPointer<DockingFrameSocket>& s) : socket(s) {}

    misc::tqAutoPointer<DockingFrameSocket> socket;
    misc::tqAutoPointer<PlugNode> child;
    PlugNode* parent = nullptr;
};

SocketNode::SocketNode(const misc::tqAutoPointer<DockingFrameSocket>& socket)
    : m_impl(new Impl(socket)), m_inComparison(false) {}

SocketNode::~SocketNode() { delete m_impl; }

const misc::tqAutoPointer<DockingFrameSocket>& SocketNode::GetSocket() const { return m_impl->socket; }

const misc::tqAutoPointer<PlugNode>& SocketNode::GetChild() const { return m_impl->child; }

misc::tqAutoPointer<PlugNode>& SocketNode::InternalGetChild() { return m_impl->child; }

PlugNode* SocketNode::GetParent() const { return m_impl->parent; }

void SocketNode::SetParent(PlugNode* parent) { m_impl->parent = parent; }

void SocketNode::SetChild(const misc::tqAutoPointer<PlugNode>& child) { m_impl->child = child; }

bool SocketNode::GuardedEqual(const SocketNode* left, const SocketNode* right) {
    if (left == nullptr || right == nullptr) return left == nullptr && right == nullptr;
    return left->m_inComparison || *left == *right;
}

bool SocketNode::operator==(const SocketNode& other) const {
    if (this == &other) return true;
    detail_::FlagScope scope(m_inComparison);
    if (m_impl == nullptr || other.m_impl == nullptr) return m_impl == other.m_impl;
    if (m_impl == other.m_impl) return true;

    if (!PlugNode::GuardedEqual(m_impl->child.Get(), other.m_impl->child.Get())) return false;

    if (!detail_::PointeesEqual(m_impl->socket, other.m_impl->socket)) return false;

    return PlugNode::GuardedEqual(m_impl->parent, other.m_impl->parent);
}

}  // namespace tqWorkRig
