// ConnectorTable: the document's connector trees, each hung from a mount station, sorted by station.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "tqWorkRig/connection/connectortree.h"
#include "tqWorkRig/model/baseobject.h"

namespace tqWorkRig {

class DockingFramePlug;
class MountStation;

/// Trees keyed by station, ordered through the stations themselves (type, then name), never by address.
/// A station may carry several trees; those keep their order of insertion. Copies share stations and trees.
class TQ_EXPORT ConnectorTable : public BaseObject {
public:
    /// Orders keys by MountStation::operator< on the pointees; a null key throws once it meets another.
    struct TQ_EXPORT StationLess {
        bool operator()(const misc::tqAutoPointer<MountStation>& left,
                        const misc::tqAutoPointer<MountStation>& right) const;
    };
    using Container = std::multimap<misc::tqAutoPointer<MountStation>, misc::tqAutoPointer<ConnectorTree>, StationLess>;
    using iterator = Container::iterator;
    using const_iterator = Container::const_iterator;
    using value_type = Container::value_type;
    using size_type = std::uint64_t;

    /// An empty table with the given display name.
    explicit ConnectorTable(const tqstring& displayName = tqstring());
    /// Copies the base and the entries; stations and trees are shared with the source.
    ConnectorTable(const ConnectorTable& other);
    /// Copies the base and takes over the entries, leaving the source empty and usable.
    ConnectorTable(ConnectorTable&& other);
    /// Assigns the base, then replaces the entries by shared copies of the source's.
    ConnectorTable& operator=(const ConnectorTable& other);
    /// Assigns the base, then takes over the source's entries, leaving the source empty.
    ConnectorTable& operator=(ConnectorTable&& other);
    ~ConnectorTable() override;

    /// Hangs a new tree rooted at `plug` from `station`, after any trees the station already has, and returns
    /// the tree pointer inside the table. A null plug throws and adds nothing.
    misc::tqAutoPointer<ConnectorTree>& CreateNewTree(const misc::tqAutoPointer<MountStation>& station,
                                                      const misc::tqAutoPointer<DockingFramePlug>& plug);

    /// The first entry, in station order.
    iterator GetBegin() { return m_trees.begin(); }
    const_iterator GetBegin() const { return m_trees.begin(); }
    iterator begin() { return m_trees.begin(); }
    const_iterator begin() const { return m_trees.begin(); }
    /// Past the last entry.
    iterator GetEnd() { return m_trees.end(); }
    const_iterator GetEnd() const { return m_trees.end(); }
    iterator end() { return m_trees.end(); }
    const_iterator end() const { return m_trees.end(); }
    /// True if the table holds no tree.
    bool Empty() const { return m_trees.empty(); }
    bool empty() const { return m_trees.empty(); }
    /// The number of trees.
    size_type GetSize() const { return m_trees.size(); }
    size_type size() const { return m_trees.size(); }

    /// Asks `tree` alone, not the table, for the stock adapters holding `stock`; the four queries never check
    /// that the tree belongs to the table.
    misc::tqAutoPointer<std::vector<misc::tqAutoPointer<StockAdapter>>> GetAllStockAdapters(
        const misc::tqAutoPointer<Stock>& stock, const ConnectorTree& tree) const;
    /// Asks `tree` for the stocks hanging from `adapter`.
    misc::tqAutoPointer<std::vector<misc::tqAutoPointer<Stock>>> GetAllStocks(
        const misc::tqAutoPointer<StockAdapter>& adapter, const ConnectorTree& tree) const;
    /// Asks `tree` for the tool assemblies hanging from `adapter`.
    misc::tqAutoPointer<std::vector<misc::tqAutoPointer<ToolAssembly>>> GetAllToolAssemblies(
        const misc::tqAutoPointer<ToolAdapter>& adapter, const ConnectorTree& tree) const;
    /// Asks `tree` for the tool adapter holding `assembly`.
    misc::tqAutoPointer<ToolAdapter> GetToolAdapter(const misc::tqAutoPointer<ToolAssembly>& assembly,
                                                    const ConnectorTree& tree) const;

    /// The same object, or equal bases and the same entries in the same order, stations and trees equal.
    bool operator==(const ConnectorTable& other) const;
    bool operator!=(const ConnectorTable& other) const { return !(*this == other); }

private:
    Container m_trees;
};

}  // namespace tqWorkRig
