// ToolAssembly: one mounted tool, held as its tool, holder and arbor and as a connector tree joining them.
#pragma once

#include <vector>

#include "cadcam/geometry/tqmatrix.h"
#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "tqWorkRig/model/dockableobject.h"
#include "tqWorkRig/model/dockableobjectcomparer.h"

namespace tqWorkRig {

class Arbor;
class ConnectorTree;
class DockingFramePlug;
class Geometry;
class Holder;
class Tool;

/// A dockable object for a tool with its holder and arbor. The direct fields and the private tree may both be
/// filled; GetTool falls back on the tree when the tool field is empty. Copies share every pointer.
class TQ_EXPORT ToolAssembly : public DockableObject {
public:
    /// Every pointer null, an empty tool name, identity transformations and a new tree with no root.
    explicit ToolAssembly(const tqstring& displayName);
    ToolAssembly(const ToolAssembly& other);
    ToolAssembly& operator=(const ToolAssembly& other);
    ~ToolAssembly() override;

    /// Calls visitor.Visit(const ToolAssembly&).
    void AcceptVisitor(DockableObjectVisitor& visitor) const override;
    /// False without a plug of its own; else whether `plug` is that plug, by address (a null `plug` throws then).
    virtual bool CheckIfParentOf(const misc::tqAutoPointer<DockingFramePlug>& plug) const;

    /// The same object, or equal bases, then plug, holder, arbor, tool, tool name, holder and arbor
    /// transformations, tree, alternative model plug and alternative model, in that order.
    bool operator==(const ToolAssembly& other) const;
    bool operator!=(const ToolAssembly& other) const { return !(*this == other); }

    /// The frame by which the assembly plugs into a tool adapter.
    const misc::tqAutoPointer<DockingFramePlug>& GetPlug() const { return m_plug; }
    /// Stores `plug` and makes this assembly its parent; a null plug or the current one changes nothing.
    void SetPlug(const misc::tqAutoPointer<DockingFramePlug>& plug);

    /// The holder.
    misc::tqAutoPointer<Holder>& GetHolder() { return m_holder; }
    const misc::tqAutoPointer<Holder>& GetHolder() const { return m_holder; }
    /// Stores the holder, null included.
    void SetHolder(const misc::tqAutoPointer<Holder>& holder);
    /// The arbor.
    misc::tqAutoPointer<Arbor>& GetArbor() { return m_arbor; }
    const misc::tqAutoPointer<Arbor>& GetArbor() const { return m_arbor; }
    /// Stores the arbor, null included.
    void SetArbor(const misc::tqAutoPointer<Arbor>& arbor);
    /// The tool field if set; otherwise the Tool met last on the walk down the tree's first branch, or null.
    misc::tqAutoPointer<Tool>& GetTool();
    const misc::tqAutoPointer<Tool>& GetTool() const;
    /// Stores the tool field, null included.
    void SetTool(const misc::tqAutoPointer<Tool>& tool);

    /// Free text naming the tool.
    const tqstring& GetToolName() const { return m_toolName; }
    /// Stores the text unchanged.
    void SetToolName(const tqstring& toolName);
    /// The holder's placement, stored and compared only.
    const cadcam::tqMatrix<double, 4, 4>& GetHolderTransformation() const { return m_holderTransformation; }
    /// Stores the holder's placement.
    void SetHolderTransformation(const cadcam::tqMatrix<double, 4, 4>& transformation);
    /// The arbor's placement, stored and compared only.
    const cadcam::tqMatrix<double, 4, 4>& GetArborTransformation() const { return m_arborTransformation; }
    /// Stores the arbor's placement.
    void SetArborTransformation(const cadcam::tqMatrix<double, 4, 4>& transformation);

    /// The connector tree of the stack; never null unless a caller reseats it.
    misc::tqAutoPointer<ConnectorTree>& GetTree() { return m_tree; }
    const misc::tqAutoPointer<ConnectorTree>& GetTree() const { return m_tree; }

    /// A geometry to show in place of the stack.
    misc::tqAutoPointer<Geometry>& GetAlternativeModel() { return m_alternativeModel; }
    const misc::tqAutoPointer<Geometry>& GetAlternativeModel() const { return m_alternativeModel; }
    /// Stores the alternative model, null included.
    void SetAlternativeModel(const misc::tqAutoPointer<Geometry>& model);
    /// The frame of the alternative model.
    misc::tqAutoPointer<DockingFramePlug>& GetAlternativeModelPlug() { return m_alternativeModelPlug; }
    const misc::tqAutoPointer<DockingFramePlug>& GetAlternativeModelPlug() const { return m_alternativeModelPlug; }
    /// Stores the alternative model's frame, null included; its parent link is not touched.
    void SetAlternativeModelPlug(const misc::tqAutoPointer<DockingFramePlug>& plug);

private:
    /// True when GetTool answers from the tree: no tool field, and a tree with a root.
    bool AnswersFromTree() const;
    /// The walk of GetTool down the tree's first branch; stores its answer in m_toolFromTree.
    misc::tqAutoPointer<Tool>& WalkTree() const;

    mutable bool m_inComparison;
    misc::tqAutoPointer<DockingFramePlug> m_plug;
    misc::tqAutoPointer<Holder> m_holder;
    misc::tqAutoPointer<Arbor> m_arbor;
    misc::tqAutoPointer<Tool> m_tool;
    tqstring m_toolName;
    cadcam::tqMatrix<double, 4, 4> m_holderTransformation;
    cadcam::tqMatrix<double, 4, 4> m_arborTransformation;
    misc::tqAutoPointer<ConnectorTree> m_tree;
    misc::tqAutoPointer<DockingFramePlug> m_alternativeModelPlug;
    misc::tqAutoPointer<Geometry> m_alternativeModel;
    /// Keeps alive the objects that filling the tree from a catalogue tool made.
    std::vector<misc::tqAutoPointer<DockableObject>> m_treeObjects;
    mutable misc::tqAutoPointer<Tool> m_toolFromTree;
};

namespace Utils {
extern template class TQ_EXPORT DockableObjectComparer<ToolAssembly>;
}  // namespace Utils

}  // namespace tqWorkRig
