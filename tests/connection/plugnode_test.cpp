// PlugNode: AddChild's links and texts, and the guarded structural comparison.
#include "tqWorkRig/connection/plugnode.h"

#include <limits>

#include "model/modeltestutil.h"
#include "support/tqtest.h"
#include "tqWorkRig/connection/socketnode.h"
#include "tqWorkRig/connection/treehelper.h"

using namespace tqWorkRig;
using namespace modeltest;

TEST(PlugNode, AddChildChecksSocketThenPlugAndLinksBothWays) {
    auto root = TreeHelper::CreateNewPlugNode(NewPlug());
    EXPECT_THROW_MSG(root->AddChild(SocketPtr(), PlugPtr()), misc::tqException,
                     "tqWorkRig::PlugNode::AddChild: WR: Could not add null-pointer as child in PlugNode::AddChild.");
    EXPECT_THROW_MSG(
        root->AddChild(NewSocket(), PlugPtr()), misc::tqException,
        "tqWorkRig::PlugNode::AddChild: WR: Could not add null-pointer as plugIntoChild in PlugNode::AddChild.");
    EXPECT_TRUE(root->GetChildren().empty());

    root->AddChild(NewSocket(), NewPlug());
    auto child = root->AddChild(NewSocket(), NewPlug());
    ASSERT_EQ(root->GetChildren().size(), 2u);
    const auto& socketNode = root->GetChildren()[1];  // appended last
    EXPECT_EQ(socketNode->GetParent(), root.Get());
    EXPECT_EQ(socketNode->GetChild().Get(), child.Get());
    EXPECT_EQ(child->GetParent(), socketNode.Get());
    EXPECT_TRUE(child->GetPlugTransform().IsIdentity(0.0));
}

TEST(PlugNode, ComparesStructureAndEndsOnTheWayBackUp) {
    const PlugPtr r = NewPlug(u"r"), p1 = NewPlug(u"p1"), p2 = NewPlug(u"p2");
    const SocketPtr s1 = NewSocket(u"s1"), s2 = NewSocket(u"s2");
    auto fork = [&](const PlugPtr& root, bool swapped) {
        auto node = TreeHelper::CreateNewPlugNode(root);
        node->AddChild(swapped ? s2 : s1, swapped ? p2 : p1);
        node->AddChild(swapped ? s1 : s2, swapped ? p1 : p2);
        return node;
    };
    auto a = fork(r, false), b = fork(r, false), swapped = fork(r, true), otherRoot = fork(NewPlug(u"x"), false);

    EXPECT_TRUE(*a == *b);  // every child refers back to its parent: the set flags end the walk
    EXPECT_FALSE(*a == *swapped);
    // A deep node is compared through its parents too: the same subtree under different roots differs.
    const auto& deep = a->GetChildren()[0]->GetChild();
    EXPECT_TRUE(*deep == *b->GetChildren()[0]->GetChild());
    EXPECT_FALSE(*deep == *otherRoot->GetChildren()[0]->GetChild());
    EXPECT_TRUE(*b == *a);  // the flags were cleared on the way out
}

TEST(PlugNode, TransformIsComparedExactlyAndNaNBreaksTwins) {
    auto a = TreeHelper::CreateNewPlugNode(NewPlug()), b = TreeHelper::CreateNewPlugNode(a->GetPlug());
    cadcam::tqMatrix<double, 4, 4> m;
    m(0, 3) = 1.0;
    a->SetPlugTransform(m);
    EXPECT_FALSE(*a == *b);
    b->SetPlugTransform(m);
    EXPECT_TRUE(*a == *b);
    m(2, 2) = std::numeric_limits<double>::quiet_NaN();
    a->SetPlugTransform(m);
    b->SetPlugTransform(m);
    EXPECT_FALSE(*a == *b);
    EXPECT_TRUE(*a == *a);  // by address, before any element is read
}
