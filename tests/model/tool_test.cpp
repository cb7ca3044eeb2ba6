// Tool: its own copy of the catalogue tool, the refreshed stream, and equality through the catalogue.
#include "tqWorkRig/model/tool.h"

#include <cstdint>

#include "cadcam/tools/revolved/tqendmill.h"
#include "misc/tqmemoryiostream.h"
#include "modeltestutil.h"
#include "support/tqtest.h"

using namespace modeltest;
using measures::tqUnitsFactory;
using tqWorkRig::Tool;

namespace {

Tool::ToolPointer EndMill(double diameter) {
    return Tool::ToolPointer(new cadcam::tqEndMill(tqUnitsFactory::Metric, {}, {}, diameter, 20, 40));
}

}  // namespace

TEST(Tool, KeepsItsOwnCopyOfTheCatalogueTool) {
    Tool tool(u"tool");
    const Tool::ToolPointer mill = EndMill(10);
    tool.SetTool(mill);
    ASSERT_TRUE(tool.GetTool().IsNotNull());
    EXPECT_NE(tool.GetTool().Get(), mill.Get());
    EXPECT_TRUE(tool.GetTool()->IsEqual(*mill));
    mill->SetUnits(tqUnitsFactory::Inch);  // the caller's change does not reach the copy
    EXPECT_EQ(tool.GetTool()->GetUnits(), tqUnitsFactory::Metric);
    tool.SetTool(Tool::ToolPointer());
    EXPECT_TRUE(tool.GetTool().IsNull());
}

TEST(Tool, ComparesPlugAndCatalogueToolAndRewritesTheStream) {
    Tool a(u"tool"), b(u"tool");
    a.SetTool(EndMill(10));
    EXPECT_FALSE(a == b);
    b.SetTool(EndMill(12));
    EXPECT_FALSE(a == b);
    b.SetTool(EndMill(10));
    EXPECT_TRUE(a == b);
    b.SetPlug(NewPlug());
    EXPECT_FALSE(a == b);

    const std::uint8_t byte = 1;
    a.GetBinaryRepresentation()->Write(&byte, 1);
    const Tool& constant = a;
    EXPECT_EQ(constant.GetBinaryRepresentation()->GetSize(), 0u);
}
