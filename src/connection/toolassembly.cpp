// ToolAssembly: its plug, GetTool's walk down the tree, equality, and its comparer's instantiation.
#include "tqWorkRig/connection/toolassembly.h"

#include "connection/comparison.h"
#include "model/dockingframelists.h"
#include "model/geometrytypes.h"
#include "tqWorkRig/connection/connectortree.h"
#include "tqWorkRig/connection/plugnode.h"
#include "tqWorkRig/connection/socketnode.h"
#include "tqWorkRig/model/arbor.h"
#include "tqWorkRig/model/dockableobjectvisitor.h"
#include "tqWorkRig/model/dockingframeplug.h"
#include "tqWorkRig/model/holder.h"
#include "tqWorkRig/model/tool.h"

namespace tqWorkRig {

namespace {

/// Takes the visited object as a Tool when it is one; any other kind leaves the result null.
class ToolAssignVisitor : public DockableObjectVisitor {
public:
    using DockableObjectVisitor::Visit;
    explicit ToolAssignVisitor(const misc::tqAutoPointer<DockableObject>& object) : m_object(object) {}

    void Visit(const Tool&) override { m_result = m_object.StaticCast<Tool>(); }
    void Visit(const ToolAssembly&) override {}
    void Visit(const ToolAdapter&) override {}
    void Visit(const StockAdapter&) override {}
    void Visit(const Stock&) override {}
    void Visit(const DockableObject&) override {}

    const misc::tqAutoPointer<Tool>& GetResult() const { return m_result; }

private:
    misc::tqAutoPointer<Tool> m_result;
    misc::tqAutoPointer<DockableObject> m_object;
};

}  // namespace

ToolAssembly::ToolAssembly(const tqstring& displayName)
    : DockableObject(displayName), m_inComparison(false), m_tree(new ConnectorTree()) {}

ToolAssembly::ToolAssembly(const ToolAssembly& other) = default;

ToolAssembly& ToolAssembly::operator=(const ToolAssembly& other) = default;

ToolAssembly::~ToolAssembly() = default;

void ToolAssembly::AcceptVisitor(DockableObjectVisitor& visitor) const { visitor.Visit(*this); }

bool ToolAssembly::CheckIfParentOf(const misc::tqAutoPointer<DockingFramePlug>& plug) const {
    if (m_plug.IsNull()) return false;
    return &*plug == m_plug.Get();
}

void ToolAssembly::SetPlug(const misc::tqAutoPointer<DockingFramePlug>& plug) {
    if (plug.IsNull() || CheckIfParentOf(plug)) return;
    m_plug = plug;
    // A link of its own that the frame disowns when it dies; a plug that comes back keeps its old link.
    detail_::LinkFrameToParent(*plug, *this);
}

void ToolAssembly::SetHolder(const misc::tqAutoPointer<Holder>& holder) { m_holder = holder; }

void ToolAssembly::SetArbor(const misc::tqAutoPointer<Arbor>& arbor) { m_arbor = arbor; }

void ToolAssembly::SetTool(const misc::tqAutoPointer<Tool>& tool) { m_tool = tool; }

misc::tqAutoPointer<Tool>& ToolAssembly::GetTool() { return AnswersFromTree() ? WalkTree() : m_tool; }

const misc::tqAutoPointer<Tool>& ToolAssembly::GetTool() const { return AnswersFromTree() ? WalkTree() : m_tool; }

bool ToolAssembly::AnswersFromTree() const {
    return m_tool.IsNull() && m_tree.IsNotNull() && m_tree->GetRoot().IsNotNull();
}

misc::tqAutoPointer<Tool>& ToolAssembly::WalkTree() const {
    // Down the first branch only; every object met overwrites the answer, so the last one decides.
    m_toolFromTree = misc::tqAutoPointer<Tool>();
    const PlugNode* node = m_tree->GetRoot().Get();
    while (true) {
        const auto& plug = node->GetPlug();
        if (plug.IsNotNull() && plug->GetParent().IsNotNull()) {
            ToolAssignVisitor visitor(plug->GetParent());
            plug->GetParent()->AcceptVisitor(visitor);
            m_toolFromTree = visitor.GetResult();
        }
        const auto& children = node->GetChildren();
        if (children.empty() || children.front().IsNull() || children.front()->GetChild().IsNull()) break;
        node = children.front()->GetChild().Get();
    }
    return m_toolFromTree;
}

void ToolAssembly::SetToolName(const tqstring& toolName) { m_toolName = toolName; }

void ToolAssembly::SetHolderTransformation(const cadcam::tqMatrix<double, 4, 4>& transformation) {
    m_holderTransformation = transformation;
}

void ToolAssembly::SetArborTransformation(const cadcam::tqMatrix<double, 4, 4>& transformation) {
    m_arborTransformation = transformation;
}

void ToolAssembly::SetAlternativeModel(const misc::tqAutoPointer<Geometry>& model) { m_alternativeModel = model; }

void ToolAssembly::SetAlternativeModelPlug(const misc::tqAutoPointer<DockingFramePlug>& plug) {
    m_alternativeModelPlug = plug;
}

bool ToolAssembly::operator==(const ToolAssembly& other) const {
    if (this == &other) return true;
    // Both flags: the frames' parent check reads the base's, and stops there instead of recursing.
    ComparingScope comparing(*this);
    detail_::FlagScope inComparison(m_inComparison);

    if (!DockableObject::operator==(other)) return false;
    if (!detail_::PointeesEqual(m_plug, other.m_plug)) return false;
    if (!detail_::PointeesEqual(m_holder, other.m_holder)) return false;
    if (!detail_::PointeesEqual(m_arbor, other.m_arbor)) return false;
    if (!detail_::PointeesEqual(m_tool, other.m_tool)) return false;
    if (m_toolName != other.m_toolName) return false;
    if (!(m_holderTransformation == other.m_holderTransformation)) return false;
    if (!(m_arborTransformation == other.m_arborTransformation)) return false;
    if (!detail_::PointeesEqual(m_tree, other.m_tree)) return false;
    if (!detail_::PointeesEqual(m_alternativeModelPlug, other.m_alternativeModelPlug)) return false;
    return GeometryCompareVisitor::Compare(m_alternativeModel, other.m_alternativeModel);
}

namespace Utils {
template class DockableObjectComparer<ToolAssembly>;
}  // namespace Utils

}  // namespace tqWorkRig
