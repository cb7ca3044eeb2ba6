// ConnectorTable: order by station, equivalent keys, sharing copies, moves and equality.
#include "tqWorkRig/connection/connectortable.h"

#include <vector>

#include "model/modeltestutil.h"
#include "support/tqtest.h"
#include "tqWorkRig/connection/plugnode.h"
#include "tqWorkRig/model/stockmountstation.h"
#include "tqWorkRig/model/toolmountstation.h"

using namespace tqWorkRig;
using namespace modeltest;
using StationPtr = tqAutoPointer<MountStation>;

TEST(ConnectorTable, OrdersByTypeThenNameAndKeepsEquivalentKeysInInsertionOrder) {
    ConnectorTable table(u"table");
    const StationPtr stockA = Make<StockMountStation>(u"A", u"first");
    const StationPtr stockATwin = Make<StockMountStation>(u"A", u"other display name");  // the same key
    const ConnectorTree* t1 = table.CreateNewTree(Make<StockMountStation>(u"B", u""), NewPlug()).Get();
    const ConnectorTree* t2 = table.CreateNewTree(stockA, NewPlug()).Get();
    const ConnectorTree* t3 = table.CreateNewTree(Make<ToolMountStation>(u"Z", u""), NewPlug()).Get();
    const ConnectorTree* t4 = table.CreateNewTree(stockATwin, NewPlug()).Get();
    const ConnectorTree* t5 = table.CreateNewTree(stockA, NewPlug()).Get();

    std::vector<const ConnectorTree*> order;
    for (const auto& entry : table) order.push_back(entry.second.Get());
    EXPECT_EQ(order, (std::vector<const ConnectorTree*>{t3, t2, t4, t5, t1}));
    EXPECT_TRUE(table.GetSize() == 5u && table.size() == 5u);
    EXPECT_TRUE(table.GetBegin() == table.begin() && table.GetEnd() == table.end());

    EXPECT_THROW_MSG(table.CreateNewTree(stockA, PlugPtr()), misc::tqException,
                     "tqWorkRig::TreeHelper::CreateNewPlugNode: WR: Paramter \"p\" must not be null.");
    EXPECT_THROW_MSG(table.CreateNewTree(StationPtr(), NewPlug()), misc::tqException, "Accessing TQ_NULL pointer");
    EXPECT_EQ(table.GetSize(), 5u);
    ConnectorTable lonely;
    lonely.CreateNewTree(StationPtr(), NewPlug());  // nothing to compare a null key with yet
    EXPECT_EQ(lonely.GetSize(), 1u);
}

TEST(ConnectorTable, CopiesShareTreesAndMovesEmptyTheSource) {
    ConnectorTable table(u"table");
    const StationPtr station = Make<StockMountStation>(u"S", u"");
    auto& tree = table.CreateNewTree(station, NewPlug());
    ConnectorTable copy(table);
    tree->GetRoot()->AddChild(NewSocket(), NewPlug());
    EXPECT_EQ(copy.GetBegin()->second->GetRoot()->GetChildren().size(), 1u);
    EXPECT_TRUE(copy == table);

    ConnectorTable moved(std::move(copy));
    EXPECT_TRUE(copy.Empty() && copy.empty() && copy.begin() == copy.end());
    EXPECT_TRUE(moved == table);
    copy.CreateNewTree(station, NewPlug());  // still usable
    copy = std::move(moved);
    EXPECT_TRUE(moved.Empty() && copy == table);
    ConnectorTable& alias = copy;
    copy = alias;
    EXPECT_EQ(copy.GetSize(), 1u);
}

TEST(ConnectorTable, EqualityWalksBothTablesInStep) {
    const PlugPtr plug = NewPlug();
    ConnectorTable a, b;
    a.CreateNewTree(Make<StockMountStation>(u"S", u""), plug);
    b.CreateNewTree(Make<StockMountStation>(u"S", u""), plug);
    EXPECT_TRUE(a == b);  // equal stations and trees, not the same objects
    b.CreateNewTree(Make<StockMountStation>(u"T", u""), plug);
    EXPECT_FALSE(a == b);  // a prefix of the other
    EXPECT_FALSE(b == a);
    a.CreateNewTree(Make<StockMountStation>(u"T", u"display"), plug);
    EXPECT_FALSE(a == b);  // the keys compare their display names too
}
