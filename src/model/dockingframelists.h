// The frame list operations that Stock, StockAdapter and ToolAdapter share: search, adoption and equality.
#pragma once

#include <vector>

#include "misc/tqautopointer.h"
#include "tqWorkRig/model/dockableobject.h"
#include "tqWorkRig/model/dockingframe.h"

namespace tqWorkRig {
namespace detail_ {

template <class Frame>
using FrameListPointer = misc::tqAutoPointer<std::vector<misc::tqAutoPointer<Frame>>>;

/// True when the list holds this very frame, by raw pointer; a null list throws the null-pointer failure.
template <class Frame>
bool ListHoldsFrame(const FrameListPointer<Frame>& list, const misc::tqAutoPointer<Frame>& frame) {
    for (const misc::tqAutoPointer<Frame>& held : *list) {
        if (held.Get() == frame.Get()) return true;
    }
    return false;
}

/// Makes parent the frame's parent through a link with a control block of its own, which the frame disowns
/// when it dies. A frame already linked to parent keeps its link: replacing it would delete the parent.
inline void LinkFrameToParent(DockingFrame& frame, DockableObject& parent) {
    if (frame.GetParent().Get() == &parent) return;
    frame.SetParent(DockingFrame::ParentPointer(&parent));
}

/// Two null frames are equal, one null is not; otherwise DockingFrame equality.
template <class Frame>
bool FramesEqual(const misc::tqAutoPointer<Frame>& left, const misc::tqAutoPointer<Frame>& right) {
    if (left.IsNull() || right.IsNull()) return left.IsNull() && right.IsNull();
    return *left == *right;
}

/// Null lists as null frames; then equal lengths and equal frames pairwise, in order.
template <class Frame>
bool FrameListsEqual(const FrameListPointer<Frame>& left, const FrameListPointer<Frame>& right) {
    if (left.IsNull() || right.IsNull()) return left.IsNull() && right.IsNull();
    if (left->size() != right->size()) return false;
    for (std::size_t i = 0; i < left->size(); ++i) {
        if (!FramesEqual((*left)[i], (*right)[i])) return false;
    }
    return true;
}

}  // namespace detail_
}  // namespace tqWorkRig
