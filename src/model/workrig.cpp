// WorkRig: construction, the lists and their Add operations, file names, copying and equality of the document.
#include "tqWorkRig/model/workrig.h"

#include <cstddef>
#include <string>

#include "model/dockingframetypes.h"
#include "tqWorkRig/connection/connectortable.h"
#include "tqWorkRig/connection/connectortree.h"
#include "tqWorkRig/connection/plugnode.h"
#include "tqWorkRig/connection/socketnode.h"
#include "tqWorkRig/connection/toolassembly.h"
#include "tqWorkRig/model/arbor.h"
#include "tqWorkRig/model/dockableobjectvisitor.h"
#include "tqWorkRig/model/holder.h"
#include "tqWorkRig/model/millingtooloffset.h"
#include "tqWorkRig/model/stock.h"
#include "tqWorkRig/model/stockadapter.h"
#include "tqWorkRig/model/stockmountstation.h"
#include "tqWorkRig/model/tool.h"
#include "tqWorkRig/model/tooladapter.h"
#include "tqWorkRig/model/toolmountstation.h"
#include "tqWorkRig/model/turningtooloffset.h"
#include "tqWorkRig/model/workoffset.h"

namespace tqWorkRig {

namespace {

// The file part of a path, split on the wide text: name, ".", extension, or the name alone.
tqstring FilePart(const std::u16string& path) {
    // A bare drive ("C:"), an empty text and a text ending in a backslash are all directory.
    if (path.empty() || (path.size() == 2 && path[1] == u':') || path.back() == u'\\') return tqstring();
    const std::size_t backslash = path.rfind(u'\\');
    const std::size_t slash = path.rfind(u'/');
    std::size_t start = 0;
    if (backslash != std::u16string::npos) start = backslash + 1;
    if (slash != std::u16string::npos && slash + 1 > start) start = slash + 1;
    const std::u16string file = path.substr(start);
    const std::size_t dot = file.rfind(u'.');
    if (dot == std::u16string::npos) return tqstring(file);
    const std::u16string name = file.substr(0, dot);
    const std::u16string extension = file.substr(dot + 1);
    return tqstring(extension.empty() ? name : name + u'.' + extension);
}

template <class T>
bool Holds(const WorkRig::List<T>& list, const T* object) {
    for (const misc::tqAutoPointer<T>& held : list) {
        if (held.Get() == object) return true;
    }
    return false;
}

// Two nulls are equal, one null is not; otherwise the class's own operator==.
template <class T>
bool PointeesEqual(const misc::tqAutoPointer<T>& left, const misc::tqAutoPointer<T>& right) {
    if (left.IsNull() || right.IsNull()) return left.IsNull() && right.IsNull();
    return *left == *right;
}

template <class T>
bool EntriesEqual(const WorkRig::List<T>& left, const WorkRig::List<T>& right) {
    if (left.size() != right.size()) return false;
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (!PointeesEqual(left[i], right[i])) return false;
    }
    return true;
}

template <class T>
bool ListsEqual(const WorkRig::ListPointer<T>& left, const WorkRig::ListPointer<T>& right) {
    if (left.IsNull() || right.IsNull()) return left.IsNull() && right.IsNull();
    return EntriesEqual(*left, *right);
}

// A plug and a socket with equal contents must differ here, so frames compare by their class.
bool FrameListsEqual(const WorkRig::ListPointer<DockingFrame>& left, const WorkRig::ListPointer<DockingFrame>& right) {
    if (left.IsNull() || right.IsNull()) return left.IsNull() && right.IsNull();
    if (left->size() != right->size()) return false;
    for (std::size_t i = 0; i < left->size(); ++i) {
        if (!DockingFrameCompareVisitor::Compare((*left)[i], (*right)[i])) return false;
    }
    return true;
}

// Registers the tools, holders and arbors met along an assembly's tree with the rig. The pointer it stores is
// the plug's parent link as it stands, not the assembly's own pointer.
class ToWRAdder : public DockableObjectVisitor {
public:
    ToWRAdder(WorkRig& workRig, const DockingFrame::ParentPointer& object) : m_workRig(workRig), m_object(object) {}

    void Visit(const Tool&) override { m_workRig.AddTool(m_object.StaticCast<Tool>()); }
    void Visit(const Holder&) override { m_workRig.AddHolder(m_object.StaticCast<Holder>()); }
    void Visit(const Arbor&) override { m_workRig.AddArbor(m_object.StaticCast<Arbor>()); }
    void Visit(const ToolAssembly&) override {}
    void Visit(const ToolAdapter&) override {}
    void Visit(const StockAdapter&) override {}
    void Visit(const Stock&) override {}
    void Visit(const DockableObject&) override {}

private:
    WorkRig& m_workRig;
    const DockingFrame::ParentPointer& m_object;
};

}  // namespace

WorkRig::WorkRig(const measures::tqUnitsFactory::Units& units)
    : BaseObject(tqstring()),
      measures::tqMeasurable(units),
      m_stockMountStations(new List<StockMountStation>()),
      m_stockAdapters(new List<StockAdapter>()),
      m_stocks(new List<Stock>()),
      m_toolMountStations(new List<ToolMountStation>()),
      m_toolAdapters(new List<ToolAdapter>()),
      m_toolAssemblies(new List<ToolAssembly>()),
      m_connectorTable(new ConnectorTable(tqstring())),
      m_dockingFrames(new List<DockingFrame>()),
      m_workOffsets(new List<WorkOffset>()),
      m_turningToolOffsets(new List<TurningToolOffset>()),
      m_millingToolOffsets(new List<MillingToolOffset>()) {}

WorkRig::WorkRig(const WorkRig& other) = default;

WorkRig& WorkRig::operator=(const WorkRig& other) = default;

WorkRig::~WorkRig() = default;

bool WorkRig::operator==(const WorkRig& other) const {
    if (this == &other) return true;
    if (!measures::tqMeasurable::operator==(other)) return false;
    if (!ListsEqual(m_stockMountStations, other.m_stockMountStations) ||
        !ListsEqual(m_stockAdapters, other.m_stockAdapters) || !ListsEqual(m_stocks, other.m_stocks) ||
        !ListsEqual(m_toolMountStations, other.m_toolMountStations) ||
        !ListsEqual(m_toolAdapters, other.m_toolAdapters) || !ListsEqual(m_toolAssemblies, other.m_toolAssemblies)) {
        return false;
    }
    if (!PointeesEqual(m_connectorTable, other.m_connectorTable)) return false;
    if (!FrameListsEqual(m_dockingFrames, other.m_dockingFrames) || !ListsEqual(m_workOffsets, other.m_workOffsets) ||
        !ListsEqual(m_turningToolOffsets, other.m_turningToolOffsets) ||
        !ListsEqual(m_millingToolOffsets, other.m_millingToolOffsets)) {
        return false;
    }
    if (!EntriesEqual(m_arbors, other.m_arbors) || !EntriesEqual(m_holders, other.m_holders) ||
        !EntriesEqual(m_tools, other.m_tools)) {
        return false;
    }
    return m_machineXMLFile == other.m_machineXMLFile && m_ncFile == other.m_ncFile;
}

// The ten lists behind pointers skip nulls and take repeats; the three plain lists below do the reverse.
void WorkRig::AddStockMountStation(misc::tqAutoPointer<StockMountStation> station) {
    if (station.IsNotNull()) m_stockMountStations->push_back(station);
}

void WorkRig::AddStockAdapter(misc::tqAutoPointer<StockAdapter> adapter) {
    if (adapter.IsNotNull()) m_stockAdapters->push_back(adapter);
}

void WorkRig::AddStock(misc::tqAutoPointer<Stock> stock) {
    if (stock.IsNotNull()) m_stocks->push_back(stock);
}

void WorkRig::AddToolMountStation(misc::tqAutoPointer<ToolMountStation> station) {
    if (station.IsNotNull()) m_toolMountStations->push_back(station);
}

void WorkRig::AddToolAdapter(misc::tqAutoPointer<ToolAdapter> adapter) {
    if (adapter.IsNotNull()) m_toolAdapters->push_back(adapter);
}

void WorkRig::AddDockingFrame(const misc::tqAutoPointer<DockingFrame>& frame) {
    if (frame.IsNotNull()) m_dockingFrames->push_back(frame);
}

void WorkRig::AddWorkOffset(const misc::tqAutoPointer<WorkOffset>& offset) {
    if (offset.IsNotNull()) m_workOffsets->push_back(offset);
}

void WorkRig::AddTurningToolOffset(const misc::tqAutoPointer<TurningToolOffset>& offset) {
    if (offset.IsNotNull()) m_turningToolOffsets->push_back(offset);
}

void WorkRig::AddMillingToolOffset(const misc::tqAutoPointer<MillingToolOffset>& offset) {
    if (offset.IsNotNull()) m_millingToolOffsets->push_back(offset);
}

void WorkRig::AddArbor(const misc::tqAutoPointer<Arbor>& arbor) {
    if (!Holds(m_arbors, arbor.Get())) m_arbors.push_back(arbor);
}

void WorkRig::AddAdaptiveItem(const misc::tqAutoPointer<Arbor>& item) { AddArbor(item); }

void WorkRig::AddHolder(const misc::tqAutoPointer<Holder>& holder) {
    if (!Holds(m_holders, holder.Get())) m_holders.push_back(holder);
}

void WorkRig::AddTool(const misc::tqAutoPointer<Tool>& tool) {
    if (!Holds(m_tools, tool.Get())) m_tools.push_back(tool);
}

void WorkRig::AddToolAssembly(misc::tqAutoPointer<ToolAssembly> assembly) {
    if (assembly.IsNull()) return;
    m_toolAssemblies->push_back(assembly);
    const ToolAssembly& added = *assembly;
    if (added.GetArbor().IsNotNull()) AddArbor(added.GetArbor());
    if (added.GetHolder().IsNotNull()) AddHolder(added.GetHolder());
    const misc::tqAutoPointer<Tool>& tool = added.GetTool();
    if (tool.IsNotNull()) AddTool(tool);

    // Only the unbranched start of the tree is walked: a node with other than one socket child ends it.
    const PlugNode* node = added.GetTree()->GetRoot().Get();
    while (node != nullptr) {
        const misc::tqAutoPointer<DockingFramePlug>& plug = node->GetPlug();
        if (plug.IsNull() || plug->GetParent().IsNull()) return;
        if (!Holds(*m_dockingFrames, static_cast<const DockingFrame*>(plug.Get()))) AddDockingFrame(plug);
        ToWRAdder adder(*this, plug->GetParent());
        plug->GetParent()->AcceptVisitor(adder);

        if (node->GetChildren().size() != 1) return;
        const SocketNode& child = *node->GetChildren().front();
        const misc::tqAutoPointer<DockingFrameSocket>& socket = child.GetSocket();
        if (socket.IsNotNull() && !Holds(*m_dockingFrames, static_cast<const DockingFrame*>(socket.Get()))) {
            AddDockingFrame(socket);
        }
        node = child.GetChild().Get();
    }
}

misc::tqAutoPointer<WorkRig::List<DockableObject>> WorkRig::GetAllDockableObjects() const {
    misc::tqAutoPointer<List<DockableObject>> all(new List<DockableObject>());
    all->insert(all->end(), m_stockAdapters->begin(), m_stockAdapters->end());
    all->insert(all->end(), m_stocks->begin(), m_stocks->end());
    all->insert(all->end(), m_toolAdapters->begin(), m_toolAdapters->end());
    all->insert(all->end(), m_toolAssemblies->begin(), m_toolAssemblies->end());
    return all;
}

void WorkRig::SetMachineXMLFile(const tqstring& machineXMLFile) { m_machineXMLFile = machineXMLFile; }

void WorkRig::SetNCFile(const tqstring& ncFile) { m_ncFile = FilePart(ncFile.wide()); }

void WorkRig::Scale(measures::tqUnitsFactory::Units, const double&) {}

}  // namespace tqWorkRig
