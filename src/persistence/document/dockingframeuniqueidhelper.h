// DockingFrameUniqueIDHelper: the "uniqueID" of a docking frame, numbered per kind while a document is written.
#pragma once

#include <cstdint>

#include "misc/tqstring.h"
#include "tqWorkRig/model/dockingframevisitor.h"

namespace tqWorkRig {

/// Counts plugs and sockets apart, in counters the caller owns, so that a plug and a socket may both carry
/// the number 1: visiting a plug adds one to its counter and yields "WRDockingFramePlug<n>", likewise a socket.
class DockingFrameUniqueIDHelper : public DockingFrameVisitor {
public:
    /// Binds the two counters, which must outlive the helper.
    DockingFrameUniqueIDHelper(std::uint64_t* plugCounter, std::uint64_t* socketCounter);

    void Visit(const DockingFrameSocket& socket) override;
    void Visit(const DockingFramePlug& plug) override;
    /// Throws tqException "Not implemented!".
    [[noreturn]] void Visit(const DockingFrame& frame) override;

    /// The id of the last frame visited; empty before any.
    const misc::tqstring& GetUniqueID() const { return m_uniqueID; }

private:
    std::uint64_t* m_plugCounter;
    std::uint64_t* m_socketCounter;
    misc::tqstring m_uniqueID;
};

}  // namespace tqWorkRig
