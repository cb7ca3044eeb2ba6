// DockableObjectTypeDetector and IsDockableObject: the kind of an object held through its base.
#include "tqWorkRig/model/dockableobjecttypedetector.h"

#include "modeltestutil.h"
#include "support/tqtest.h"
#include "tqWorkRig/connection/toolassembly.h"
#include "tqWorkRig/model/arbor.h"
#include "tqWorkRig/model/holder.h"
#include "tqWorkRig/model/stockadapter.h"
#include "tqWorkRig/model/tool.h"
#include "tqWorkRig/model/tooladapter.h"

using namespace tqWorkRig;

TEST(DockableObjectTypeDetector, AnswersForItsOwnKindOnlyAndTheLastVisitDecides) {
    const Tool tool(u"x");
    const Holder holder(u"x");
    const Arbor arbor(u"x");
    const ToolAssembly assembly(u"x");
    const ToolAdapter toolAdapter(u"x");
    const StockAdapter stockAdapter(u"x");
    const Stock stock(u"x");
    const modeltest::ForeignObject foreign;
    const DockableObject* const all[] = {&tool,        &holder,       &arbor, &assembly,
                                         &toolAdapter, &stockAdapter, &stock, &foreign};
    for (const DockableObject* object : all) {
        EXPECT_EQ(IsDockableObject<Tool>(*object), object == &tool);
        EXPECT_EQ(IsDockableObject<Holder>(*object), object == &holder);
        EXPECT_EQ(IsDockableObject<Arbor>(*object), object == &arbor);
    }

    detail_::DockableObjectTypeDetector<Holder> detector;
    EXPECT_FALSE(detector.GetResult());
    holder.AcceptVisitor(detector);
    EXPECT_TRUE(detector.GetResult());
    arbor.AcceptVisitor(detector);
    EXPECT_FALSE(detector.GetResult());
}
