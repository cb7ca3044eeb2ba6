// Validator: every frame of stocks, stock adapters, assemblies and tool adapters must be registered in the rig.
#include "tqWorkRig/validation/validator.h"

#include "support/tqtest.h"
#include "tqWorkRig/connection/toolassembly.h"
#include "tqWorkRig/model/dockingframeplug.h"
#include "tqWorkRig/model/dockingframesocket.h"
#include "tqWorkRig/model/stock.h"
#include "tqWorkRig/model/stockadapter.h"
#include "tqWorkRig/model/tooladapter.h"
#include "tqWorkRig/model/workrig.h"

using namespace tqWorkRig;
using misc::tqAutoPointer;

namespace {

const char* const kNull = "Docking frame is null!";
const char* const kNoFrames = "Work rig has no docking frames!";

tqAutoPointer<DockingFramePlug> Plug(const char16_t* name) {
    return tqAutoPointer<DockingFramePlug>(new DockingFramePlug(name));
}
tqAutoPointer<DockingFrameSocket> Socket(const char16_t* name) {
    return tqAutoPointer<DockingFrameSocket>(new DockingFrameSocket(name));
}

// A rig with one object of each checked kind, every frame registered.
struct Rig {
    tqAutoPointer<WorkRig> rig{new WorkRig(measures::tqUnitsFactory::Metric)};
    tqAutoPointer<Stock> stock{new Stock(u"stock")};
    tqAutoPointer<StockAdapter> vise{new StockAdapter(u"vise")};
    tqAutoPointer<ToolAssembly> assembly{new ToolAssembly(u"assembly")};
    tqAutoPointer<ToolAdapter> spindle{new ToolAdapter(u"spindle")};

    Rig() {
        stock->Add(Registered(Plug(u"stock plug")));
        vise->Add(Registered(Plug(u"vise plug")));
        vise->Add(Registered(Socket(u"vise socket")));
        assembly->SetPlug(Registered(Plug(u"assembly plug")));
        spindle->Add(Registered(Socket(u"spindle socket")));
        rig->AddStock(stock);
        rig->AddStockAdapter(vise);
        rig->AddToolAssembly(assembly);
        rig->AddToolAdapter(spindle);
    }
    template <class Frame>
    const tqAutoPointer<Frame>& Registered(const tqAutoPointer<Frame>& frame) {
        rig->AddDockingFrame(frame);
        return frame;
    }
    void Validate() const { Validator(rig).ValidateWorkRig(); }
};

}  // namespace

TEST(Validator, ARigWithEveryFrameRegisteredPassesAndSoDoesAnEmptyOne) {
    const tqAutoPointer<WorkRig> empty(new WorkRig(measures::tqUnitsFactory::Inch));
    Validator(empty).ValidateWorkRig();
    Rig full;
    full.Validate();
    full.assembly->SetPlug(tqAutoPointer<DockingFramePlug>());  // keeps its plug: still passes
    full.Validate();
}

TEST(Validator, ReportsEachOfItsThreeFailures) {
    Rig noFrames;
    noFrames.rig->GetDockingFrames()->clear();
    EXPECT_THROW_MSG(noFrames.Validate(), misc::tqException, kNoFrames);

    Rig nullEntry;
    nullEntry.stock->GetPlugs()->push_back(tqAutoPointer<DockingFramePlug>());
    EXPECT_THROW_MSG(nullEntry.Validate(), misc::tqException, kNull);

    // An equal frame that is another object is not the registered one.
    Rig twin;
    twin.stock->Add(Plug(u"stock plug"));
    EXPECT_THROW_MSG(twin.Validate(), misc::tqException, "Docking frame stock plug not found in WorkRig!");

    const tqAutoPointer<WorkRig> none;
    EXPECT_THROW_MSG(Validator(none).ValidateWorkRig(), misc::tqException, "Accessing TQ_NULL pointer");
}

TEST(Validator, ChecksStocksThenAdaptersPlugsBeforeSocketsThenAssembliesThenToolAdapters) {
    Rig rig;
    rig.spindle->Add(Socket(u"5 spindle socket"));
    EXPECT_THROW_MSG(rig.Validate(), misc::tqException, "Docking frame 5 spindle socket not found in WorkRig!");
    tqAutoPointer<ToolAssembly> second(new ToolAssembly(u"second"));
    second->SetPlug(Plug(u"4 assembly plug"));
    rig.rig->AddToolAssembly(second);
    EXPECT_THROW_MSG(rig.Validate(), misc::tqException, "Docking frame 4 assembly plug not found in WorkRig!");
    rig.vise->Add(Socket(u"3 vise socket"));
    EXPECT_THROW_MSG(rig.Validate(), misc::tqException, "Docking frame 3 vise socket not found in WorkRig!");
    rig.vise->Add(Plug(u"2 vise plug"));
    EXPECT_THROW_MSG(rig.Validate(), misc::tqException, "Docking frame 2 vise plug not found in WorkRig!");
    rig.stock->Add(Plug(u"1 stock plug"));
    EXPECT_THROW_MSG(rig.Validate(), misc::tqException, "Docking frame 1 stock plug not found in WorkRig!");
}
