// WorkRig: the document, everything set up for one machining job.
#pragma once

#include <vector>

#include "measures/tqmeasurable.h"
#include "measures/tqunitsfactory.h"
#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "tqWorkRig/model/baseobject.h"

namespace tqWorkRig {

class Arbor;
class ConnectorTable;
class DockableObject;
class DockingFrame;
class Holder;
class MillingToolOffset;
class Stock;
class StockAdapter;
class StockMountStation;
class Tool;
class ToolAdapter;
class ToolAssembly;
class ToolMountStation;
class TurningToolOffset;
class WorkOffset;

/// The document: a unit system, two file names, the lists of the set-up's objects and the connector table that
/// joins them. The rig shares what it lists. Copies are shallow: a copy shares every list behind a pointer and
/// the connector table, and holds its own vectors of arbors, holders and tools.
class TQ_EXPORT WorkRig : public BaseObject, public measures::tqMeasurable {
public:
    template <class T>
    using List = std::vector<misc::tqAutoPointer<T>>;
    template <class T>
    using ListPointer = misc::tqAutoPointer<List<T>>;

    /// An empty rig with the empty display name, new empty lists and a new empty connector table; units other
    /// than metric or inch throw tqmeasuresException 2141.
    explicit WorkRig(const measures::tqUnitsFactory::Units& units);
    /// Copies names and units, shares the attribute map, the lists behind pointers and the connector table.
    WorkRig(const WorkRig& other);
    /// The same as the copy constructor, member by member.
    WorkRig& operator=(const WorkRig& other);
    ~WorkRig() override;

    /// The same object, or the same units, then the lists (stations, adapters, stocks, assemblies), the connector
    /// table, frames, offsets, arbors, holders, tools, then the two file names; all pairwise and in order, frames
    /// by their class. Display name and attributes are ignored.
    bool operator==(const WorkRig& other) const;
    bool operator!=(const WorkRig& other) const { return !(*this == other); }

    /// Appends the station; null is ignored, a repeat appended again.
    void AddStockMountStation(misc::tqAutoPointer<StockMountStation> station);
    /// Appends the adapter; null is ignored, a repeat appended again.
    void AddStockAdapter(misc::tqAutoPointer<StockAdapter> adapter);
    /// Appends the stock; null is ignored, a repeat appended again.
    void AddStock(misc::tqAutoPointer<Stock> stock);
    /// Appends the station; null is ignored, a repeat appended again.
    void AddToolMountStation(misc::tqAutoPointer<ToolMountStation> station);
    /// Appends the adapter; null is ignored, a repeat appended again.
    void AddToolAdapter(misc::tqAutoPointer<ToolAdapter> adapter);
    /// Appends the assembly (null is ignored, a repeat appended again), then registers its arbor, holder and tool,
    /// and the frames and tools, holders and arbors along the unbranched start of its tree.
    void AddToolAssembly(misc::tqAutoPointer<ToolAssembly> assembly);
    /// Appends the frame; null is ignored, a repeat appended again.
    void AddDockingFrame(const misc::tqAutoPointer<DockingFrame>& frame);
    /// Appends the offset; null is ignored, a repeat appended again.
    void AddWorkOffset(const misc::tqAutoPointer<WorkOffset>& offset);
    /// Appends the offset; null is ignored, a repeat appended again.
    void AddTurningToolOffset(const misc::tqAutoPointer<TurningToolOffset>& offset);
    /// Appends the offset; null is ignored, a repeat appended again.
    void AddMillingToolOffset(const misc::tqAutoPointer<MillingToolOffset>& offset);
    /// Appends the arbor unless this very object is listed; null is stored as a null entry, once.
    void AddArbor(const misc::tqAutoPointer<Arbor>& arbor);
    /// The same as AddArbor: adaptive items are the arbors.
    void AddAdaptiveItem(const misc::tqAutoPointer<Arbor>& item);
    /// Appends the holder unless this very object is listed; null is stored as a null entry, once.
    void AddHolder(const misc::tqAutoPointer<Holder>& holder);
    /// Appends the tool unless this very object is listed; null is stored as a null entry, once.
    void AddTool(const misc::tqAutoPointer<Tool>& tool);

    /// A new list of the stock adapters, stocks, tool adapters and tool assemblies, in that order; holders,
    /// arbors and tools are not in it.
    misc::tqAutoPointer<List<DockableObject>> GetAllDockableObjects() const;

    /// The stations that take stocks.
    const ListPointer<StockMountStation>& GetAllStockMountStations() const { return m_stockMountStations; }
    /// The fixtures.
    const ListPointer<StockAdapter>& GetAllStockAdapters() const { return m_stockAdapters; }
    /// The workpieces.
    const ListPointer<Stock>& GetAllStocks() const { return m_stocks; }
    /// The stations that take tools.
    const ListPointer<ToolMountStation>& GetAllToolMountStations() const { return m_toolMountStations; }
    /// The tool-side adapters.
    const ListPointer<ToolAdapter>& GetAllToolAdapters() const { return m_toolAdapters; }
    /// The assembled tools.
    const ListPointer<ToolAssembly>& GetAllToolAssemblies() const { return m_toolAssemblies; }
    /// The joins of the set-up.
    const misc::tqAutoPointer<ConnectorTable>& GetConnectorTable() const { return m_connectorTable; }
    /// The joins of the set-up, writable.
    misc::tqAutoPointer<ConnectorTable>& GetConnectorTable() { return m_connectorTable; }
    /// Every frame known to the document.
    const ListPointer<DockingFrame>& GetDockingFrames() const { return m_dockingFrames; }
    /// The work coordinate offsets.
    const ListPointer<WorkOffset>& GetWorkOffsets() const { return m_workOffsets; }
    /// The turning tool offsets.
    const ListPointer<TurningToolOffset>& GetAllTurningToolOffsets() const { return m_turningToolOffsets; }
    /// The milling tool offsets.
    const ListPointer<MillingToolOffset>& GetAllMillingToolOffsets() const { return m_millingToolOffsets; }
    /// The arbors.
    const List<Arbor>& GetAllArbors() const { return m_arbors; }
    /// The arbors, under their other name.
    const List<Arbor>& GetAllAdaptiveItems() const { return m_arbors; }
    /// The holders.
    const List<Holder>& GetAllHolders() const { return m_holders; }
    /// The tools.
    const List<Tool>& GetAllTools() const { return m_tools; }

    /// The name of a machine definition file.
    const tqstring& GetMachineXMLFile() const { return m_machineXMLFile; }
    /// Stores the text unchanged.
    void SetMachineXMLFile(const tqstring& machineXMLFile);
    /// The name and extension of a part program file.
    const tqstring& GetNCFile() const { return m_ncFile; }
    /// Stores only the file part of a path: name, ".", extension, or the name alone when the extension is empty.
    void SetNCFile(const tqstring& ncFile);

protected:
    /// Empty on purpose: a change of unit system retags the rig and scales nothing it holds.
    void Scale(measures::tqUnitsFactory::Units units, const double& factor) override;

private:
    ListPointer<StockMountStation> m_stockMountStations;
    ListPointer<StockAdapter> m_stockAdapters;
    ListPointer<Stock> m_stocks;
    ListPointer<ToolMountStation> m_toolMountStations;
    ListPointer<ToolAdapter> m_toolAdapters;
    ListPointer<ToolAssembly> m_toolAssemblies;
    misc::tqAutoPointer<ConnectorTable> m_connectorTable;
    ListPointer<DockingFrame> m_dockingFrames;
    ListPointer<WorkOffset> m_workOffsets;
    ListPointer<TurningToolOffset> m_turningToolOffsets;
    ListPointer<MillingToolOffset> m_millingToolOffsets;
    tqstring m_machineXMLFile;
    tqstring m_ncFile;
    List<Arbor> m_arbors;
    List<Holder> m_holders;
    List<Tool> m_tools;
};

}  // namespace tqWorkRig
