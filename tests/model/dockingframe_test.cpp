// DockingFrame: the identity start, exact equality, the non-owning parent link, copies and replaced parents.
#include "tqWorkRig/model/dockingframe.h"

#include <cmath>
#include <limits>

#include "modeltestutil.h"
#include "support/tqtest.h"
#include "tqWorkRig/model/box.h"
#include "tqWorkRig/model/stockadapter.h"

using namespace modeltest;
using tqWorkRig::DockingFrame;
using tqWorkRig::Stock;

TEST(DockingFrame, StartsAtIdentityWithoutParentAndComparesExactly) {
    const PlugPtr a = NewPlug(), b = NewPlug();
    EXPECT_TRUE(a->GetMatrix() == DockingFrame::Matrix::Identity());
    EXPECT_TRUE(a->GetParent().IsNull());
    EXPECT_TRUE(*a == *b);

    DockingFrame::Matrix moved;
    moved(2, 3) = std::nextafter(0.0, 1.0);  // one unit in the last place
    b->SetMatrix(moved);
    EXPECT_FALSE(*a == *b);

    moved(2, 3) = std::numeric_limits<double>::quiet_NaN();
    b->SetMatrix(moved);
    const tqWorkRig::DockingFramePlug twin(*b);
    EXPECT_TRUE(*b == *b);  // by address
    EXPECT_FALSE(*b == twin);

    a->SetAttribute(u"k", u"v");
    EXPECT_FALSE(*a == *NewPlug());
}

TEST(DockingFrame, ParentsTakePartInEqualityAndOneNullParentDiffers) {
    const tqAutoPointer<Stock> first = Make<Stock>(u"s"), second = Make<Stock>(u"s");
    const PlugPtr a = NewPlug(), b = NewPlug();
    first->Add(a);
    EXPECT_FALSE(*a == *b);
    second->Add(b);
    EXPECT_TRUE(*a == *b);  // a frame compared by itself compares its parents in full
    second->SetStockGeometry(Make<tqWorkRig::Box>(u"raw"));
    EXPECT_FALSE(*a == *b);

    // Parents of different classes are unequal whatever their names.
    const tqAutoPointer<tqWorkRig::StockAdapter> adapter = Make<tqWorkRig::StockAdapter>(u"s");
    const PlugPtr c = NewPlug();
    adapter->Add(c);
    EXPECT_FALSE(*a == *c);
    EXPECT_FALSE(*c == *a);
}

TEST(DockingFrame, DestroyingAFrameLeavesItsParentAlive) {
    bool destroyed = false;
    {
        const tqAutoPointer<Stock> stock(new TrackedStock(destroyed));
        {
            const PlugPtr plug = NewPlug();
            stock->Add(plug);
            EXPECT_EQ(plug->GetParent().Get(), stock.Get());
            EXPECT_EQ(plug->GetParent().UseCount(), 1u);  // a control block of its own, not the stock's owner's
            stock->GetPlugs()->clear();
        }
        EXPECT_FALSE(destroyed);
    }
    EXPECT_TRUE(destroyed);
}

TEST(DockingFrame, CopiesShareTheLinkAndDieInAnyOrder) {
    bool destroyed = false;
    const tqAutoPointer<Stock> stock(new TrackedStock(destroyed));
    PlugPtr plug = NewPlug();
    stock->Add(plug);
    {
        const tqWorkRig::DockingFramePlug copy(*plug);  // the copy dies first
        EXPECT_EQ(plug->GetParent().UseCount(), 2u);
        EXPECT_TRUE(copy == *plug);
    }
    EXPECT_FALSE(plug->GetParent().Owns());  // the copy cleared the shared flag for its source too

    PlugPtr copy = Make<tqWorkRig::DockingFramePlug>(*plug);
    PlugPtr assigned = NewPlug(u"other");
    *assigned = *plug;  // a frame without parent takes the link: nothing of its own to release
    EXPECT_EQ(assigned->GetParent().Get(), stock.Get());
    stock->GetPlugs()->clear();
    plug = PlugPtr();  // now the source dies before its copies
    copy = PlugPtr();
    assigned = PlugPtr();
    EXPECT_FALSE(destroyed);
}

TEST(DockingFrame, AReplacedParentIsReleasedWithTheOldLink) {
    // A frame is to receive a parent once: the old link, if it is the last of its block, deletes the old parent.
    // That is safe only when nothing else owns that parent, as here, where the link alone holds it.
    bool firstDestroyed = false;
    Stock* first = new TrackedStock(firstDestroyed);
    const PlugPtr plug = NewPlug();
    first->Add(plug);
    const tqAutoPointer<Stock> second = Make<Stock>(u"second");
    second->Add(plug);
    EXPECT_TRUE(firstDestroyed);
    EXPECT_EQ(plug->GetParent().Get(), second.Get());

    // A parent owned elsewhere is handed over by first clearing the old link's owns flag.
    const tqAutoPointer<Stock> third = Make<Stock>(u"third");
    plug->GetParent().SetOwns(false);
    third->Add(plug);
    EXPECT_EQ(plug->GetParent().Get(), third.Get());
    EXPECT_EQ(second->GetPlugs()->size(), 1u);  // the second stock still lists it: nothing is detached
    EXPECT_EQ(second->GetDisplayName(), misc::tqstring(u"second"));
}
