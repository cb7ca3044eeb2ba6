// ConnectorTable: the station-ordered multimap of trees, its copies, moves and equality.
#include "tqWorkRig/connection/connectortable.h"

#include "connection/comparison.h"
#include "tqWorkRig/model/mountstation.h"

namespace tqWorkRig {

bool ConnectorTable::StationLess::operator()(const misc::tqAutoPointer<MountStation>& left,
                                             const misc::tqAutoPointer<MountStation>& right) const {
    return *left < *right;
}

ConnectorTable::ConnectorTable(const tqstring& displayName) : BaseObject(displayName) {}

ConnectorTable::ConnectorTable(const ConnectorTable& other) = default;

ConnectorTable::ConnectorTable(ConnectorTable&& other) : BaseObject(other) { m_trees.swap(other.m_trees); }

ConnectorTable& ConnectorTable::operator=(const ConnectorTable& other) {
    BaseObject::operator=(other);
    if (this == &other) return *this;
    m_trees.clear();
    m_trees = other.m_trees;
    return *this;
}

ConnectorTable& ConnectorTable::operator=(ConnectorTable&& other) {
    BaseObject::operator=(other);
    if (this == &other) return *this;
    m_trees.clear();
    m_trees.swap(other.m_trees);
    return *this;
}

ConnectorTable::~ConnectorTable() = default;

misc::tqAutoPointer<ConnectorTree>& ConnectorTable::CreateNewTree(const misc::tqAutoPointer<MountStation>& station,
                                                                  const misc::tqAutoPointer<DockingFramePlug>& plug) {
    misc::tqAutoPointer<ConnectorTree> tree(new ConnectorTree(plug));
    // A multimap inserts behind the equivalent keys already there, which keeps their order of insertion.
    return m_trees.insert(Container::value_type(station, tree))->second;
}

misc::tqAutoPointer<std::vector<misc::tqAutoPointer<StockAdapter>>> ConnectorTable::GetAllStockAdapters(
    const misc::tqAutoPointer<Stock>& stock, const ConnectorTree& tree) const {
    return tree.GetAllStockAdapters(stock);
}

misc::tqAutoPointer<std::vector<misc::tqAutoPointer<Stock>>> ConnectorTable::GetAllStocks(
    const misc::tqAutoPointer<StockAdapter>& adapter, const ConnectorTree& tree) const {
    return tree.GetAllStocks(adapter);
}

misc::tqAutoPointer<std::vector<misc::tqAutoPointer<ToolAssembly>>> ConnectorTable::GetAllToolAssemblies(
    const misc::tqAutoPointer<ToolAdapter>& adapter, const ConnectorTree& tree) const {
    return tree.GetAllToolAssemblies(adapter);
}

misc::tqAutoPointer<ToolAdapter> ConnectorTable::GetToolAdapter(const misc::tqAutoPointer<ToolAssembly>& assembly,
                                                                const ConnectorTree& tree) const {
    return tree.GetToolAdapter(assembly);
}

bool ConnectorTable::operator==(const ConnectorTable& other) const {
    if (this == &other) return true;
    if (!BaseObject::operator==(other)) return false;
    auto left = m_trees.begin();
    auto right = other.m_trees.begin();
    for (; left != m_trees.end() && right != other.m_trees.end(); ++left, ++right) {
        if (!detail_::PointeesEqual(left->first, right->first)) return false;
        if (!detail_::PointeesEqual(left->second, right->second)) return false;
    }
    return left == m_trees.end() && right == other.m_trees.end();
}

}  // namespace tqWorkRig
