// DockableObjectList: the closed set of concrete dockable objects.
#pragma once

#include "misc/tqtypelist.h"

namespace tqWorkRig {

class Arbor;
class Holder;
class Stock;
class StockAdapter;
class Tool;
class ToolAdapter;
class ToolAssembly;

/// Every concrete dockable object, in the order of the DockableObjectVisitor slots. Detectors and comparers
/// follow from it; a class added here needs its slot there.
using DockableObjectList = misc::tqTypeList<Tool, Holder, Arbor, ToolAssembly, ToolAdapter, StockAdapter, Stock>;

}  // namespace tqWorkRig
