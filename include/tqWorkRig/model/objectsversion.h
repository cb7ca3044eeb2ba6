// ObjectsVersion<T>: the version number that each persisted class carries in a document.
#pragma once

#include "misc/export.h"

namespace tqWorkRig {

class Arbor;
class BaseObject;
class Box;
class ConnectorTable;
class Cylinder;
class DockableObject;
class DockingFramePlug;
class DockingFrameSocket;
class Holder;
class Mesh;
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
class WorkRig;

/// Carries the version number of T in its static constant VERSION; only the classes below have one.
template <class T>
class ObjectsVersion;

// Each value is fixed by the document format: readers branch on it, so a change is a format change.
template <> class TQ_EXPORT ObjectsVersion<Arbor> { public: static const int VERSION = 1; };
template <> class TQ_EXPORT ObjectsVersion<BaseObject> { public: static const int VERSION = 1; };
template <> class TQ_EXPORT ObjectsVersion<Box> { public: static const int VERSION = 2; };
template <> class TQ_EXPORT ObjectsVersion<ConnectorTable> { public: static const int VERSION = 1; };
template <> class TQ_EXPORT ObjectsVersion<Cylinder> { public: static const int VERSION = 2; };
template <> class TQ_EXPORT ObjectsVersion<DockableObject> { public: static const int VERSION = 1; };
template <> class TQ_EXPORT ObjectsVersion<DockingFramePlug> { public: static const int VERSION = 2; };
template <> class TQ_EXPORT ObjectsVersion<DockingFrameSocket> { public: static const int VERSION = 2; };
template <> class TQ_EXPORT ObjectsVersion<Holder> { public: static const int VERSION = 1; };
template <> class TQ_EXPORT ObjectsVersion<WorkRig> { public: static const int VERSION = 2; };
template <> class TQ_EXPORT ObjectsVersion<Mesh> { public: static const int VERSION = 2; };
template <> class TQ_EXPORT ObjectsVersion<MillingToolOffset> { public: static const int VERSION = 1; };
template <> class TQ_EXPORT ObjectsVersion<Stock> { public: static const int VERSION = 1; };
template <> class TQ_EXPORT ObjectsVersion<StockAdapter> { public: static const int VERSION = 1; };
template <> class TQ_EXPORT ObjectsVersion<StockMountStation> { public: static const int VERSION = 1; };
template <> class TQ_EXPORT ObjectsVersion<Tool> { public: static const int VERSION = 3; };
template <> class TQ_EXPORT ObjectsVersion<ToolAdapter> { public: static const int VERSION = 1; };
template <> class TQ_EXPORT ObjectsVersion<ToolAssembly> { public: static const int VERSION = 1; };
template <> class TQ_EXPORT ObjectsVersion<ToolMountStation> { public: static const int VERSION = 1; };
template <> class TQ_EXPORT ObjectsVersion<TurningToolOffset> { public: static const int VERSION = 1; };
template <> class TQ_EXPORT ObjectsVersion<WorkOffset> { public: static const int VERSION = 1; };

}  // namespace tqWorkRig
