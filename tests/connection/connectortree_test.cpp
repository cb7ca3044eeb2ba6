// ConnectorTree: AddConnection's two ways and its texts, the three searches, and the queries across objects.
#include "tqWorkRig/connection/connectortree.h"

#include <vector>

#include "model/modeltestutil.h"
#include "connection/treelinks.h"
#include "support/tqtest.h"
#include "tqWorkRig/connection/plugnode.h"
#include "tqWorkRig/connection/socketnode.h"
#include "tqWorkRig/connection/toolassembly.h"
#include "tqWorkRig/model/stock.h"
#include "tqWorkRig/model/stockadapter.h"
#include "tqWorkRig/model/tool.h"
#include "tqWorkRig/model/tooladapter.h"

using namespace tqWorkRig;
using namespace modeltest;

namespace {

const std::string kScope = "tqWorkRig::ConnectorTree::AddConnection: ";

/// An adapter with one plug and `sockets` sockets, all adopted.
template <class Adapter = StockAdapter>
tqAutoPointer<Adapter> Fixture(int sockets) {
    auto fixture = Make<Adapter>(u"fixture");
    fixture->Add(NewPlug());
    for (int i = 0; i < sockets; ++i) fixture->Add(NewSocket());
    return fixture;
}
template <class A>
const PlugPtr& PlugOf(const tqAutoPointer<A>& a) {
    return (*a->GetPlugs())[0];
}
template <class A>
const SocketPtr& SocketOf(const tqAutoPointer<A>& a, int i) {
    return (*a->GetSockets())[i];
}

/// A tree rooted at `plug`: an assembly's, since a tree's own constructors are private.
ConnectorTree& TreeOn(const tqAutoPointer<ToolAssembly>& owner, const PlugPtr& plug) {
    owner->GetTree()->SetInitialPlug(plug);
    return *owner->GetTree();
}

}  // namespace

TEST(ConnectorTree, ChecksComeInOrderAndFailuresChangeNothing) {
    auto owner = Make<ToolAssembly>(u"");
    auto fixture = Fixture(1), strangerPlugs = Fixture(0), strangerSockets = Fixture(1);
    EXPECT_THROW_MSG(owner->GetTree()->AddConnection(PlugPtr(), SocketPtr()), misc::tqException,
                     kScope + "WR: First set an initial plug before you can add connections.");
    ConnectorTree& tree = TreeOn(owner, PlugOf(fixture));
    EXPECT_THROW_MSG(tree.AddConnection(PlugPtr(), SocketPtr()), misc::tqException,
                     kScope + "WR: Parameter dockingFramePlug must not be null");
    EXPECT_THROW_MSG(tree.AddConnection(NewPlug(), SocketPtr()), misc::tqException,
                     kScope + "WR: Parameter dockingFrameSocket must not be null");
    EXPECT_THROW_MSG(
        tree.AddConnection(NewPlug(), NewSocket()), misc::tqException,
        kScope + "WR: dockingFramePlug needs to have a parent when you want to add it to the ConnectorTree.");
    EXPECT_THROW_MSG(
        tree.AddConnection(PlugOf(strangerPlugs), NewSocket()), misc::tqException,
        kScope + "WR: dockingFrameSocket needs to have a parent when you want to add it to the ConnectorTree.");

    Tool tool(u"tool");
    tool.SetPlug(NewPlug());
    ForeignObject foreign;
    const SocketPtr foreignSocket = NewSocket();
    Adopt(foreign, foreignSocket);
    const std::string failure =
        kScope +
        "WR: Not able to connect the dockingFramePlug and dockingFrameSocket to this ConnectorTree. Ensure that their "
        "parents are related to this ConnectorTree.";
    const std::string first = "\nFirst error message: \"WR: Calling Visit function with base-type 'DockableObject'";
    const std::string second = "\"\nSecond error message: \"WR: Cannot get socket from Tool\"";
    EXPECT_THROW_MSG(tree.AddConnection(PlugOf(strangerPlugs), SocketOf(strangerSockets, 0)), misc::tqException,
                     failure);
    EXPECT_THROW_MSG(tree.AddConnection(PlugOf(strangerPlugs), foreignSocket), misc::tqException, failure + first);
    EXPECT_THROW_MSG(tree.AddConnection(tool.GetPlug(), SocketOf(strangerSockets, 0)), misc::tqException,
                     failure + second);
    EXPECT_THROW_MSG(tree.AddConnection(tool.GetPlug(), foreignSocket), misc::tqException, failure + first + second);
    EXPECT_TRUE(tree.GetRoot()->GetChildren().empty());
}

TEST(ConnectorTree, FirstWayGoesBelowAndWinsSecondWaySplicesAbove) {
    auto owner = Make<ToolAssembly>(u"");
    auto base = Fixture(3), vise = Fixture(1), riser = Fixture(1);
    ConnectorTree& tree = TreeOn(owner, PlugOf(base));
    PlugNode& root = *tree.GetRoot();
    root.AddChild(SocketOf(base, 0), NewPlug());
    auto below = root.AddChild(SocketOf(vise, 0), NewPlug());  // the vise is in the tree by its socket
    root.AddChild(SocketOf(base, 2), NewPlug());
    const auto s = root.GetChildren()[1];

    tree.AddConnection(PlugOf(vise), SocketOf(base, 1));  // both ways would do: attached below the base's plug
    ASSERT_EQ(root.GetChildren().size(), 4u);
    EXPECT_EQ(root.GetChildren()[3]->GetChild()->GetPlug().Get(), PlugOf(vise).Get());
    EXPECT_EQ(root.GetChildren()[1].Get(), s.Get());

    tree.AddConnection(PlugOf(vise), SocketOf(riser, 0));  // spliced between the root and the vise's socket
    std::vector<const DockingFrameSocket*> sockets;
    for (const auto& child : root.GetChildren()) sockets.push_back(child->GetSocket().Get());
    EXPECT_EQ(sockets, (std::vector<const DockingFrameSocket*>{SocketOf(base, 0).Get(), SocketOf(base, 2).Get(),
                                                               SocketOf(base, 1).Get(), SocketOf(riser, 0).Get()}));
    const auto& t = root.GetChildren()[3];
    const auto& u = t->GetChild();
    EXPECT_TRUE(t->GetParent() == &root && u->GetParent() == t.Get() && s->GetParent() == u.Get());
    EXPECT_EQ(u->GetPlug().Get(), PlugOf(vise).Get());
    ASSERT_EQ(u->GetChildren().size(), 1u);
    EXPECT_TRUE(u->GetChildren()[0].Get() == s.Get() && s->GetChild().Get() == below.Get());
}

TEST(ConnectorTree, AChildlessSocketNodeStopsThePlugSearchAndIsPassedOverByTheOthers) {
    auto owner = Make<ToolAssembly>(u"");
    auto fixture = Fixture(2), other = Fixture(1);
    auto stock = Make<Stock>(u"stock"), loose = Make<Stock>(u"loose");
    stock->Add(NewPlug());
    stock->Add(NewPlug());
    loose->Add(NewPlug());
    ConnectorTree& tree = TreeOn(owner, PlugOf(fixture));
    tree.AddConnection(PlugOf(stock), SocketOf(fixture, 1));
    tree.AddConnection((*stock->GetPlugs())[1], SocketOf(fixture, 1));  // repeats are not refused
    detail_::TreeLinks::AttachSocket(*tree.GetRoot(), SocketOf(fixture, 0));

    EXPECT_EQ(tree.GetAllStocks(fixture)->size(), 1u);       // s0's node is passed over, s1 answers at its first node
    EXPECT_EQ(tree.GetAllStockAdapters(stock)->size(), 2u);  // one per plug, both found before the gap
    EXPECT_EQ((*tree.GetAllStockAdapters(stock))[1].Get(), fixture.Get());
    EXPECT_THROW_MSG(tree.GetAllStockAdapters(loose), misc::tqException, "Accessing TQ_NULL pointer");
    EXPECT_THROW_MSG(tree.AddConnection(PlugOf(loose), SocketOf(other, 0)), misc::tqException,
                     "Accessing TQ_NULL pointer");
    EXPECT_EQ(tree.GetRoot()->GetChildren().size(), 3u);
}

TEST(ConnectorTree, ToolAdapterAndItsAssembliesAndCopiesSharingTheRoot) {
    auto owner = Make<ToolAssembly>(u"");
    auto adapter = Fixture<ToolAdapter>(1);
    ConnectorTree& tree = TreeOn(owner, PlugOf(adapter));
    auto assembly = Make<ToolAssembly>(u"assembly");
    EXPECT_TRUE(tree.GetToolAdapter(assembly).IsNull());  // no plug
    assembly->SetPlug(NewPlug());
    EXPECT_TRUE(tree.GetToolAdapter(assembly).IsNull());  // not in the tree
    ConnectorTree copy(tree);
    copy.AddConnection(assembly->GetPlug(), SocketOf(adapter, 0));
    EXPECT_TRUE(copy == tree);
    EXPECT_EQ(tree.GetToolAdapter(assembly).Get(), adapter.Get());
    EXPECT_EQ((*tree.GetAllToolAssemblies(adapter))[0].Get(), assembly.Get());
}
