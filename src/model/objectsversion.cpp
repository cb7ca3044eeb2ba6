// ObjectsVersion<T>: definitions of the version constants, for callers that take them by reference.
#include "tqWorkRig/model/objectsversion.h"

namespace tqWorkRig {

const int ObjectsVersion<Arbor>::VERSION;
const int ObjectsVersion<BaseObject>::VERSION;
const int ObjectsVersion<Box>::VERSION;
const int ObjectsVersion<ConnectorTable>::VERSION;
const int ObjectsVersion<Cylinder>::VERSION;
const int ObjectsVersion<DockableObject>::VERSION;
const int ObjectsVersion<DockingFramePlug>::VERSION;
const int ObjectsVersion<DockingFrameSocket>::VERSION;
const int ObjectsVersion<Holder>::VERSION;
const int ObjectsVersion<WorkRig>::VERSION;
const int ObjectsVersion<Mesh>::VERSION;
const int ObjectsVersion<MillingToolOffset>::VERSION;
const int ObjectsVersion<Stock>::VERSION;
const int ObjectsVersion<StockAdapter>::VERSION;
const int ObjectsVersion<StockMountStation>::VERSION;
const int ObjectsVersion<Tool>::VERSION;
const int ObjectsVersion<ToolAdapter>::VERSION;
const int ObjectsVersion<ToolAssembly>::VERSION;
const int ObjectsVersion<ToolMountStation>::VERSION;
const int ObjectsVersion<TurningToolOffset>::VERSION;
const int ObjectsVersion<WorkOffset>::VERSION;

}  // namespace tqWorkRig
