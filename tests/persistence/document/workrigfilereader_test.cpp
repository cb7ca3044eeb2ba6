// WorkRigFileReader: hand-written "WorkRig.xml" fragments in hand-made archives, read in one pass.
#include "tqWorkRig/persistence/workrigfilereader.h"

#include <string>

#include "support/tqtest.h"
#include "support/ziptestutil.h"
#include "tqWorkRig/model/workrig.h"

using measures::tqUnitsFactory;
using misc::tqAutoPointer;
using misc::tqstring;
using tqWorkRig::BaseObject;
using tqWorkRig::WorkRig;
using tqWorkRig::WorkRigFileReader;

namespace {

// Loads an archive whose "WorkRig.xml" holds the text.
tqAutoPointer<WorkRig> Load(const std::string& xml) {
    const tqtest::TempFolder folder;
    tqtest::WriteZip(folder.Path("rig.wr"), {{"WorkRig.xml", xml}});
    return WorkRigFileReader(tqstring(folder.Path("rig.wr"))).GetWorkRig();
}

BaseObject::AttributeMap Attributes(const WorkRig& rig) { return *rig.GetAllAttributes(); }

}  // namespace

TEST(WorkRigFileReader, MissingFileOrBareXMLFails) {
    const tqtest::TempFolder folder;
    const std::string missing = folder.Path("none.wr"), bare = folder.Path("WorkRig.xml");
    EXPECT_THROW_CODE(
        WorkRigFileReader reader{tqstring(missing)}, misc::tqException, 0,
        "tqWorkRig::WorkRigFileReaderImpl::LoadWorkRigFile: WR: The file \"" + missing + "\" does not exist!");
    tqtest::WriteFileBytes(bare, R"(<?xml version="1.0" ?><WorkRig version="2" units="METRIC"/>)");
    EXPECT_THROW_MSG(
        WorkRigFileReader reader{tqstring(bare)}, misc::tqException,
        "tqWorkRig::ArchiveDataReader::`anonymous-namespace'::Unzip: Error when unzipping '" + bare + "'.");
}

TEST(WorkRigFileReader, RootAttributes) {
    const tqAutoPointer<WorkRig> rig =
        Load(R"(<?xml version="1.0" encoding="UTF-8" ?><WorkRig version="2" units="INCH" displayName="Set-up Ä"/>)");
    EXPECT_EQ(rig->GetUnits(), tqUnitsFactory::Inch);
    EXPECT_EQ(rig->GetDisplayName(), tqstring(u"Set-up Ä"));
    EXPECT_TRUE(Attributes(*rig).empty());
    EXPECT_TRUE(*rig == WorkRig(tqUnitsFactory::Inch));
}

TEST(WorkRigFileReader, LaterVersionsReadAsVersionTwo) {
    // Version 3 with an attribute and a section of its own, and a known section with an unknown child.
    const tqAutoPointer<WorkRig> rig = Load(R"(<WorkRig version="3" units="INCH" displayName="Next" checksum="abc">
    <Fixtures><Fixture version="1" /></Fixtures><Stocks><Hologram /></Stocks>
    <NCFile file="op20.nc" format="iso" /></WorkRig>)");
    EXPECT_EQ(rig->GetUnits(), tqUnitsFactory::Inch);
    EXPECT_EQ(rig->GetDisplayName(), tqstring(u"Next"));
    EXPECT_EQ(rig->GetNCFile(), tqstring(u"op20.nc"));
}

TEST(WorkRigFileReader, VersionOneIsMetricWhateverItsUnits) {
    const tqAutoPointer<WorkRig> rig = Load(R"(<WorkRig version="1" units="INCH" displayName="Old"/>)");
    EXPECT_EQ(rig->GetUnits(), tqUnitsFactory::Metric);
    EXPECT_EQ(rig->GetDisplayName(), tqstring(u"Old"));
}

TEST(WorkRigFileReader, RootsThatFail) {
    // The reader's own test would take version 1 as metric, but the archive asks for the unit first.
    EXPECT_THROW_CODE(Load(R"(<WorkRig version="1" displayName="Old"/>)"), misc::tqException, 0,
                      "tqWorkRig::ArchiveDataReader::`anonymous-namespace'::GetUnit: WR: Unable to read the unit "
                      "from XML-Document");
    EXPECT_THROW_CODE(Load(R"(<WorkRig units="METRIC"/>)"), misc::tqmiscException, 2579,
                      "Conversion from string to value failed");
    // The archive passes over the first root for its unit and takes the second; the walk reads the first.
    EXPECT_THROW_CODE(Load(R"(<WorkRig version="2" units="metric"/><WorkRig version="2" units="METRIC"/>)"),
                      misc::tqException, 0, "tqWRXMLReader::GetUnitsFromString -> Unknown units!");
}

TEST(WorkRigFileReader, CommentsAreSkipped) {
    const tqAutoPointer<WorkRig> rig = Load(R"(<?xml version="1.0" encoding="UTF-8" ?><!-- written by hand -->
<WorkRig version="2" units="METRIC" displayName="Commented"><!-- <NCFile file="commented.nc" /> -->
    <MachineXMLFile file="mill.xml" /></WorkRig>)");
    EXPECT_EQ(rig->GetDisplayName(), tqstring(u"Commented"));
    EXPECT_EQ(rig->GetMachineXMLFile(), tqstring(u"mill.xml"));
    EXPECT_EQ(rig->GetNCFile(), tqstring());
}

TEST(WorkRigFileReader, SectionsInAnyOrderAndMissingSections) {
    const tqAutoPointer<WorkRig> shuffled = Load(R"(<WorkRig version="2" units="METRIC" displayName="Shuffled">
    <MillingToolOffsets /><NCFile file="/jobs/op10.nc" /><Attribute key="b" value="2" />
    <ConnectorTable version="1" displayName="" /><ToolAssemblies /><MachineXMLFile file="mill.xml" />
    <Attribute key="a" value="1" /><DockingFrames /></WorkRig>)");
    WorkRig expected(tqUnitsFactory::Metric);
    expected.SetMachineXMLFile(u"mill.xml");
    expected.SetNCFile(u"op10.nc");
    EXPECT_TRUE(*shuffled == expected);
    EXPECT_EQ(Attributes(*shuffled), (BaseObject::AttributeMap{{u"a", u"1"}, {u"b", u"2"}}));
}

TEST(WorkRigFileReader, StocksBeforeDockingFrames) {
    // Loads while the rig has no stocks. Once stocks name their plugs, this order leaves those plugs unresolved:
    // plug ids are known only after "DockingFrames".
    const tqAutoPointer<WorkRig> rig =
        Load(R"(<WorkRig version="2" units="METRIC"><Stocks /><DockingFrames /><NCFile file="op10.nc" /></WorkRig>)");
    EXPECT_EQ(rig->GetNCFile(), tqstring(u"op10.nc"));
}

TEST(WorkRigFileReader, UnknownElementsAreSkippedWithTheirChildren) {
    const tqAutoPointer<WorkRig> rig = Load(R"(<WorkRig version="2" units="METRIC">
    <Future><Attribute key="inner" value="no" /><NCFile file="inner.nc" /></Future>
    <DockingFrames><NCFile file="frames.nc" /><Attribute key="frames" value="no" /></DockingFrames>
    <Attribute key="outer" value="yes" /></WorkRig>)");
    EXPECT_EQ(Attributes(*rig), (BaseObject::AttributeMap{{u"outer", u"yes"}}));
    EXPECT_EQ(rig->GetNCFile(), tqstring());
}

TEST(WorkRigFileReader, RepeatedAttributeKeyKeepsTheLastValue) {
    const tqAutoPointer<WorkRig> rig = Load(R"(<WorkRig version="2" units="METRIC">
    <Attribute key="Operator" value="A. Smith" /><Attribute key="Customer" value="Müller 😀" />
    <Attribute key="Operator" value="B. Jones" /><Attribute key="Empty" /></WorkRig>)");
    EXPECT_EQ(Attributes(*rig), (BaseObject::AttributeMap{
                                    {u"Customer", u"Müller \U0001F600"}, {u"Empty", u""}, {u"Operator", u"B. Jones"}}));
}

TEST(WorkRigFileReader, MachineAndNCFile) {
    const tqAutoPointer<WorkRig> rig = Load(R"(<WorkRig version="2" units="METRIC">
    <MachineXMLFile file="C:\machines\vmc-850.xml" />
    <NCFile file="C:\jobs\4711\first.nc" /><NCFile file="C:\jobs\4711\op10.nc" /></WorkRig>)");
    EXPECT_EQ(rig->GetMachineXMLFile(), tqstring(u"C:\\machines\\vmc-850.xml"));
    EXPECT_EQ(rig->GetNCFile(), tqstring(u"op10.nc"));
    const tqAutoPointer<WorkRig> bare =
        Load(R"(<WorkRig version="2" units="METRIC"><MachineXMLFile/><NCFile/></WorkRig>)");
    EXPECT_EQ(bare->GetMachineXMLFile(), tqstring());
    EXPECT_EQ(bare->GetNCFile(), tqstring());
}

TEST(WorkRigFileReader, DeclaredLatin1IsReadByteByByte) {
    const tqAutoPointer<WorkRig> rig = Load(
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\" ?><WorkRig version=\"2\" units=\"METRIC\" "
        "displayName=\"M\xFCller\"><Attribute key=\"Stra\xDF"
        "e\" value=\"\xE9t\xE9\" /></WorkRig>");
    EXPECT_EQ(rig->GetDisplayName(), tqstring(u"Müller"));
    EXPECT_EQ(Attributes(*rig), (BaseObject::AttributeMap{{u"Straße", u"été"}}));
}
