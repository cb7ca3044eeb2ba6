// ToolAssembly: its plug, GetTool's walk down the tree, and equality with its order and pointer rules.
#include "tqWorkRig/connection/toolassembly.h"

#include <limits>

#include "model/modeltestutil.h"
#include "support/tqtest.h"
#include "tqWorkRig/connection/connectortree.h"
#include "tqWorkRig/connection/plugnode.h"
#include "tqWorkRig/model/arbor.h"
#include "tqWorkRig/model/box.h"
#include "tqWorkRig/model/holder.h"
#include "tqWorkRig/model/tool.h"

using namespace tqWorkRig;
using namespace modeltest;

TEST(ToolAssembly, SetPlugKeepsThePlugItHasForNullAndForItself) {
    auto assembly = Make<ToolAssembly>(u"a");
    EXPECT_TRUE(assembly->GetTree().IsNotNull() && assembly->GetTree()->GetRoot().IsNull());
    EXPECT_FALSE(assembly->CheckIfParentOf(PlugPtr()));  // no plug: the argument is not read
    const PlugPtr plug = NewPlug();
    assembly->SetPlug(plug);
    EXPECT_EQ(plug->GetParent().Get(), assembly.Get());
    assembly->SetPlug(PlugPtr());
    assembly->SetPlug(plug);
    EXPECT_EQ(assembly->GetPlug().Get(), plug.Get());
    EXPECT_TRUE(assembly->CheckIfParentOf(plug));
    EXPECT_FALSE(assembly->CheckIfParentOf(NewPlug()));
    EXPECT_THROW_MSG(assembly->CheckIfParentOf(PlugPtr()), misc::tqException, "Accessing TQ_NULL pointer");
    assembly->SetPlug(NewPlug());
    assembly->SetPlug(plug);  // back again: its old link to this assembly stays, and the assembly lives on
    EXPECT_EQ(plug->GetParent()->GetDisplayName(), misc::tqstring(u"a"));
}

TEST(ToolAssembly, GetToolWalksTheFirstBranchOnly) {
    auto holder = Make<Holder>(u"h");
    auto arbor = Make<Arbor>(u"a");
    auto tool = Make<Tool>(u"t");
    holder->SetSocket(NewSocket());
    arbor->SetPlug(NewPlug());
    arbor->SetSocket(NewSocket());
    tool->SetPlug(NewPlug());
    ToolAssembly assembly(u"assembly");
    ConnectorTree& tree = *assembly.GetTree();
    tree.SetInitialPlug(NewPlug());  // a root plug without a parent object is passed over
    tree.GetRoot()->AddChild(holder->GetSocket(), arbor->GetPlug());
    EXPECT_TRUE(assembly.GetTool().IsNull());  // ends in an arbor: nothing, though no Tool was ever stored
    tree.GetRoot()->AddChild(NewSocket(), tool->GetPlug());
    EXPECT_TRUE(assembly.GetTool().IsNull());  // a Tool on the holder's second branch is never reached

    tree.AddConnection(tool->GetPlug(), arbor->GetSocket());
    EXPECT_EQ(static_cast<const ToolAssembly&>(assembly).GetTool().Get(), tool.Get());
    auto field = Make<Tool>(u"field");
    assembly.SetTool(field);
    EXPECT_EQ(assembly.GetTool().Get(), field.Get());  // the field wins over the tree
}

TEST(ToolAssembly, EqualityFollowsItsOrderAndThePointerRules) {
    auto a = Make<ToolAssembly>(u"a"), b = Make<ToolAssembly>(u"a");
    a->SetPlug(NewPlug());
    b->SetPlug(NewPlug());
    EXPECT_TRUE(*a == *b);  // each plug's parent leads back to an assembly under comparison, and it ends
    a->SetHolder(Make<Holder>(u"h"));
    EXPECT_FALSE(*a == *b);  // one null
    b->SetHolder(Make<Holder>(u"h"));
    EXPECT_TRUE(*a == *b);  // equal, not the same
    b->SetToolName(u"n");
    EXPECT_FALSE(*a == *b);
    b->SetToolName(u"");

    cadcam::tqMatrix<double, 4, 4> nan;
    nan(1, 3) = std::numeric_limits<double>::quiet_NaN();
    a->SetArborTransformation(nan);
    ToolAssembly copy(*a);  // shares everything, the NaN included
    EXPECT_FALSE(copy == *a);
    EXPECT_TRUE(*a == *a);
    a->SetArborTransformation(b->GetArborTransformation());

    a->SetAlternativeModel(Make<Box>(u"box"));
    b->SetAlternativeModel(Make<Box>(u"box"));
    EXPECT_TRUE(*a == *b);
    b->GetTree()->SetInitialPlug(NewPlug());
    EXPECT_FALSE(*a == *b);
    Utils::DockableObjectComparer<ToolAssembly> comparer(copy);
    a->AcceptVisitor(comparer);
    EXPECT_FALSE(comparer.GetResult());
    copy = *a;
    a->AcceptVisitor(comparer);
    EXPECT_TRUE(comparer.GetResult());
}
