// Validator: every frame of the rig's stocks, stock adapters, tool assemblies and tool adapters is registered.
#include "tqWorkRig/validation/validator.h"

#include "misc/tqexception.h"
#include "tqWorkRig/connection/toolassembly.h"
#include "tqWorkRig/model/dockingframeplug.h"
#include "tqWorkRig/model/dockingframesocket.h"
#include "tqWorkRig/model/stock.h"
#include "tqWorkRig/model/stockadapter.h"
#include "tqWorkRig/model/tooladapter.h"
#include "tqWorkRig/model/workrig.h"

namespace tqWorkRig {

Validator::Validator(const misc::tqAutoPointer<WorkRig>& workRig) : m_workRig(workRig) {}

void Validator::ValidateWorkRig() const {
    ValidateStocks();
    ValidateStockAdapters();
    ValidateToolAssemblies();
    ValidateToolAdapters();
}

void Validator::ValidateStocks() const {
    const WorkRig::ListPointer<Stock>& stocks = m_workRig->GetAllStocks();
    if (stocks.IsNull()) return;
    for (const misc::tqAutoPointer<Stock>& stock : *stocks) ValidateListOfDockingFramePlugs(stock->GetPlugs());
}

void Validator::ValidateStockAdapters() const {
    const WorkRig::ListPointer<StockAdapter>& adapters = m_workRig->GetAllStockAdapters();
    if (adapters.IsNull()) return;
    for (const misc::tqAutoPointer<StockAdapter>& adapter : *adapters) {
        ValidateListOfDockingFramePlugs(adapter->GetPlugs());
        ValidateListOfDockingFrameSockets(adapter->GetSockets());
    }
}

void Validator::ValidateToolAssemblies() const {
    const WorkRig::ListPointer<ToolAssembly>& assemblies = m_workRig->GetAllToolAssemblies();
    if (assemblies.IsNull()) return;
    for (const misc::tqAutoPointer<ToolAssembly>& assembly : *assemblies) {
        if (assembly->GetPlug().IsNull()) continue;
        const PlugListPointer plugs(new std::vector<misc::tqAutoPointer<DockingFramePlug>>(1, assembly->GetPlug()));
        ValidateListOfDockingFramePlugs(plugs);
    }
}

void Validator::ValidateToolAdapters() const {
    const WorkRig::ListPointer<ToolAdapter>& adapters = m_workRig->GetAllToolAdapters();
    if (adapters.IsNull()) return;
    for (const misc::tqAutoPointer<ToolAdapter>& adapter : *adapters) {
        ValidateListOfDockingFramePlugs(adapter->GetPlugs());
        ValidateListOfDockingFrameSockets(adapter->GetSockets());
    }
}

void Validator::ValidateListOfDockingFramePlugs(const PlugListPointer& plugs) const {
    if (plugs.IsNull()) return;
    for (const misc::tqAutoPointer<DockingFramePlug>& plug : *plugs) ValidateDockingFrame(plug);
}

void Validator::ValidateListOfDockingFrameSockets(const SocketListPointer& sockets) const {
    if (sockets.IsNull()) return;
    for (const misc::tqAutoPointer<DockingFrameSocket>& socket : *sockets) ValidateDockingFrame(socket);
}

void Validator::ValidateDockingFrame(const misc::tqAutoPointer<DockingFrame>& frame) const {
    if (frame.IsNull()) misc::ThrowFailure(u"Docking frame is null!");
    const WorkRig::ListPointer<DockingFrame>& frames = m_workRig->GetDockingFrames();
    if (frames.IsNull() || frames->empty()) misc::ThrowFailure(u"Work rig has no docking frames!");
    for (const misc::tqAutoPointer<DockingFrame>& registered : *frames) {
        if (registered.Get() == frame.Get()) return;
    }
    // Named after the frame that was looked for: the one the message is about.
    misc::ThrowFailure(tqstring(u"Docking frame ") + frame->GetDisplayName() + u" not found in WorkRig!");
}

}  // namespace tqWorkRig
