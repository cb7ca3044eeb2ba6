// Builders shared by the model and connection tests: objects behind pointers, a stock that reports its death,
// foreign classes.
#pragma once

#include <utility>

#include "misc/tqautopointer.h"
#include "tqWorkRig/model/dockableobjectvisitor.h"
#include "tqWorkRig/model/dockingframeplug.h"
#include "tqWorkRig/model/dockingframesocket.h"
#include "tqWorkRig/model/dockingframevisitor.h"
#include "tqWorkRig/model/stock.h"

namespace modeltest {

using misc::tqAutoPointer;
using PlugPtr = tqAutoPointer<tqWorkRig::DockingFramePlug>;
using SocketPtr = tqAutoPointer<tqWorkRig::DockingFrameSocket>;

template <class T, class... Args>
tqAutoPointer<T> Make(Args&&... args) {
    return tqAutoPointer<T>(new T(std::forward<Args>(args)...));
}
inline PlugPtr NewPlug(const char16_t* name = u"plug") { return Make<tqWorkRig::DockingFramePlug>(name); }
inline SocketPtr NewSocket(const char16_t* name = u"socket") { return Make<tqWorkRig::DockingFrameSocket>(name); }

/// A stock that sets a flag when it dies, so a test can tell whether a parent link deleted it.
class TrackedStock : public tqWorkRig::Stock {
public:
    explicit TrackedStock(bool& destroyed) : Stock(u"tracked"), m_destroyed(destroyed) { m_destroyed = false; }
    ~TrackedStock() override { m_destroyed = true; }

private:
    bool& m_destroyed;
};

/// A dockable class outside the closed set: it reaches visitors through their base slot.
class ForeignObject : public tqWorkRig::DockableObject {
public:
    ForeignObject() : DockableObject(u"foreign") {}
    void AcceptVisitor(tqWorkRig::DockableObjectVisitor& visitor) const override {
        visitor.Visit(static_cast<const DockableObject&>(*this));
    }
};

/// Makes `object` the frame's parent as the model does: a link with a control block of its own.
template <class Frame>
void Adopt(tqWorkRig::DockableObject& object, const Frame& frame) {
    frame->SetParent(tqAutoPointer<tqWorkRig::DockableObject>(&object));
}

/// A frame class outside the closed set.
class ForeignFrame : public tqWorkRig::DockingFrame {
public:
    ForeignFrame() : DockingFrame(u"foreign") {}
    void AcceptVisitor(tqWorkRig::DockingFrameVisitor& visitor) const override {
        visitor.Visit(static_cast<const DockingFrame&>(*this));
    }
};

}  // namespace modeltest
