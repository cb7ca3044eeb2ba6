// ConnectorTree: the joins of a set of dockable objects, as alternating plug and socket nodes below one root.
#pragma once

#include <vector>

#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "tqWorkRig/model/baseobject.h"

namespace tqWorkRig {

class ConnectorTable;
class DockingFramePlug;
class DockingFrameSocket;
class PlugNode;
class Stock;
class StockAdapter;
class ToolAdapter;
class ToolAssembly;

/// Holds the root plug node of a tree. Copies share the root, so both see every later connection.
class TQ_EXPORT ConnectorTree : public BaseObject {
public:
    /// Copies the base and shares the root.
    ConnectorTree(const ConnectorTree& other);
    /// Assigns the base and shares the root.
    ConnectorTree& operator=(const ConnectorTree& other);
    ~ConnectorTree() override;

    /// Replaces the root by a new node for `plug`, dropping the old tree; a null plug throws.
    void SetInitialPlug(const misc::tqAutoPointer<DockingFramePlug>& plug);
    /// Assigns the root.
    void SetRoot(const misc::tqAutoPointer<PlugNode>& root);
    /// The root; null on a tree that has none yet.
    const misc::tqAutoPointer<PlugNode>& GetRoot() const { return m_root; }

    /// Joins `plug` into `socket`, working out the place from the frames' parent objects: below a plug of the
    /// socket's object, or else spliced in above a socket of the plug's object. A failure changes nothing.
    void AddConnection(const misc::tqAutoPointer<DockingFramePlug>& plug,
                       const misc::tqAutoPointer<DockingFrameSocket>& socket);

    /// The stock adapters that the stock's plugs are plugged into, once per plug, in the stock's plug order.
    misc::tqAutoPointer<std::vector<misc::tqAutoPointer<StockAdapter>>> GetAllStockAdapters(
        const misc::tqAutoPointer<Stock>& stock) const;
    /// The stocks plugged into the adapter's sockets, in the adapter's socket order.
    misc::tqAutoPointer<std::vector<misc::tqAutoPointer<Stock>>> GetAllStocks(
        const misc::tqAutoPointer<StockAdapter>& adapter) const;
    /// The tool assemblies plugged into the adapter's sockets, in the adapter's socket order.
    misc::tqAutoPointer<std::vector<misc::tqAutoPointer<ToolAssembly>>> GetAllToolAssemblies(
        const misc::tqAutoPointer<ToolAdapter>& adapter) const;
    /// The tool adapter the assembly's plug is plugged into; null if there is none.
    misc::tqAutoPointer<ToolAdapter> GetToolAdapter(const misc::tqAutoPointer<ToolAssembly>& assembly) const;

    /// The same object, or equal bases and structurally equal roots (two null roots are equal).
    bool operator==(const ConnectorTree& other) const;
    bool operator!=(const ConnectorTree& other) const { return !(*this == other); }

private:
    friend class ConnectorTable;
    friend class ToolAssembly;

    /// A tree with no root, which a ToolAssembly fills later.
    ConnectorTree();
    /// A tree whose root is a new node for `plug`; a null plug throws.
    explicit ConnectorTree(const misc::tqAutoPointer<DockingFramePlug>& plug);

    misc::tqAutoPointer<PlugNode> m_root;
};

}  // namespace tqWorkRig
