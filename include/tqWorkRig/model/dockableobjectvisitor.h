// DockableObjectVisitor: the operations that differ by the concrete class of a dockable object.
#pragma once

#include "misc/export.h"

namespace tqWorkRig {

class Arbor;
class DockableObject;
class Holder;
class Stock;
class StockAdapter;
class Tool;
class ToolAdapter;
class ToolAssembly;

/// One Visit for each class of DockableObjectList and one for the abstract base, declared in slot order.
/// A dockable object's AcceptVisitor calls exactly the Visit of its own class.
/// - Tool, Holder, Arbor: do nothing unless overridden, so a visitor that is after the other kinds may skip them.
/// - ToolAssembly, ToolAdapter, StockAdapter, Stock: must be supplied.
/// - DockableObject: must be supplied; reached only by a class outside the list, which is an error or a no-op
///   as the visitor decides.
class TQ_EXPORT DockableObjectVisitor {
public:
    /// Called by a Tool; does nothing here.
    virtual void Visit(const Tool& tool);
    /// Called by a Holder; does nothing here.
    virtual void Visit(const Holder& holder);
    /// Called by an Arbor; does nothing here.
    virtual void Visit(const Arbor& arbor);
    /// Called by a ToolAssembly.
    virtual void Visit(const ToolAssembly& toolAssembly) = 0;
    /// Called by a ToolAdapter.
    virtual void Visit(const ToolAdapter& toolAdapter) = 0;
    /// Called by a StockAdapter.
    virtual void Visit(const StockAdapter& stockAdapter) = 0;
    /// Called by a Stock.
    virtual void Visit(const Stock& stock) = 0;
    /// Called only by a dockable class outside the list.
    virtual void Visit(const DockableObject& object) = 0;
    virtual ~DockableObjectVisitor();
};

}  // namespace tqWorkRig
