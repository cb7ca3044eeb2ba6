// The frame comparer, instantiated once over the closed set of frames.
#include "model/dockingframetypes.h"

#include <type_traits>

namespace tqWorkRig {

template class detail_::CompareVisitor<DockingFrameVisitor, DockingFrame, DockingFrameTypes>;

// A DockingFrameVisitor slot without a class in DockingFrameTypes would stay pure here.
static_assert(!std::is_abstract<DockingFrameCompareVisitor>::value,
              "DockingFrameTypes must cover every DockingFrameVisitor slot");

}  // namespace tqWorkRig
