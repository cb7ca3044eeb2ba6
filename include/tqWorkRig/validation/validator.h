// Validator: checks that every frame held by the rig's stocks, adapters and assemblies is registered in the rig.
#pragma once

#include <vector>

#include "misc/export.h"
#include "misc/tqautopointer.h"

namespace tqWorkRig {

class DockingFrame;
class DockingFramePlug;
class DockingFrameSocket;
class WorkRig;

/// Checks one thing of a whole rig: each docking frame of a stock, a stock adapter, a tool assembly or a tool
/// adapter is, by identity, in the rig's list of docking frames. Frames of arbors, holders and tools, matrices,
/// parents and the connector table are not looked at.
class TQ_EXPORT Validator {
public:
    /// Binds to the caller's pointer, which must outlive the validator; checks nothing yet.
    explicit Validator(const misc::tqAutoPointer<WorkRig>& workRig);

    /// Stocks, stock adapters, tool assemblies, then tool adapters; throws tqException (code 0) at the first
    /// failure: "Docking frame is null!", "Work rig has no docking frames!", or "Docking frame <display name> not
    /// found in WorkRig!". Changes nothing.
    void ValidateWorkRig() const;

private:
    using PlugListPointer = misc::tqAutoPointer<std::vector<misc::tqAutoPointer<DockingFramePlug>>>;
    using SocketListPointer = misc::tqAutoPointer<std::vector<misc::tqAutoPointer<DockingFrameSocket>>>;

    void ValidateStocks() const;
    void ValidateStockAdapters() const;
    void ValidateToolAssemblies() const;
    void ValidateToolAdapters() const;
    void ValidateListOfDockingFramePlugs(const PlugListPointer& plugs) const;
    void ValidateListOfDockingFrameSockets(const SocketListPointer& sockets) const;
    void ValidateDockingFrame(const misc::tqAutoPointer<DockingFrame>& frame) const;

    const misc::tqAutoPointer<WorkRig>& m_workRig;
};

}  // namespace tqWorkRig
