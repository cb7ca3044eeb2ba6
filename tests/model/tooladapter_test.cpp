// ToolAdapter: frames as for a stock adapter (stockadapter_test.cpp), and the rotating flag in equality.
#include "tqWorkRig/model/tooladapter.h"

#include "modeltestutil.h"
#include "support/tqtest.h"

using tqWorkRig::ToolAdapter;

TEST(ToolAdapter, AddsEachSocketOnceAndComparesTheRotatingFlag) {
    ToolAdapter a(u"spindle"), b(u"spindle");
    const modeltest::SocketPtr socket = modeltest::NewSocket();
    a.Add(socket);
    a.Add(socket);
    EXPECT_EQ(a.GetSockets()->size(), 1u);
    EXPECT_EQ(socket->GetParent().Get(), &a);
    b.Add(modeltest::NewSocket());
    EXPECT_TRUE(a == b);
    b.SetIsRotating(true);
    EXPECT_FALSE(a == b);
}
