// TreeHelper: node construction texts, and what each kind of object answers for its plugs and sockets.
#include "tqWorkRig/connection/treehelper.h"

#include "model/modeltestutil.h"
#include "support/tqtest.h"
#include "tqWorkRig/connection/toolassembly.h"
#include "tqWorkRig/model/holder.h"
#include "tqWorkRig/model/stock.h"
#include "tqWorkRig/model/tool.h"
#include "tqWorkRig/model/tooladapter.h"

using namespace tqWorkRig;
using namespace modeltest;

TEST(TreeHelper, NullFramesAreRefusedWithTheirOwnTexts) {
    EXPECT_THROW_MSG(TreeHelper::CreateNewPlugNode(PlugPtr()), misc::tqException,
                     "tqWorkRig::TreeHelper::CreateNewPlugNode: WR: Paramter \"p\" must not be null.");
    EXPECT_THROW_MSG(TreeHelper::CreateNewSocketNode(SocketPtr()), misc::tqException,
                     "tqWorkRig::TreeHelper::CreateNewSocketNode: WR: Paramter \"s\" must not be null.");
}

TEST(TreeHelper, EachKindAnswersItsFramesOrItsText) {
    Tool tool(u"t");
    Holder holder(u"h");
    ToolAssembly assembly(u"ta");
    ToolAdapter adapter(u"ad");
    Stock stock(u"st");
    ForeignObject foreign;
    tool.SetPlug(NewPlug());
    holder.SetSocket(NewSocket());  // its plug stays unset and is left out
    adapter.Add(NewPlug());
    adapter.Add(NewPlug());
    stock.Add(NewPlug());
    const char* base = "WR: Calling Visit function with base-type 'DockableObject'";
    const struct {
        const DockableObject& object;
        std::size_t plugs, sockets;
        const char *plugText, *socketText;
    } rows[] = {{tool, 1, 0, "", "WR: Cannot get socket from Tool"},
                {holder, 0, 1, "", ""},
                {assembly, 0, 0, "", "WR: Cannot get sockets of ToolAssembly"},
                {adapter, 2, 0, "", ""},
                {stock, 1, 0, "", "WR: Cannot get sockets of Stock"},
                {foreign, 0, 0, base, base}};
    for (const auto& row : rows) {
        misc::tqstring error = u"stale";
        EXPECT_EQ(TreeHelper::TryGetPlugs(row.object, error).size(), row.plugs) << row.object.GetDisplayName();
        EXPECT_EQ(misc::to_utf8(error), row.plugText) << row.object.GetDisplayName();
        error = u"stale";
        EXPECT_EQ(TreeHelper::TryGetSockets(row.object, error).size(), row.sockets) << row.object.GetDisplayName();
        EXPECT_EQ(misc::to_utf8(error), row.socketText) << row.object.GetDisplayName();
    }
    misc::tqstring error;
    stock.GetPlugs() = Stock::PlugListPointer();  // a reseated list is an error, not an empty answer
    EXPECT_THROW_MSG(TreeHelper::TryGetPlugs(stock, error), misc::tqException, "Accessing TQ_NULL pointer");
}
