// WorkRig: construction, the two file names, unit changes, copying and equality.
#include "tqWorkRig/model/workrig.h"

#include "measures/tqmeasuresexception.h"
#include "support/tqtest.h"

using measures::tqUnitsFactory;
using misc::tqstring;
using tqWorkRig::WorkRig;

namespace {
tqstring NCFileOf(const tqstring& path) {
    WorkRig rig(tqUnitsFactory::Metric);
    rig.SetNCFile(path);
    return rig.GetNCFile();
}
}  // namespace

TEST(WorkRig, MachineFileIsKeptWholeAndNCFileKeepsNameAndExtension) {
    WorkRig rig(tqUnitsFactory::Metric);
    rig.SetMachineXMLFile(u"C:\\machines\\mill.v2\\five axis.xml");
    rig.SetNCFile(u"C:\\machines\\mill.v2\\five axis.xml");
    EXPECT_EQ(rig.GetMachineXMLFile(), tqstring(u"C:\\machines\\mill.v2\\five axis.xml"));
    EXPECT_EQ(rig.GetNCFile(), tqstring(u"five axis.xml"));
}

TEST(WorkRig, NCFileSplit) {
    EXPECT_EQ(NCFileOf(u"/home/nc/part.tap"), tqstring(u"part.tap"));
    EXPECT_EQ(NCFileOf(u"archive.tar.gz"), tqstring(u"archive.tar.gz"));
    EXPECT_EQ(NCFileOf(u"dir.d\\program"), tqstring(u"program"));
    EXPECT_EQ(NCFileOf(u"C:\\nc\\part."), tqstring(u"part"));
    EXPECT_EQ(NCFileOf(u".nc"), tqstring(u".nc"));
    // Nothing but directory.
    EXPECT_EQ(NCFileOf(u"C:\\nc\\part.tap\\"), tqstring());
    EXPECT_EQ(NCFileOf(u"C:"), tqstring());
    EXPECT_EQ(NCFileOf(u""), tqstring());
    EXPECT_EQ(NCFileOf(u"C:/nc/"), tqstring());
    // Only a bare two-unit drive is a drive; a trailing slash empties the file part after the last separator.
    EXPECT_EQ(NCFileOf(u"C:part.nc"), tqstring(u"C:part.nc"));
    // The later separator of either kind ends the directory.
    EXPECT_EQ(NCFileOf(u"C:\\a/b\\c.nc"), tqstring(u"c.nc"));
    EXPECT_EQ(NCFileOf(u"C:/a\\b/c.v1/d.nc"), tqstring(u"d.nc"));
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
    copy.SetDisplayName(u"other");
    copy.SetUnits(tqUnitsFactory::Inch);
    EXPECT_EQ(source.GetAttributeValue(u"k"), tqstring(u"v"));
    EXPECT_EQ(source.GetNCFile(), tqstring(u"a.nc"));
    EXPECT_EQ(source.GetDisplayName(), tqstring(u"job"));
    EXPECT_EQ(source.GetUnits(), tqUnitsFactory::Metric);
    copy = source;
    EXPECT_TRUE(copy == source);
    EXPECT_EQ(copy.GetDisplayName(), tqstring(u"job"));
}

TEST(WorkRig, EqualityIgnoresNameAndAttributes) {
    WorkRig a(tqUnitsFactory::Metric);
    WorkRig b(tqUnitsFactory::Metric);
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
