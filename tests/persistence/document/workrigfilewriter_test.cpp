// WorkRigFileWriter: the document it builds, byte for byte, and the save to an archive.
#include "tqWorkRig/persistence/workrigfilewriter.h"

#include <tinyxml.h>

#include <filesystem>
#include <string>
#include <vector>

#include "persistence/document/workrigfilewriterimpl.h"
#include "support/tqtest.h"
#include "support/ziptestutil.h"
#include "tqWorkRig/model/workrig.h"

using measures::tqUnitsFactory;
using misc::tqAutoPointer;
using tqtest::Printed;
using tqWorkRig::WorkRig;
using tqWorkRig::WorkRigFileWriter;
using tqWorkRig::WorkRigFileWriterImpl;

namespace {

// A metric rig with a name, two attributes and both file names.
tqAutoPointer<WorkRig> SampleRig() {
    tqAutoPointer<WorkRig> rig(new WorkRig(tqUnitsFactory::Metric));
    rig->SetDisplayName(u"Rig 1");
    rig->SetAttribute(u"b", u"2");
    rig->SetAttribute(u"a", u"1");
    rig->SetMachineXMLFile(u"m.xml");
    rig->SetNCFile(u"C:\\jobs\\p.nc");
    return rig;
}

// The sample rig's document as the archive stores it: printed by TinyXML, cut after the last '>'.
constexpr char kSampleXML[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
    "<WorkRig version=\"2\" units=\"METRIC\" displayName=\"Rig 1\">\n"
    "    <Attribute key=\"a\" value=\"1\" />\n"
    "    <Attribute key=\"b\" value=\"2\" />\n"
    "    <DockingFrames />\n"
    "    <StockMountStations />\n"
    "    <ToolMountStations />\n"
    "    <ConnectorTable version=\"1\" displayName=\"\" />\n"
    "    <StockAdapters />\n"
    "    <Stocks />\n"
    "    <ToolAdapters />\n"
    "    <Arbors />\n"
    "    <Holders />\n"
    "    <Tools />\n"
    "    <ToolAssemblies />\n"
    "    <WorkOffsets />\n"
    "    <MachineXMLFile file=\"m.xml\" />\n"
    "    <NCFile file=\"p.nc\" />\n"
    "    <TurningToolOffsets />\n"
    "    <MillingToolOffsets />\n"
    "</WorkRig>";

}  // namespace

TEST(WorkRigFileWriter, DocumentOfASampleRig) {
    const WorkRigFileWriterImpl writer(SampleRig(), WorkRigFileWriter::Version2);
    EXPECT_EQ(Printed(writer.GetDocument()), kSampleXML);
    EXPECT_TRUE(writer.GetMeshes().empty());
}

TEST(WorkRigFileWriter, EmptyRigHasEverySectionForBothFileVersions) {
    // The sample's document in inches, without its name, attributes and file names; the root's version is 2.
    std::string expected = kSampleXML;
    for (const auto& edit : std::vector<std::pair<std::string, std::string>>{
             {"units=\"METRIC\" displayName=\"Rig 1\"", "units=\"INCH\" displayName=\"\""},
             {"    <Attribute key=\"a\" value=\"1\" />\n    <Attribute key=\"b\" value=\"2\" />\n", ""},
             {"m.xml", ""},
             {"p.nc", ""}})
        expected.replace(expected.find(edit.first), edit.first.size(), edit.second);
    for (WorkRigFileWriter::FileVersion version : {WorkRigFileWriter::Version1, WorkRigFileWriter::Version2}) {
        const WorkRigFileWriterImpl writer(tqAutoPointer<WorkRig>(new WorkRig(tqUnitsFactory::Inch)), version);
        EXPECT_EQ(Printed(writer.GetDocument()), expected) << version;
    }
}

TEST(WorkRigFileWriter, LaterChangesToTheRigAreNotInTheDocument) {
    const tqAutoPointer<WorkRig> rig = SampleRig();
    const WorkRigFileWriterImpl writer(rig, WorkRigFileWriter::Version2);
    rig->SetDisplayName(u"Renamed");
    rig->SetAttribute(u"c", u"3");
    rig->SetMachineXMLFile(u"other.xml");
    EXPECT_EQ(Printed(writer.GetDocument()), kSampleXML);
}

TEST(WorkRigFileWriter, NullRigFails) {
    EXPECT_THROW_CODE(WorkRigFileWriter(tqAutoPointer<WorkRig>(), WorkRigFileWriter::Version2), misc::tqException, 0,
                      "Accessing TQ_NULL pointer");
}

TEST(WorkRigFileWriter, ArchiveHoldsTheDocumentAloneAndRepeatsItsBytes) {
    const tqtest::TempFolder folder;
    WorkRigFileWriter writer(SampleRig(), WorkRigFileWriter::Version2);
    writer.WriteToFile(misc::tqstring(folder.Path("first.wr")));
    const std::vector<tqtest::ZipMember> members = tqtest::ReadZip(folder.Path("first.wr"));
    ASSERT_EQ(members.size(), 1u);
    EXPECT_EQ(members[0].name, "WorkRig.xml");
    EXPECT_EQ(members[0].data, kSampleXML);
    const std::string first = tqtest::ReadFileBytes(folder.Path("first.wr"));
    writer.WriteToFile(misc::tqstring(folder.Path("first.wr")));
    EXPECT_EQ(tqtest::ReadFileBytes(folder.Path("first.wr")), first);
    // The level of the one-argument form is Default.
    writer.WriteToFile(misc::tqstring(folder.Path("second.wr")), WorkRigFileWriter::Default);
    EXPECT_EQ(tqtest::ReadFileBytes(folder.Path("second.wr")), first);
}

TEST(WorkRigFileWriter, SaveCreatesTheParentFoldersOrFails) {
    const tqtest::TempFolder folder;
    WorkRigFileWriter writer(SampleRig(), WorkRigFileWriter::Version1);
    writer.WriteToFile(misc::tqstring(folder.Path("a/b/c/rig.wr")), WorkRigFileWriter::Best);
    EXPECT_TRUE(std::filesystem::is_regular_file(folder.Path("a/b/c/rig.wr")));
    tqtest::WriteFileBytes(folder.Path("plain"), "");
    EXPECT_THROW_CODE(writer.WriteToFile(misc::tqstring(folder.Path("plain/sub/rig.wr"))), misc::tqException, 0,
                      "tqWorkRig::WorkRigFileWriterImpl::WriteToFile: WR: Could not create the folder \"" +
                          folder.Path("plain/sub") + "\"!");
}

TEST(WorkRigFileWriter, BadLevelFailsBeforeTouchingTheDisk) {
    const tqtest::TempFolder folder;
    WorkRigFileWriter writer(SampleRig(), WorkRigFileWriter::Version2);
    const std::string target = folder.Path("new/rig.wr");
    EXPECT_THROW_CODE(writer.WriteToFile(misc::tqstring(target), static_cast<WorkRigFileWriter::CompressionLevel>(5)),
                      misc::tqException, 0,
                      "tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::zlibLevel: Unknown value for "
                      "WorkRigFileWriter::CompressionLevel: 5");
    EXPECT_FALSE(std::filesystem::exists(folder.Path("new")));
    // A failed save leaves the writer usable.
    writer.WriteToFile(misc::tqstring(target), WorkRigFileWriter::None);
    EXPECT_EQ(tqtest::ReadZip(target).at(0).data, kSampleXML);
}
