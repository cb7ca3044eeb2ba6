// StockAdapter: plugs and sockets kept apart, each added once, and both lists and the fixture compared.
#include "tqWorkRig/model/stockadapter.h"

#include "modeltestutil.h"
#include "support/tqtest.h"
#include "tqWorkRig/model/box.h"

using namespace modeltest;
using tqWorkRig::StockAdapter;

TEST(StockAdapter, KeepsPlugsAndSocketsApartEachOnceAndComparesThem) {
    StockAdapter a(u"vise"), b(u"vise");
    const SocketPtr socket = NewSocket(u"jaw");
    a.Add(socket);
    a.Add(socket);
    a.Add(SocketPtr());
    a.Add(NewPlug(u"base"));
    EXPECT_EQ(a.GetPlugs()->size(), 1u);
    EXPECT_EQ(a.GetSockets()->size(), 1u);
    EXPECT_TRUE(a.CheckIfParentOf(socket));
    EXPECT_FALSE(a.CheckIfParentOf(NewSocket()));
    EXPECT_EQ(socket->GetParent().Get(), &a);

    b.Add(NewSocket(u"other jaw"));
    b.Add(NewPlug(u"base"));
    EXPECT_FALSE(a == b);
    (*b.GetSockets())[0]->SetDisplayName(u"jaw");
    EXPECT_TRUE(a == b);
    b.SetFixtureGeometry(Make<tqWorkRig::Box>(u"body"));
    EXPECT_FALSE(a == b);
}
