// The closed set of concrete docking frames, and the comparison of frames held through the base.
#pragma once

#include "misc/tqtypelist.h"
#include "model/comparevisitor.h"
#include "tqWorkRig/model/dockingframe.h"
#include "tqWorkRig/model/dockingframeplug.h"
#include "tqWorkRig/model/dockingframesocket.h"
#include "tqWorkRig/model/dockingframevisitor.h"

namespace tqWorkRig {

/// Every concrete frame, in the order of the DockingFrameVisitor slots.
using DockingFrameTypes = misc::tqTypeList<DockingFrameSocket, DockingFramePlug>;

/// Frame equality through the base, where a plug never equals a socket: DockingFrameCompareVisitor::Compare.
using DockingFrameCompareVisitor = detail_::CompareVisitor<DockingFrameVisitor, DockingFrame, DockingFrameTypes>;

extern template class detail_::CompareVisitor<DockingFrameVisitor, DockingFrame, DockingFrameTypes>;

}  // namespace tqWorkRig
