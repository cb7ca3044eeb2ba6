// PlugNode: its implementation record, AddChild and the guarded structural comparison.
#include "tqWorkRig/connection/plugnode.h"

#include "connection/comparison.h"
#include "connection/treelinks.h"
#include "misc/tqexception.h"
#include "tqWorkRig/connection/socketnode.h"
#include "tqWorkRig/connection/treehelper.h"
#include "tqWorkRig/model/dockingframeplug.h"

namespace tqWorkRig {

// Member order matters: destruction releases the children before the plug.
struct PlugNode::Impl {
    explicit Impl(const misc::tqAutoPointer<DockingFramePlug>& p) : plug(p) {}

    misc::tqAutoPointer<DockingFramePlug> plug;
    std::vector<misc::tqAutoPointer<SocketNode>> children;
    SocketNode* parent = nullptr;
    cadcam::tqMatrix<double, 4, 4> plugTransform;
};

PlugNode::PlugNode(const misc::tqAutoPointer<DockingFramePlug>& plug)
    : BaseObject(tqstring()), m_impl(new Impl(plug)), m_inComparison(false) {}

PlugNode::~PlugNode() { delete m_impl; }

const misc::tqAutoPointer<DockingFramePlug>& PlugNode::GetPlug() const { return m_impl->plug; }

const std::vector<misc::tqAutoPointer<SocketNode>>& PlugNode::GetChildren() const { return m_impl->children; }

std::vector<misc::tqAutoPointer<SocketNode>>& PlugNode::InternalGetChildren() { return m_impl->children; }

SocketNode* PlugNode::GetParent() const { return m_impl->parent; }

void PlugNode::SetParent(SocketNode* parent) { m_impl->parent = parent; }

const cadcam::tqMatrix<double, 4, 4>& PlugNode::GetPlugTransform() const { return m_impl->plugTransform; }

void PlugNode::SetPlugTransform(const cadcam::tqMatrix<double, 4, 4>& transform) {
    if (&transform != &m_impl->plugTransform) m_impl->plugTransform = transform;
}

void PlugNode::AddChild(const misc::tqAutoPointer<SocketNode>& child) { m_impl->children.push_back(child); }

misc::tqAutoPointer<PlugNode> PlugNode::AddChild(const misc::tqAutoPointer<DockingFrameSocket>& socket,
                                                 const misc::tqAutoPointer<DockingFramePlug>& plugIntoChild) {
    if (socket.IsNull())
        misc::ThrowFailure(u"tqWorkRig::PlugNode::AddChild",
                           u"WR: Could not add null-pointer as child in PlugNode::AddChild.");
    if (plugIntoChild.IsNull())
        misc::ThrowFailure(u"tqWorkRig::PlugNode::AddChild",
                           u"WR: Could not add null-pointer as plugIntoChild in PlugNode::AddChild.");
    misc::tqAutoPointer<SocketNode> socketNode = detail_::TreeLinks::AttachSocket(*this, socket);
    return detail_::TreeLinks::AttachPlug(*socketNode, plugIntoChild);
}

bool PlugNode::GuardedEqual(const PlugNode* left, const PlugNode* right) {
    if (left == nullptr || right == nullptr) return left == nullptr && right == nullptr;
    return left->m_inComparison || *left == *right;
}

bool PlugNode::operator==(const PlugNode& other) const {
    if (this == &other) return true;
    detail_::FlagScope scope(m_inComparison);
    if (m_impl == other.m_impl) return true;

    const auto& children = m_impl->children;
    const auto& otherChildren = other.m_impl->children;
    if (children.size() != otherChildren.size()) return false;
    for (std::size_t i = 0; i < children.size(); ++i)
        if (!SocketNode::GuardedEqual(children[i].Get(), otherChildren[i].Get())) return false;

    if (!detail_::PointeesEqual(m_impl->plug, other.m_impl->plug)) return false;

    if (!SocketNode::GuardedEqual(m_impl->parent, other.m_impl->parent)) return false;
    return m_impl->plugTransform == other.m_impl->plugTransform;
}

}  // namespace tqWorkRig
