// DockingFrameUniqueIDHelper: per-kind running numbers for docking frame ids.
#include "persistence/document/dockingframeuniqueidhelper.h"

#include "misc/tqexception.h"
#include "persistence/document/uniqueidhelper.h"
#include "persistence/document/xmlnames.h"

namespace tqWorkRig {

DockingFrameUniqueIDHelper::DockingFrameUniqueIDHelper(std::uint64_t* plugCounter, std::uint64_t* socketCounter)
    : m_plugCounter(plugCounter), m_socketCounter(socketCounter) {}

void DockingFrameUniqueIDHelper::Visit(const DockingFrameSocket&) {
    m_uniqueID = UniqueIDHelper::MakePrefixedID(xml::kIDDockingFrameSocket, ++*m_socketCounter);
}

void DockingFrameUniqueIDHelper::Visit(const DockingFramePlug&) {
    m_uniqueID = UniqueIDHelper::MakePrefixedID(xml::kIDDockingFramePlug, ++*m_plugCounter);
}

void DockingFrameUniqueIDHelper::Visit(const DockingFrame&) { misc::ThrowFailure(u"Not implemented!"); }

}  // namespace tqWorkRig
