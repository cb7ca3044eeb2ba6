// Stock: adding plugs, the search by identity, equality that ends through the comparing flag, shared copies.
#include "tqWorkRig/model/stock.h"

#include "modeltestutil.h"
#include "support/tqtest.h"
#include "tqWorkRig/model/box.h"
#include "tqWorkRig/model/cylinder.h"

using namespace modeltest;
using tqWorkRig::Stock;

TEST(Stock, AddTakesEachPlugOnceAndIgnoresNull) {
    Stock stock(u"stock");
    const PlugPtr plug = NewPlug();
    EXPECT_FALSE(stock.CheckIfParentOf(plug));
    stock.Add(plug);
    stock.Add(plug);
    stock.Add(PlugPtr());
    ASSERT_EQ(stock.GetPlugs()->size(), 1u);
    EXPECT_TRUE(stock.CheckIfParentOf(plug));
    EXPECT_EQ(plug->GetParent().Get(), &stock);

    // The search reads the list, never the frame's link.
    const PlugPtr stranger = NewPlug();
    stranger->SetParent(plug->GetParent());
    EXPECT_FALSE(stock.CheckIfParentOf(stranger));

    stock.GetPlugs() = Stock::PlugListPointer();
    EXPECT_THROW_MSG(stock.Add(NewPlug()), misc::tqException, "Accessing TQ_NULL pointer");
}

TEST(Stock, TwoStocksThatEachHoldAPlugCompareAndTerminate) {
    Stock a(u"stock"), b(u"stock");
    a.Add(NewPlug(u"p"));
    b.Add(NewPlug(u"p"));
    EXPECT_TRUE(a == b);  // each plug meets a parent that is comparing and stops there
    EXPECT_TRUE(*(*a.GetPlugs())[0] == *(*b.GetPlugs())[0]);
    EXPECT_FALSE(a.IsComparing());

    a.Add(NewPlug(u"q"));
    b.Add(NewPlug(u"r"));
    EXPECT_FALSE(a == b);
    std::swap((*b.GetPlugs())[1], (*b.GetPlugs())[0]);
    (*b.GetPlugs())[0]->SetDisplayName(u"q");
    EXPECT_FALSE(a == b);  // equal plugs in another order
}

TEST(Stock, GeometriesCompareByClassAndCopiesShareEverything) {
    Stock a(u"stock"), b(u"stock");
    a.SetStockGeometry(Make<tqWorkRig::Box>(u"raw"));
    b.SetStockGeometry(Make<tqWorkRig::Cylinder>(u"raw"));
    EXPECT_FALSE(a == b);
    b.SetStockGeometry(Make<tqWorkRig::Box>(u"raw"));
    EXPECT_TRUE(a == b);
    b.SetPartGeometry(Make<tqWorkRig::Box>(u"part"));
    EXPECT_FALSE(a == b);

    const Stock copy(a);
    a.Add(NewPlug());
    EXPECT_EQ(copy.GetPlugs()->size(), 1u);
    EXPECT_EQ(copy.GetStockGeometry().Get(), a.GetStockGeometry().Get());
    EXPECT_TRUE(copy == a);
}
