// Holder: Arbor's contract with a holder definition (the shared behaviour is tested in arbor_test.cpp).
#include "tqWorkRig/model/holder.h"

#include "misc/tqmemoryiostream.h"
#include "modeltestutil.h"
#include "support/tqtest.h"

using tqWorkRig::Holder;

TEST(Holder, LinksItsFramesRewritesItsStreamAndComparesItsDefinition) {
    Holder a(u"holder"), b(u"holder");
    const modeltest::PlugPtr plug = modeltest::NewPlug();
    a.SetPlug(plug);
    a.SetPlug(modeltest::PlugPtr());
    EXPECT_EQ(plug->GetParent().Get(), &a);
    b.SetPlug(modeltest::NewPlug());
    EXPECT_TRUE(a == b);
    const char byte = 7;
    a.GetBinaryRepresentation()->Write(&byte, 1);
    EXPECT_EQ(a.GetBinaryRepresentation()->GetSize(), 0u);
    b.SetHolderDefinition(Holder::Definition(measures::tqUnitsFactory::Inch, {}));
    EXPECT_FALSE(a == b);
}
