// WorkRig: construction, the two file names, unit changes, equality, the lists and their Add rules, and copying.
#include "tqWorkRig/model/workrig.h"

#include "measures/tqmeasuresexception.h"
#include "modeltestutil.h"
#include "support/tqtest.h"
#include "tqWorkRig/connection/connectortable.h"
#include "tqWorkRig/connection/connectortree.h"
#include "tqWorkRig/connection/plugnode.h"
#include "tqWorkRig/connection/toolassembly.h"
#include "tqWorkRig/model/arbor.h"
#include "tqWorkRig/model/holder.h"
#include "tqWorkRig/model/stockadapter.h"
#include "tqWorkRig/model/stockmountstation.h"
#include "tqWorkRig/model/tool.h"
#include "tqWorkRig/model/tooladapter.h"
#include "tqWorkRig/model/workoffset.h"

using measures::tqUnitsFactory;
using misc::tqAutoPointer;
using misc::tqstring;
using modeltest::Make;
using modeltest::NewPlug;
using modeltest::NewSocket;
using tqWorkRig::WorkRig;

TEST(WorkRig, MachineFileIsKeptWholeAndNCFileKeepsNameAndExtension) {
    // Only a bare two-unit drive is a drive; the later separator of either kind ends the directory.
    const std::pair<const char16_t*, const char16_t*> cases[] = {
        {u"C:\\machines\\mill.v2\\five axis.xml", u"five axis.xml"},
        {u"/home/nc/part.tap", u"part.tap"},
        {u"archive.tar.gz", u"archive.tar.gz"},
        {u"dir.d\\program", u"program"},
        {u"C:\\nc\\part.", u"part"},
        {u".nc", u".nc"},
        {u"C:\\nc\\part.tap\\", u""},
        {u"C:", u""},
        {u"", u""},
        {u"C:/nc/", u""},
        {u"C:part.nc", u"C:part.nc"},
        {u"C:\\a/b\\c.nc", u"c.nc"},
        {u"C:/a\\b/c.v1/d.nc", u"d.nc"},
    };
    WorkRig rig(tqUnitsFactory::Metric);
    for (const auto& c : cases) {
        rig.SetMachineXMLFile(c.first);
        rig.SetNCFile(c.first);
        EXPECT_EQ(rig.GetMachineXMLFile(), tqstring(c.first));
        EXPECT_EQ(rig.GetNCFile(), tqstring(c.second)) << tqstring(c.first);
    }
}

TEST(WorkRig, UnitsAreValidatedAndAChangeOnlyRetags) {
    EXPECT_THROW_CODE(WorkRig(static_cast<tqUnitsFactory::Units>(0)), measures::tqmeasuresException, 2141,
                      "Unknown Units");
    WorkRig rig(tqUnitsFactory::Inch);
    rig.SetNCFile(u"part.nc");
    rig.SetUnits(tqUnitsFactory::Metric);
    EXPECT_EQ(rig.GetUnits(), tqUnitsFactory::Metric);
    EXPECT_EQ(rig.GetNCFile(), tqstring(u"part.nc"));
}

TEST(WorkRig, EqualityIgnoresNameAndAttributes) {
    WorkRig a(tqUnitsFactory::Metric), b(tqUnitsFactory::Metric);
    a.SetDisplayName(u"a");
    a.SetAttribute(u"only", u"in a");
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(WorkRig(tqUnitsFactory::Metric) == WorkRig(tqUnitsFactory::Inch));
    b.SetMachineXMLFile(u"m.xml");
    EXPECT_FALSE(a == b);
    a.SetMachineXMLFile(u"m.xml");
    a.SetNCFile(u"x\\p.nc");
    b.SetNCFile(u"y/p.nc");
    EXPECT_TRUE(a == b);
    b.SetNCFile(u"P.nc");
    EXPECT_TRUE(a != b);
}

namespace {

using namespace tqWorkRig;

// A holder, an arbor and a tool, each with its frames, chained in the assembly's tree: holder plug, holder
// socket, arbor plug, arbor socket, tool plug. The fields of the assembly are left to the caller.
struct Stack {
    tqAutoPointer<Holder> holder = Make<Holder>(u"holder");
    tqAutoPointer<Arbor> arbor = Make<Arbor>(u"arbor");
    tqAutoPointer<Tool> tool = Make<Tool>(u"tool");
    tqAutoPointer<ToolAssembly> assembly = Make<ToolAssembly>(u"assembly");

    Stack() {
        holder->SetPlug(NewPlug(u"holder plug"));
        holder->SetSocket(NewSocket(u"holder socket"));
        arbor->SetPlug(NewPlug(u"arbor plug"));
        arbor->SetSocket(NewSocket(u"arbor socket"));
        tool->SetPlug(NewPlug(u"tool plug"));
        assembly->GetTree()->SetInitialPlug(holder->GetPlug());
        assembly->GetTree()
            ->GetRoot()
            ->AddChild(holder->GetSocket(), arbor->GetPlug())
            ->AddChild(arbor->GetSocket(), tool->GetPlug());
    }
};

}  // namespace

TEST(WorkRigLists, PlainListsRefuseRepeatsAndPointerListsRefuseNull) {
    WorkRig rig(tqUnitsFactory::Metric), same(tqUnitsFactory::Metric);
    const tqAutoPointer<Arbor> arbor = Make<Arbor>(u"arbor");
    const tqAutoPointer<Stock> stock = Make<Stock>(u"stock");
    for (WorkRig* r : {&rig, &same}) {
        r->AddArbor(arbor);
        r->AddAdaptiveItem(arbor);
        r->AddArbor(Make<Arbor>(u"arbor"));  // equal contents, another object
        r->AddTool(tqAutoPointer<Tool>());
        r->AddTool(tqAutoPointer<Tool>());
        r->AddStock(stock);
        r->AddStock(stock);
        r->AddStock(tqAutoPointer<Stock>());
        r->AddDockingFrame(tqAutoPointer<DockingFrame>());
    }
    EXPECT_EQ(rig.GetAllArbors().size(), 2u);
    EXPECT_EQ(&rig.GetAllAdaptiveItems(), &rig.GetAllArbors());
    ASSERT_EQ(rig.GetAllTools().size(), 1u);
    EXPECT_TRUE(rig.GetAllTools()[0].IsNull());
    EXPECT_EQ(rig.GetAllStocks()->size(), 2u);
    EXPECT_TRUE(rig.GetDockingFrames()->empty());
    EXPECT_TRUE(rig == same);
}

TEST(WorkRigLists, AddToolAssemblyRegistersItsPartsOnceAndWalksTheChain) {
    Stack stack;
    stack.assembly->SetArbor(stack.arbor);
    stack.assembly->SetHolder(stack.holder);
    stack.assembly->SetTool(stack.tool);
    WorkRig rig(tqUnitsFactory::Metric);
    rig.AddToolAssembly(stack.assembly);
    rig.AddToolAssembly(stack.assembly);
    rig.AddToolAssembly(tqAutoPointer<ToolAssembly>());
    EXPECT_EQ(rig.GetAllToolAssemblies()->size(), 2u);
    ASSERT_EQ(rig.GetAllArbors().size(), 1u);
    ASSERT_EQ(rig.GetAllHolders().size(), 1u);
    ASSERT_EQ(rig.GetAllTools().size(), 1u);
    EXPECT_EQ(rig.GetAllTools()[0].Get(), stack.tool.Get());

    const DockingFrame* const expected[] = {stack.holder->GetPlug().Get(), stack.holder->GetSocket().Get(),
                                            stack.arbor->GetPlug().Get(), stack.arbor->GetSocket().Get(),
                                            stack.tool->GetPlug().Get()};
    ASSERT_EQ(rig.GetDockingFrames()->size(), 5u);
    for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ((*rig.GetDockingFrames())[i].Get(), expected[i]);
}

TEST(WorkRigLists, TheWalkStoresTheParentLinkAndStopsWhereTheTreeBranches) {
    Stack stack;  // no fields set: the tree alone names the objects
    WorkRig rig(tqUnitsFactory::Metric);
    rig.AddToolAssembly(stack.assembly);
    ASSERT_EQ(rig.GetAllTools().size(), 1u);
    EXPECT_EQ(rig.GetAllTools()[0].Get(), stack.tool.Get());
    // The rig shares the plug's link to the tool, not the tool's owner.
    EXPECT_EQ(rig.GetAllTools()[0].UseCount(), stack.tool->GetPlug()->GetParent().UseCount());
    EXPECT_EQ(stack.tool.UseCount(), 1u);

    Stack branched;
    branched.assembly->GetTree()->GetRoot()->AddChild(NewSocket(u"side"), NewPlug(u"side plug"));
    WorkRig other(tqUnitsFactory::Metric);
    other.AddToolAssembly(branched.assembly);
    ASSERT_EQ(other.GetDockingFrames()->size(), 1u);
    EXPECT_EQ((*other.GetDockingFrames())[0].Get(), branched.holder->GetPlug().Get());
    EXPECT_EQ(other.GetAllHolders().size(), 1u);
    EXPECT_TRUE(other.GetAllArbors().empty());

    branched.assembly->GetTree() = tqAutoPointer<ConnectorTree>();
    EXPECT_THROW_MSG(other.AddToolAssembly(branched.assembly), misc::tqException, "Accessing TQ_NULL pointer");
}

TEST(WorkRigLists, DockableObjectsComeInListOrderWithoutToolParts) {
    WorkRig rig(tqUnitsFactory::Metric);
    const tqAutoPointer<ToolAssembly> assembly = Make<ToolAssembly>(u"a");
    const tqAutoPointer<ToolAdapter> toolAdapter = Make<ToolAdapter>(u"t");
    const tqAutoPointer<Stock> stock = Make<Stock>(u"s");
    const tqAutoPointer<StockAdapter> stockAdapter = Make<StockAdapter>(u"v");
    EXPECT_TRUE(rig.GetAllDockableObjects()->empty());
    rig.AddToolAssembly(assembly);
    rig.AddToolAdapter(toolAdapter);
    rig.AddStock(stock);
    rig.AddStockAdapter(stockAdapter);
    rig.AddArbor(Make<Arbor>(u"arbor"));
    const tqAutoPointer<std::vector<tqAutoPointer<DockableObject>>> all = rig.GetAllDockableObjects();
    const DockableObject* const expected[] = {stockAdapter.Get(), stock.Get(), toolAdapter.Get(), assembly.Get()};
    ASSERT_EQ(all->size(), 4u);
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ((*all)[i].Get(), expected[i]);
    all->clear();
    EXPECT_EQ(rig.GetAllDockableObjects()->size(), 4u);
}

TEST(WorkRigLists, CopiesShareAttributesAndTheListsBehindPointersOnly) {
    WorkRig source(tqUnitsFactory::Metric);
    source.SetDisplayName(u"job");
    source.SetNCFile(u"a.nc");
    WorkRig copy(source);
    copy.SetAttribute(u"k", u"v");
    copy.SetNCFile(u"b.nc");
    copy.SetUnits(tqUnitsFactory::Inch);
    copy.AddStock(Make<Stock>(u"s"));
    copy.AddArbor(Make<Arbor>(u"a"));
    EXPECT_EQ(source.GetAttributeValue(u"k"), tqstring(u"v"));
    EXPECT_EQ(source.GetAllStocks()->size(), 1u);
    EXPECT_EQ(copy.GetConnectorTable().Get(), source.GetConnectorTable().Get());
    EXPECT_EQ(source.GetNCFile(), tqstring(u"a.nc"));
    EXPECT_EQ(source.GetUnits(), tqUnitsFactory::Metric);
    EXPECT_TRUE(source.GetAllArbors().empty());
    copy = source;
    EXPECT_TRUE(copy == source);
    EXPECT_EQ(copy.GetDisplayName(), tqstring(u"job"));
}

TEST(WorkRigLists, EqualityComparesListsInOrderFramesByClassAndTheTable) {
    WorkRig a(tqUnitsFactory::Metric), b(tqUnitsFactory::Metric);
    const tqAutoPointer<Stock> first = Make<Stock>(u"1"), second = Make<Stock>(u"2");
    a.AddStock(first);
    a.AddStock(second);
    b.AddStock(second);
    b.AddStock(first);
    EXPECT_FALSE(a == b);

    WorkRig c(tqUnitsFactory::Metric), d(tqUnitsFactory::Metric);
    c.AddDockingFrame(NewPlug(u"frame"));
    d.AddDockingFrame(NewSocket(u"frame"));
    EXPECT_FALSE(c == d);

    c.GetDockingFrames()->clear();
    d.GetDockingFrames()->clear();
    c.AddWorkOffset(Make<WorkOffset>(WorkOffset::Matrix(), u"G54", u"one"));
    d.AddWorkOffset(Make<WorkOffset>(WorkOffset::Matrix(), u"G54", u"two"));
    EXPECT_TRUE(c == d);
    c.GetConnectorTable()->CreateNewTree(Make<StockMountStation>(u"T", u"table"), NewPlug());
    EXPECT_FALSE(c == d);
    c.GetConnectorTable() = tqAutoPointer<ConnectorTable>();
    EXPECT_FALSE(c == d);
    d.GetConnectorTable() = tqAutoPointer<ConnectorTable>();
    EXPECT_TRUE(c == d);
}
