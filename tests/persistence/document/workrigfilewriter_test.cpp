// WorkRigFileWriter: the document it builds, byte for byte, and the save to an archive.
#include "tqWorkRig/persistence/workrigfilewriter.h"

#include <tinyxml.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "persistence/document/workrigfilewriterimpl.h"
#include "support/tqtest.h"
#include "support/ziptestutil.h"
#include "tqWorkRig/model/workrig.h"

using measures::tqUnitsFactory;
using misc::tqAutoPointer;
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

// What TiXmlDocument saves to a C stream, cut after the last '>'.
std::string Printed(const TiXmlDocument& document) {
    std::unique_ptr<FILE, int (*)(FILE*)> file(std::tmpfile(), &std::fclose);
    document.SaveFile(file.get());
    std::string text(static_cast<std::size_t>(std::ftell(file.get())), '\0');
    std::rewind(file.get());
    EXPECT_EQ(std::fread(&text[0], 1, text.size(), file.get()), text.size());
    return text.substr(0, text.rfind('>') + 1);
}

std::vector<std::string> AttributeNames(const TiXmlElement& element) {
    std::vector<std::string> names;
    for (const TiXmlAttribute* a = element.FirstAttribute(); a != nullptr; a = a->Next()) names.push_back(a->Name());
    return names;
}

misc::tqstring Path(const std::string& path) { return misc::tqstring(path); }

}  // namespace

TEST(WorkRigFileWriter, DocumentOfASampleRig) {
    const WorkRigFileWriterImpl writer(SampleRig(), WorkRigFileWriter::Version2);
    EXPECT_EQ(Printed(writer.GetDocument()), kSampleXML);
    EXPECT_TRUE(writer.GetMeshes().empty());
}

TEST(WorkRigFileWriter, RootVersionIsTwoForBothFileVersions) {
    for (WorkRigFileWriter::FileVersion version : {WorkRigFileWriter::Version1, WorkRigFileWriter::Version2}) {
        tqAutoPointer<WorkRig> rig(new WorkRig(tqUnitsFactory::Inch));
        const WorkRigFileWriterImpl writer(rig, version);
        const TiXmlElement* root = writer.GetDocument().RootElement();
        ASSERT_NE(root, nullptr);
        EXPECT_STREQ(root->Value(), "WorkRig");
        EXPECT_EQ(AttributeNames(*root), (std::vector<std::string>{"version", "units", "displayName"}));
        EXPECT_STREQ(root->Attribute("version"), "2");
        EXPECT_STREQ(root->Attribute("units"), "INCH");
        EXPECT_STREQ(root->Attribute("displayName"), "");
    }
}

TEST(WorkRigFileWriter, EmptyRigHasSixteenSectionsInOrder) {
    tqAutoPointer<WorkRig> rig(new WorkRig(tqUnitsFactory::Metric));
    const WorkRigFileWriterImpl writer(rig, WorkRigFileWriter::Version1);
    const TiXmlDocument& document = writer.GetDocument();
    ASSERT_NE(document.FirstChild(), nullptr);
    ASSERT_NE(document.FirstChild()->ToDeclaration(), nullptr);
    EXPECT_EQ(document.FirstChild()->NextSibling(), document.RootElement());

    std::vector<std::string> tags;
    for (const TiXmlElement* e = document.RootElement()->FirstChildElement(); e; e = e->NextSiblingElement()) {
        tags.push_back(e->Value());
        if (tags.back() == "ConnectorTable") {
            EXPECT_EQ(AttributeNames(*e), (std::vector<std::string>{"version", "displayName"}));
            EXPECT_STREQ(e->Attribute("version"), "1");
        } else if (tags.back() == "MachineXMLFile" || tags.back() == "NCFile") {
            EXPECT_EQ(AttributeNames(*e), std::vector<std::string>{"file"});
            EXPECT_STREQ(e->Attribute("file"), "");
        } else {
            EXPECT_EQ(e->FirstAttribute(), nullptr) << tags.back();
        }
        EXPECT_EQ(e->FirstChild(), nullptr) << tags.back();
    }
    EXPECT_EQ(tags, (std::vector<std::string>{"DockingFrames", "StockMountStations", "ToolMountStations",
                                              "ConnectorTable", "StockAdapters", "Stocks", "ToolAdapters", "Arbors",
                                              "Holders", "Tools", "ToolAssemblies", "WorkOffsets", "MachineXMLFile",
                                              "NCFile", "TurningToolOffsets", "MillingToolOffsets"}));
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

TEST(WorkRigFileWriter, ArchiveHoldsTheDocumentAlone) {
    const tqtest::TempFolder folder;
    WorkRigFileWriter writer(SampleRig(), WorkRigFileWriter::Version2);
    writer.WriteToFile(Path(folder.File("rig.wr")));
    const std::vector<tqtest::ZipMember> members = tqtest::ReadZip(folder.File("rig.wr"));
    ASSERT_EQ(members.size(), 1u);
    EXPECT_EQ(members[0].name, "WorkRig.xml");
    EXPECT_EQ(members[0].data, kSampleXML);
}

TEST(WorkRigFileWriter, RepeatedSavesWriteTheSameBytes) {
    const tqtest::TempFolder folder;
    WorkRigFileWriter writer(SampleRig(), WorkRigFileWriter::Version2);
    writer.WriteToFile(Path(folder.File("first.wr")));
    const std::string first = tqtest::ReadFileBytes(folder.File("first.wr"));
    writer.WriteToFile(Path(folder.File("first.wr")));
    EXPECT_EQ(tqtest::ReadFileBytes(folder.File("first.wr")), first);
    // The level of the one-argument form is Default.
    writer.WriteToFile(Path(folder.File("second.wr")), WorkRigFileWriter::Default);
    EXPECT_EQ(tqtest::ReadFileBytes(folder.File("second.wr")), first);
}

TEST(WorkRigFileWriter, SaveCreatesTheParentFolders) {
    const tqtest::TempFolder folder;
    WorkRigFileWriter writer(SampleRig(), WorkRigFileWriter::Version1);
    const std::string target = folder.File("a/b/c/rig.wr");
    writer.WriteToFile(Path(target), WorkRigFileWriter::Best);
    EXPECT_TRUE(std::filesystem::is_regular_file(target));
}

TEST(WorkRigFileWriter, BadLevelFailsBeforeTouchingTheDisk) {
    const tqtest::TempFolder folder;
    WorkRigFileWriter writer(SampleRig(), WorkRigFileWriter::Version2);
    const std::string target = folder.File("new/rig.wr");
    EXPECT_THROW_CODE(writer.WriteToFile(Path(target), static_cast<WorkRigFileWriter::CompressionLevel>(5)),
                      misc::tqException, 0,
                      "tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::zlibLevel: Unknown value for "
                      "WorkRigFileWriter::CompressionLevel: 5");
    EXPECT_FALSE(std::filesystem::exists(folder.File("new")));
    // A failed save leaves the writer usable.
    writer.WriteToFile(Path(target), WorkRigFileWriter::None);
    EXPECT_EQ(tqtest::ReadZip(target).at(0).data, kSampleXML);
}

TEST(WorkRigFileWriter, ParentThatIsAFileFails) {
    const tqtest::TempFolder folder;
    std::fclose(std::fopen(folder.File("plain").c_str(), "w"));
    WorkRigFileWriter writer(SampleRig(), WorkRigFileWriter::Version2);
    EXPECT_THROW_CODE(writer.WriteToFile(Path(folder.File("plain/sub/rig.wr"))), misc::tqException, 0,
                      "tqWorkRig::WorkRigFileWriterImpl::WriteToFile: WR: Could not create the folder \"" +
                          folder.File("plain/sub") + "\"!");
}
