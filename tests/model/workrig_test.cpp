// WorkRig: construction, the two file names, unit changes, copying and equality.
#include "tqWorkRig/model/workrig.h"

#include "measures/tqmeasuresexception.h"
#include "support/tqtest.h"

using measures::tqUnitsFactory;
using misc::tqstring;
using tqWorkRig::WorkRig;

TEST(WorkRig, MachineFileIsKeptWholeAndNCFileKeepsNameAndExtension) {
    // Only a bare two-unit drive is a drive; the later separator of either kind ends the directory.
    const std::pair<const char16_t*, const char16_t*> cases[] = {
        {u"C:\\machines\\mill.v2\\five axis.xml", u"five axis.xml"},
        {u"/home/nc/part.tap", u"part.tap"},
        {u"archive.tar.gz", u"archive.tar.gz"},
        {u"dir.d\\program", u"program"},
        {u"C:\\nc\\part.", u"part"},
        {u".nc", u".nc"},
        {u"C:\\nc\\part.tap\\", u""},
        {u"C:", u""},
        {u"", u""},
        {u"C:/nc/", u""},
        {u"C:part.nc", u"C:part.nc"},
        {u"C:\\a/b\\c.nc", u"c.nc"},
        {u"C:/a\\b/c.v1/d.nc", u"d.nc"},
    };
    WorkRig rig(tqUnitsFactory::Metric);
    for (const auto& c : cases) {
        rig.SetMachineXMLFile(c.first);
        rig.SetNCFile(c.first);
        EXPECT_EQ(rig.GetMachineXMLFile(), tqstring(c.first));
        EXPECT_EQ(rig.GetNCFile(), tqstring(c.second)) << tqstring(c.first);
    }
}

TEST(WorkRig, UnitsAreValidatedAndAChangeOnlyRetags) {
    EXPECT_THROW_CODE(WorkRig(static_cast<tqUnitsFactory::Units>(0)), measures::tqmeasuresException, 2141,
                      "Unknown Units");
    WorkRig rig(tqUnitsFactory::Inch);
    rig.SetNCFile(u"part.nc");
    rig.SetUnits(tqUnitsFactory::Metric);
    EXPECT_EQ(rig.GetUnits(), tqUnitsFactory::Metric);
    EXPECT_EQ(rig.GetNCFile(), tqstring(u"part.nc"));
}

TEST(WorkRig, CopiesShareAttributesOnly) {
    WorkRig source(tqUnitsFactory::Metric);
    source.SetDisplayName(u"job");
    source.SetNCFile(u"a.nc");
    WorkRig copy(source);
    copy.SetAttribute(u"k", u"v");
    copy.SetNCFile(u"b.nc");
    copy.SetUnits(tqUnitsFactory::Inch);
    EXPECT_EQ(source.GetAttributeValue(u"k"), tqstring(u"v"));
    EXPECT_EQ(source.GetNCFile(), tqstring(u"a.nc"));
    EXPECT_EQ(source.GetUnits(), tqUnitsFactory::Metric);
    copy = source;
    EXPECT_TRUE(copy == source);
    EXPECT_EQ(copy.GetDisplayName(), tqstring(u"job"));
}

TEST(WorkRig, EqualityIgnoresNameAndAttributes) {
    WorkRig a(tqUnitsFactory::Metric), b(tqUnitsFactory::Metric);
    a.SetDisplayName(u"a");
    a.SetAttribute(u"only", u"in a");
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(WorkRig(tqUnitsFactory::Metric) == WorkRig(tqUnitsFactory::Inch));
    b.SetMachineXMLFile(u"m.xml");
    EXPECT_FALSE(a == b);
    a.SetMachineXMLFile(u"m.xml");
    a.SetNCFile(u"x\\p.nc");
    b.SetNCFile(u"y/p.nc");
    EXPECT_TRUE(a == b);
    b.SetNCFile(u"P.nc");
    EXPECT_TRUE(a != b);
}
