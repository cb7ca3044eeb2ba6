// Builders shared by the connection tests: frames, and a dockable class outside the closed set.
#pragma once

#include <utility>

#include "misc/tqautopointer.h"
#include "tqWorkRig/model/dockableobject.h"
#include "tqWorkRig/model/dockableobjectvisitor.h"
#include "tqWorkRig/model/dockingframeplug.h"
#include "tqWorkRig/model/dockingframesocket.h"

namespace tqtest {

using misc::tqAutoPointer;
using PlugPtr = tqAutoPointer<tqWorkRig::DockingFramePlug>;
using SocketPtr = tqAutoPointer<tqWorkRig::DockingFrameSocket>;

template <class T, class... Args>
tqAutoPointer<T> Make(Args&&... args) {
    return tqAutoPointer<T>(new T(std::forward<Args>(args)...));
}
inline PlugPtr NewPlug(const char* name = "plug") { return Make<tqWorkRig::DockingFramePlug>(name); }
inline SocketPtr NewSocket(const char* name = "socket") { return Make<tqWorkRig::DockingFrameSocket>(name); }

/// Reaches visitors through their base slot.
class Foreign : public tqWorkRig::DockableObject {
public:
    Foreign() : DockableObject(u"foreign") {}
    void AcceptVisitor(tqWorkRig::DockableObjectVisitor& visitor) const override {
        visitor.Visit(static_cast<const DockableObject&>(*this));
    }
};

/// Makes `object` the frame's parent as the model does: a link with a control block of its own.
template <class Frame>
void Adopt(tqWorkRig::DockableObject& object, const Frame& frame) {
    frame->SetParent(tqAutoPointer<tqWorkRig::DockableObject>(&object));
}

}  // namespace tqtest
