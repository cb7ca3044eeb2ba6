// ArchiveDataReader: what a load reads, under which keys, and how it refuses files from elsewhere: not archives,
// broken documents, unsafe names, damaged data, decompression bombs, documents nested too deep.
#include "persistence/archive/archivedatareader.h"

#include <minizip/zip.h>
#include <pthread.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <zlib.h>

#include <filesystem>
#include <functional>
#include <random>

#include "persistence/archive/archivedatawriter.h"
#include "support/tqtest.h"
#include "support/ziptestutil.h"

using namespace tqtest;
using measures::tqUnitsFactory;
using misc::tqstring;
namespace Reader = tqWorkRig::ArchiveDataReader;
namespace Writer = tqWorkRig::ArchiveDataWriter;

namespace {

const std::string kXml = "<?xml version=\"1.0\" ?>\n<WorkRig version=\"2\" units=\"METRIC\" displayName=\"r\" />";

ZipMember Xml(const std::string& text = kXml) { return {"WorkRig.xml", text}; }
ZipMember Stl(const std::string& name, std::size_t triangles) { return {name, StlBytes(*MakeMesh(triangles))}; }

std::string UnzipError(const std::string& path) {
    return "tqWorkRig::ArchiveDataReader::`anonymous-namespace'::Unzip: Error when unzipping '" + path + "'.";
}
std::string Corrupted(const std::string& path) { return "Corrupted XML file in archive: " + path; }

/// Writes the members to folder/rig.wrg and returns its path.
std::string Craft(const TempFolder& folder, const std::vector<ZipMember>& members) {
    WriteZip(folder.Path("rig.wrg"), members);
    return folder.Path("rig.wrg");
}

Bytes Zipped(const TempFolder& folder, const std::vector<ZipMember>& members) {
    return ReadFileBytes(Craft(folder, members));
}

void ExpectRefused(const TempFolder& folder, const Bytes& archive) {
    const std::string path = folder.Path("crafted.wrg");
    WriteFileBytes(path, archive);
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqException, UnzipError(path));
}

}  // namespace

TEST(ArchiveDataReader, FileThatIsNotAnArchiveFailsAtUnzipping) {
    TempFolder folder;
    WriteFileBytes(folder.Path("plain.xml"), kXml);
    WriteFileBytes(folder.Path("empty.wrg"), "");
    ASSERT_EQ(mkfifo(folder.Path("pipe.wrg").c_str(), 0600), 0);  // refused at once rather than waited on
    // An archive of no members: minizip finds no end record at the very start of the file.
    WriteZip(folder.Path("nothing.wrg"), {});
    // An archive cut short has lost its central directory.
    const Bytes whole = Zipped(folder, {Xml(), Stl("Meshes/Mesh_1.stl", 50)});
    WriteFileBytes(folder.Path("cut.wrg"), whole.substr(0, whole.size() - 30));
    for (const std::string& path :
         {folder.Path("plain.xml"), folder.Path("empty.wrg"), folder.Path("missing.wrg"), folder.Path(),
          folder.Path("pipe.wrg"), folder.Path("nothing.wrg"), folder.Path("cut.wrg"), std::string("/dev/zero")})
        EXPECT_THROW_CODE(Reader::Read(path), misc::tqException, 0, UnzipError(path));
}

TEST(ArchiveDataReader, MissingOrBrokenDocumentFailsAtTheDocument) {
    TempFolder folder;
    const std::vector<std::vector<ZipMember>> archives = {
        {Stl("Meshes/Mesh_1.stl", 3)},
        {{"workrig.xml", kXml}, {"Meshes/WorkRig.xml", kXml}, {"WorkRig.xml/", ""}},
        // A file cannot be written over a folder of its name: it is lost, and the folder stays.
        {{"WorkRig.xml/", ""}, Xml()},
        {Xml("")},
        {Xml("   \n")},
        {Xml("<WorkRig units=\"METRIC\">")},
        {Xml("<WorkRig units=\"METRIC\" units=\"INCH\"/>")},
        {Xml("no xml")},
        {Xml(std::string("\0<WorkRig units=\"METRIC\"/>", 26))}};
    for (std::size_t i = 0; i < archives.size(); ++i) {
        SCOPED_TRACE(i);
        const std::string path = Craft(folder, archives[i]);
        EXPECT_THROW_CODE(Reader::Read(path), misc::tqException, 0, Corrupted(path));
    }
    // Behind a preamble, as a self-extracting stub has one, an archive of no members opens.
    const std::string path = folder.Path("rig.wrg");
    WriteFileBytes(path, "stub" + Zipped(folder, {}));
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqException, Corrupted(path));
}

TEST(ArchiveDataReader, DocumentIsParsedAsTinyXmlLoadsAFile) {
    // Line ends become '\n', everything after a zero byte is ignored, and a byte-order mark is honoured.
    TempFolder folder;
    const std::string text = "\xEF\xBB\xBF<?xml version=\"1.0\"?>\r\n<WorkRig units=\"INCH\">\r\n<A>x\ry</A></WorkRig>";
    const auto data = Reader::Read(Craft(folder, {Xml(text + std::string("\0trailing <garbage", 18))}));
    TiXmlDocument expected;
    expected.Parse("\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<WorkRig units=\"INCH\">\n<A>x\ny</A></WorkRig>");
    EXPECT_EQ(Printed(data->Document()), Printed(expected));
    EXPECT_EQ(std::string(data->Document().RootElement()->FirstChildElement("A")->GetText()), "x y");
}

TEST(ArchiveDataReader, UnitComesFromTheFirstReadableRoot) {
    TempFolder folder;
    const std::pair<std::string, tqUnitsFactory::Units> roots[] = {
        {"<WorkRig version=\"2\" units=\"INCH\"/>", tqUnitsFactory::Inch},
        {kXml, tqUnitsFactory::Metric},
        // Unknown or missing units pass a root over; a later top-level "WorkRig" may still give the unit.
        {"<WorkRig units=\"inch\"/><Other units=\"INCH\"/><WorkRig/><WorkRig units=\"INCH\"/>", tqUnitsFactory::Inch}};
    for (const auto& root : roots) {
        SCOPED_TRACE(root.first);
        const auto data = Reader::Read(Craft(folder, {Xml(root.first), Stl("Meshes/Mesh_1.stl", 2)}));
        EXPECT_EQ(data->Mesh(u"Meshes/Mesh_1.stl")->GetUnits(), root.second);
    }
    for (const char* text : {"<WorkRig version=\"1\" displayName=\"old\"/>", "<Rig units=\"METRIC\"/>",
                             "<Top><WorkRig units=\"METRIC\"/></Top>", "<WorkRig units=\"MM\"/>"}) {
        SCOPED_TRACE(text);
        // The unit is read before any mesh, so the broken mesh is not reached.
        EXPECT_THROW_CODE(Reader::Read(Craft(folder, {Xml(text), {"Meshes/Mesh_1.stl", "not an STL file"}})),
                          misc::tqException, 0,
                          "tqWorkRig::ArchiveDataReader::`anonymous-namespace'::GetUnit: WR: Unable to read the unit "
                          "from XML-Document");
    }
}

TEST(ArchiveDataReader, MeshesAreTheFilesDirectlyInMeshesTheLaterOfOneName) {
    TempFolder folder;
    const std::string text =
        "solid ascii\n  facet normal 0 0 1\n    outer loop\n      vertex 0 0 0\n      vertex 1 0 0\n"
        "      vertex 0 1 0\n    endloop\n  endfacet\nendsolid\n";
    const Bytes archive =
        Zipped(folder, {{"Meshes/", ""},
                        Xml("<WorkRig units=\"INCH\"/>"),
                        {"Meshes/Mesh_1.stl", "garbage"},
                        // The earlier of one name is gone before the meshes are read, though its data is still checked.
                        {"Meshes/Mesh_1.stl", StlBytes(*MakeMesh(4)), 0},
                        Xml(),
                        {"Meshes/text.stl", text},
                        Stl("Meshes/\xC3\xBC.bin", 6),
                        {"Other/Mesh_2.stl", "x"},
                        {"meshes/Mesh_3.stl", "x"},
                        {"Mesh_4.stl", "x"}});
    // Behind a preamble, as a self-extracting stub has one: minizip finds the archive and its data.
    WriteFileBytes(folder.Path("rig.wrg"), std::string(1000, '\x90') + archive);
    const auto data = Reader::Read(folder.Path("rig.wrg"));
    EXPECT_EQ(data->Mesh(u"Meshes/Mesh_1.stl")->GetTriangleCount(), 4u);
    EXPECT_EQ(data->Mesh(u"Meshes/Mesh_1.stl")->GetUnits(), tqUnitsFactory::Metric);
    EXPECT_EQ(data->Mesh(u"Meshes/text.stl")->GetTriangleCount(), 1u);
    EXPECT_EQ(data->Mesh(u"Meshes/\u00fc.bin")->GetTriangleCount(), 6u);
    for (const char16_t* absent : {u"Other/Mesh_2.stl", u"meshes/Mesh_3.stl", u"Mesh_4.stl", u"Meshes/mesh_1.stl",
                                   u"Meshes\\Mesh_1.stl", u"Meshes", u"", u"WorkRig.xml"})
        EXPECT_THROW_CODE(data->Mesh(absent), misc::tqException, 0,
                          u"tqWorkRig::ArchiveDataReader::ArchiveData::Mesh: WR: Could not find mesh with source: " +
                              tqstring(absent));
}

TEST(ArchiveDataReader, EveryMeshIsParsedUsedOrNot) {
    TempFolder folder;
    Bytes wrongCount = StlBytes(*MakeMesh(3));
    wrongCount[80] = 4;
    const std::pair<ZipMember, const char*> meshes[] = {
        {{"Meshes/Mesh_9.stl", "short"}, "Invalid .stl file format!"},
        {{"Meshes/Mesh_1.stl", wrongCount}, "Invalid number of triangles found in .stl file!"},
        {{"Meshes/Mesh_1.stl", ""}, "Invalid .stl file format!"}};
    for (const auto& mesh : meshes)
        EXPECT_THROW_MSG(Reader::Read(Craft(folder, {Xml(), mesh.first})), misc::tqSTLParserException, mesh.second);
}

TEST(ArchiveDataReader, UnsafeNamesAndUnreadableFoldersAreRefused) {
    TempFolder folder;
    const Bytes stl = StlBytes(*MakeMesh(1));
    // One name of each kind that would leave the folder (ArchiveLayout's test has them all), and an empty name.
    for (const char* name : {"../escape.stl", "Meshes/../../escape.stl", "/tmp/escape.stl", "Meshes\\..\\x.stl",
                             "C:escape.stl", "Meshes//x.stl", "./WorkRig.xml", "Meshes/x\x1f.stl", ""}) {
        SCOPED_TRACE(name);
        ExpectRefused(folder, Zipped(folder, {Xml(), {name, stl}}));
    }
    // Folders that the walk could not read: directly in "Meshes", or needed where a file already stands.
    const std::vector<ZipMember> folders[] = {{{"Meshes/sub/", ""}},
                                              {{"Meshes/sub/Mesh_1.stl", stl}},
                                              {{"Meshes", "x"}, {"Meshes/Mesh_1.stl", stl}},
                                              {{"Meshes", "x"}, {"Meshes/", ""}},
                                              {{"WorkRig.xml/", ""}}};
    for (std::vector<ZipMember> members : folders) {
        members.insert(members.begin(), Xml());
        ExpectRefused(folder, Zipped(folder, members));
    }
    // A zero byte inside the stored name, patched in after minizip wrote it.
    Bytes archive = Zipped(folder, {Xml(), {"Meshes/xx.stl", stl}});
    const CentralEntry entry = ReadCentralDirectory(archive).members[1];
    archive[entry.offset + 46 + 8] = archive[entry.localOffset + 30 + 8] = '\0';
    ExpectRefused(folder, archive);
    EXPECT_FALSE(std::filesystem::exists("/tmp/escape.stl"));
    EXPECT_EQ(folder.List(), (std::vector<std::string>{"crafted.wrg", "rig.wrg"}));
    // Deeper folders elsewhere are harmless, and a file named "Meshes" is no folder of meshes.
    EXPECT_NO_THROW(Reader::Read(Craft(folder, {Xml(), {"Extra/a/b/c.txt", "x"}, {"Meshes", "x"}})));
}

TEST(ArchiveDataReader, LongNamesAreCutAt256Bytes) {
    TempFolder folder;
    const std::string stem = "Meshes/" + std::string(249, 'a');
    // 256 bytes exactly, and 300 bytes cut to the same 256: the later replaces the earlier.
    const auto data = Reader::Read(Craft(folder, {Xml(), Stl(stem, 2), Stl(stem + std::string(44, 'b'), 5)}));
    EXPECT_EQ(data->Mesh(tqstring(stem))->GetTriangleCount(), 5u);
    // A cut that leaves an unsafe name is refused.
    ExpectRefused(folder, Zipped(folder, {Xml(), {std::string(254, 'a') + "/..x", "x"}}));
    // And the cut never runs into the bytes after the buffer.
    EXPECT_NO_THROW(Reader::Read(Craft(folder, {Xml(), {"Other/" + std::string(65000, 'z'), "x"}})));
}

TEST(ArchiveDataReader, DamagedArchivesAreRefused) {
    TempFolder folder;
    const Bytes stl = StlBytes(*MakeMesh(30));
    using Damage = std::function<void(Bytes&, const CentralEntry&)>;
    const std::pair<const char*, Damage> damages[] = {
        {"CRC failure", [](Bytes& a, const CentralEntry& e) { a[e.dataOffset + e.compressedSize / 2] ^= 0x10; }},
        {"wrong CRC", [](Bytes& a, const CentralEntry& e) { Patch(a, e, kCrc, e.crc ^ 1u); }},
        {"declared longer",
         [](Bytes& a, const CentralEntry& e) { Patch(a, e, kUncompressedSize, e.uncompressedSize + 1); }},
        // With the CRC of the declared part: inflating more than declared is refused, not cut.
        {"declared shorter",
         [&](Bytes& a, const CentralEntry& e) {
             Patch(a, e, kUncompressedSize, 500);
             Patch(a, e, kCrc, Crc(stl.substr(0, 500)));
         }},
        {"not deflate data", [](Bytes& a, const CentralEntry& e) { a.replace(e.dataOffset, 8, 8, '\xFF'); }},
        {"encrypted", [](Bytes& a, const CentralEntry& e) { Patch(a, e, kFlags, e.flags | 1u); }},
        {"unknown method", [](Bytes& a, const CentralEntry& e) { Patch(a, e, kMethod, 12); }},
        {"local header", [](Bytes& a, const CentralEntry& e) { PutLE(a, e.localOffset, 0x12345678u, 4); }},
        {"name length", [](Bytes& a, const CentralEntry& e) { PutLE(a, e.offset + 28, 0xFFFF, 2); }},
        {"directory offset",
         [](Bytes& a, const CentralEntry&) { PutLE(a, a.rfind("PK\x05\x06") + 16, 0x7FFFFFF0u, 4); }},
        {"directory size", [](Bytes& a, const CentralEntry&) { PutLE(a, a.rfind("PK\x05\x06") + 12, 0x7FFFFFF0u, 4); }},
        {"local header past the end", [](Bytes& a, const CentralEntry& e) {
             PutLE(a, e.offset + 42, static_cast<std::uint32_t>(a.size() - 10), 4);
         }}};
    // In a used member and in an unused one, stored and deflated.
    for (const int method : {0, 8}) {
        const Bytes good =
            Zipped(folder, {Xml(), {"Meshes/Mesh_1.stl", stl, method}, {"Other/unused.bin", stl, method}});
        const CentralDirectory directory = ReadCentralDirectory(good);
        for (std::size_t m = 1; m < 3; ++m)
            for (const auto& damage : damages) {
                SCOPED_TRACE(testing::Message() << "method " << method << ", member " << m << ", " << damage.first);
                Bytes bad = good;
                damage.second(bad, directory.members[m]);
                ExpectRefused(folder, bad);
            }
    }
}

TEST(ArchiveDataReader, MoreEntriesAnnouncedThanRecorded) {
    // Stepping past the last one fails, which ends the walk like the end of the list: the members before it are read.
    TempFolder folder;
    Bytes archive = Zipped(folder, {Xml(), Stl("Meshes/Mesh_1.stl", 3)});
    const std::size_t end = ReadCentralDirectory(archive).endOffset;
    PutLE(archive, end + 8, 3, 2);
    PutLE(archive, end + 10, 3, 2);
    WriteFileBytes(folder.Path("more.wrg"), archive);
    EXPECT_EQ(Reader::Read(folder.Path("more.wrg"))->Mesh(u"Meshes/Mesh_1.stl")->GetTriangleCount(), 3u);
}

TEST(ArchiveDataReader, RandomDamageFailsOnlyWithTheLibrarysExceptions) {
    TempFolder folder;
    TiXmlDocument document;
    MakeDocument(document);
    const tqWorkRig::MeshList meshes{{u"Meshes/Mesh_1.stl", MakeMesh(40)}, {u"Meshes/Mesh_2.stl", MakeMesh(3)}};
    std::mt19937 random(20240601);
    for (const auto level : {tqWorkRig::WorkRigFileWriter::Default, tqWorkRig::WorkRigFileWriter::None}) {
        Writer::Write(document, folder.Path("good.wrg"), meshes, level);
        const Bytes good = ReadFileBytes(folder.Path("good.wrg"));
        for (int round = 0; round < 600; ++round) {
            Bytes bad = good;
            for (int changes = 1 + static_cast<int>(random() % 4); changes > 0; --changes) {
                const std::size_t at = random() % bad.size();
                const unsigned kind = random() % 4, value = random();
                if (kind == 3)
                    bad.resize(std::max<std::size_t>(at, 1));
                else
                    bad[at] = static_cast<char>(kind == 0 ? value : kind == 1 ? bad[at] ^ (1 << value % 8) : 0xFF);
            }
            WriteFileBytes(folder.Path("damaged.wrg"), bad);
            try {
                Reader::Read(folder.Path("damaged.wrg"));
            } catch (const misc::tqException&) {
            } catch (...) {
                ADD_FAILURE() << "round " << round << " threw something else";
            }
        }
    }
}

namespace {

/// A raw deflate stream with the CRC and size of what it inflates to: each piece repeated its count of times. Each
/// piece is deflated once and flushed to a byte boundary, so its output can repeat: gigabytes cost megabytes.
struct Packed {
    Bytes data;
    uLong crc = crc32(0L, Z_NULL, 0);
    std::uint64_t size = 0;
};

Bytes Deflate(const Bytes& data, int flush) {
    z_stream stream{};
    deflateInit2(&stream, 9, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    Bytes out(deflateBound(&stream, data.size()) + 64, '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data.data()));
    stream.avail_in = static_cast<uInt>(data.size());
    stream.next_out = reinterpret_cast<Bytef*>(&out[0]);
    stream.avail_out = static_cast<uInt>(out.size());
    deflate(&stream, flush);
    out.resize(stream.total_out);
    deflateEnd(&stream);
    return out;
}

Packed Pack(const std::vector<std::pair<Bytes, std::size_t>>& pieces) {
    Packed packed;
    for (const auto& piece : pieces) {
        const Bytes deflated = Deflate(piece.first, Z_FULL_FLUSH);
        const uLong crc = Crc(piece.first);
        for (std::size_t i = 0; i < piece.second; ++i) {
            packed.data += deflated;
            packed.crc = crc32_combine(packed.crc, crc, static_cast<z_off_t>(piece.first.size()));
        }
        packed.size += piece.first.size() * piece.second;
    }
    packed.data += Deflate("", Z_FINISH);
    return packed;
}

/// Writes the members' packed data as they are, with the sizes and CRCs they inflate to.
void CraftPacked(const std::string& path, const std::vector<std::pair<std::string, Packed>>& members) {
    zipFile zip = zipOpen64(path.c_str(), APPEND_STATUS_CREATE);
    const zip_fileinfo info{};
    for (const auto& member : members) {
        zipOpenNewFileInZip2(zip, member.first.c_str(), &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, 9, 1);
        zipWriteInFileInZip(zip, member.second.data.data(), static_cast<unsigned>(member.second.data.size()));
        zipCloseFileInZipRaw(zip, static_cast<uLong>(member.second.size), member.second.crc);
    }
    zipClose(zip, nullptr);
}

}  // namespace

TEST(ArchiveDataReader, DecompressionBombsAreRefused) {
    // Well-formed members that would load if it were not for their declared sizes, so a missing bound shows.
    TempFolder folder;
    const std::string path = folder.Path("bomb.wrg");
    const std::size_t MiB = 1u << 20;
    const std::string head = "<WorkRig units=\"METRIC\"/>";
    const Bytes blanks(MiB, ' '), zeros(MiB, '\0');
    // A document of exactly 256 MiB, and 2 GiB in all.
    const Packed document = Pack({{head + Bytes(MiB - head.size(), ' '), 1}, {blanks, 255}});
    const Packed rest = Pack({{zeros, 2048 - 256}});
    CraftPacked(path, {{"WorkRig.xml", document}, {"Other/zeros", rest}});
    EXPECT_NO_THROW(Reader::Read(path));
    // One byte more of either is refused.
    const Packed longer = Pack({{head + Bytes(MiB - head.size(), ' '), 1}, {blanks, 255}, {" ", 1}});
    CraftPacked(path, {{"WorkRig.xml", longer}});
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqException, UnzipError(path));
    CraftPacked(path, {{"WorkRig.xml", document}, {"Other/zeros", rest}, {"Other/one", Pack({{" ", 1}})}});
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqException, UnzipError(path));
}

TEST(ArchiveDataReader, MemberCountIsBounded) {
    TempFolder folder;
    std::vector<ZipMember> members{Xml()};
    for (int i = 1; i < 65535; ++i) members.push_back({"e/" + std::to_string(i), "", 0});
    EXPECT_NO_THROW(Reader::Read(Craft(folder, members)));
    members.push_back({"e/last", "", 0});
    EXPECT_THROW_MSG(Reader::Read(Craft(folder, members)), misc::tqException, UnzipError(folder.Path("rig.wrg")));
}

namespace {

/// The message of a read on a thread with a 1 MiB stack, where TinyXML's parser dies at a few thousand levels;
/// empty when the file loads.
std::string ReadOnSmallStack(const std::string& path) {
    std::pair<std::string, std::string> call{path, ""};
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, 1u << 20);
    pthread_t thread;
    const auto body = [](void* argument) -> void* {
        auto* c = static_cast<std::pair<std::string, std::string>*>(argument);
        try {
            Reader::Read(c->first);
        } catch (const misc::tqException& e) {
            c->second = e.What();
        }
        return nullptr;
    };
    if (pthread_create(&thread, &attributes, body, &call) != 0) throw std::runtime_error("pthread_create");
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
    return call.second;
}

std::string Nested(std::size_t depth, const std::string& open = "<a>", const std::string& close = "</a>") {
    std::string text = "<WorkRig units=\"METRIC\">";
    for (std::size_t i = 1; i < depth; ++i) text += open;
    for (std::size_t i = 1; i < depth; ++i) text += close;
    return text + "</WorkRig>";
}

}  // namespace

TEST(ArchiveDataReader, DocumentNestedTooDeepIsRefused) {
    TempFolder folder;
    EXPECT_EQ(ReadOnSmallStack(Craft(folder, {Xml(Nested(256))})), "");
    // Also unclosed, with attributes, comments and text between the levels: the parser still recurses.
    for (const std::string& text : {Nested(257), Nested(100000), Nested(100000, "<a x='1'><!-- c -->t", "")}) {
        SCOPED_TRACE(text.substr(0, 60));
        EXPECT_EQ(ReadOnSmallStack(Craft(folder, {Xml(text)})), Corrupted(folder.Path("rig.wrg")));
    }
}

TEST(ArchiveDataReader, ReadingLeavesNoTemporaryFiles) {
    // Nothing is unpacked to disk, neither by a load nor by a refusal.
    TempFolder folder, temporary;
    const char* old = std::getenv("TMPDIR");
    const std::string saved = old != nullptr ? old : "";
    setenv("TMPDIR", temporary.Path().c_str(), 1);
    Reader::Read(Craft(folder, {Xml(), Stl("Meshes/Mesh_1.stl", 20)}));
    ExpectRefused(folder, Zipped(folder, {Xml(), {"../x", ""}}));
    if (old != nullptr)
        setenv("TMPDIR", saved.c_str(), 1);
    else
        unsetenv("TMPDIR");
    EXPECT_TRUE(temporary.List().empty());
    EXPECT_EQ(folder.List(), (std::vector<std::string>{"crafted.wrg", "rig.wrg"}));
}
