// Utils::DockableObjectComparer: equality through the base, for one known kind and for two unknown ones.
#include "tqWorkRig/model/dockableobjectcomparer.h"

#include "modeltestutil.h"
#include "support/tqtest.h"
#include "tqWorkRig/model/box.h"
#include "tqWorkRig/model/holder.h"
#include "tqWorkRig/model/stockadapter.h"
#include "tqWorkRig/model/tool.h"

using namespace tqWorkRig;

namespace {

template <class T>
bool CompareAs(const T& held, const DockableObject& visited) {
    Utils::DockableObjectComparer<T> comparer(held);
    visited.AcceptVisitor(comparer);
    return comparer.GetResult();
}

}  // namespace

TEST(DockableObjectComparer, AKnownKindAnswersAsItsOperatorAndOtherKindsAreUnequal) {
    const Tool tool(u"same");
    const Holder holder(u"same");
    Stock stock(u"same"), other(u"same");
    EXPECT_FALSE(CompareAs(tool, holder));
    EXPECT_FALSE(CompareAs(holder, tool));
    EXPECT_TRUE(CompareAs(stock, other));
    other.SetPartGeometry(misc::tqAutoPointer<Geometry>(new Box(u"part")));
    EXPECT_FALSE(CompareAs(stock, other));
    EXPECT_FALSE(CompareAs(stock, modeltest::ForeignObject()));
}

TEST(DockableObjectComparer, TwoUnknownKindsAreComparedByBothClasses) {
    Stock stock(u"same"), other(u"same");
    const StockAdapter adapter(u"same");
    EXPECT_TRUE(CompareAs<DockableObject>(stock, other));
    EXPECT_FALSE(CompareAs<DockableObject>(stock, adapter));
    EXPECT_FALSE(CompareAs<DockableObject>(adapter, stock));
    EXPECT_FALSE(CompareAs<DockableObject>(stock, modeltest::ForeignObject()));
    EXPECT_FALSE(CompareAs<DockableObject>(modeltest::ForeignObject(), stock));
    other.SetDisplayName(u"other");
    EXPECT_FALSE(CompareAs<DockableObject>(stock, other));
}
