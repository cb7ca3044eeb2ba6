// ArchiveDataReader: what a load reads, under which keys, and how it refuses files from elsewhere: not archives,
// broken documents, unsafe names, damaged data, decompression bombs, documents nested too deep.
#include "persistence/archive/archivedatareader.h"

#include <minizip/zip.h>
#include <pthread.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <zlib.h>

#include <boost/filesystem.hpp>
#include <random>

#include "archivetestsupport.h"
#include "persistence/archive/archivedatawriter.h"
#include "support/tqtest.h"

using namespace archivetest;
using measures::tqUnitsFactory;
using misc::tqstring;
namespace Reader = tqWorkRig::ArchiveDataReader;
namespace Writer = tqWorkRig::ArchiveDataWriter;

namespace {

const std::string kXml = "<?xml version=\"1.0\" ?>\n<WorkRig version=\"2\" units=\"METRIC\" displayName=\"r\" />";

CraftedMember Member(const std::string& name, const Bytes& data, int method = 8) {
    CraftedMember member;
    member.name = name;
    member.data = data;
    member.method = method;
    member.level = method == 0 ? 0 : 6;
    return member;
}

CraftedMember Xml(const std::string& text = kXml) { return Member("WorkRig.xml", ToBytes(text)); }

std::string UnzipError(const std::string& path) {
    return "tqWorkRig::ArchiveDataReader::`anonymous-namespace'::Unzip: Error when unzipping '" + path + "'.";
}

std::string Corrupted(const std::string& path) { return "Corrupted XML file in archive: " + path; }

/// Crafts members into path and expects the unzip failure.
void ExpectRefused(const TempFolder& folder, const std::vector<CraftedMember>& members) {
    const std::string path = folder.Path("crafted.wrg");
    CraftArchive(path, members);
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqException, UnzipError(path));
}

void ExpectRefused(const TempFolder& folder, const Bytes& archive) {
    const std::string path = folder.Path("crafted.wrg");
    WriteBytes(path, archive);
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqException, UnzipError(path));
}

Bytes Crafted(const TempFolder& folder, const std::vector<CraftedMember>& members) {
    const std::string path = folder.Path("source.zip");
    CraftArchive(path, members);
    return ReadBytes(path);
}

/// Deflates data raw, as a member stores it.
Bytes Deflate(const Bytes& data, int level) {
    z_stream stream{};
    deflateInit2(&stream, level, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    Bytes out(deflateBound(&stream, data.size()));
    stream.next_in = const_cast<Bytef*>(data.data());
    stream.avail_in = static_cast<uInt>(data.size());
    stream.next_out = out.data();
    stream.avail_out = static_cast<uInt>(out.size());
    deflate(&stream, Z_FINISH);
    out.resize(stream.total_out);
    deflateEnd(&stream);
    return out;
}

}  // namespace

TEST(ArchiveDataReader, FileThatIsNotAnArchiveFailsAtUnzipping) {
    TempFolder folder;
    const std::string xml = folder.Path("plain.xml");
    WriteBytes(xml, ToBytes(kXml));
    EXPECT_THROW_CODE(Reader::Read(xml), misc::tqException, 0, UnzipError(xml));
    const std::string empty = folder.Path("empty.wrg");
    WriteBytes(empty, {});
    EXPECT_THROW_MSG(Reader::Read(empty), misc::tqException, UnzipError(empty));
    EXPECT_THROW_MSG(Reader::Read(folder.Path("missing.wrg")), misc::tqException,
                     UnzipError(folder.Path("missing.wrg")));
    EXPECT_THROW_MSG(Reader::Read(folder.Path()), misc::tqException, UnzipError(folder.Path()));
    // A pipe is refused at once rather than waited on.
    const std::string fifo = folder.Path("pipe.wrg");
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_THROW_MSG(Reader::Read(fifo), misc::tqException, UnzipError(fifo));
    // An archive cut short has lost its central directory.
    TiXmlDocument document;
    MakeDocument(document);
    Writer::Write(document, folder.Path("whole.wrg"), {{u"Meshes/Mesh_1.stl", MakeMesh(50)}},
                  tqWorkRig::WorkRigFileWriter::Default);
    Bytes cut = ReadBytes(folder.Path("whole.wrg"));
    cut.resize(cut.size() - 30);
    ExpectRefused(folder, cut);
}

TEST(ArchiveDataReader, ArchiveWithoutDocumentFailsAtTheDocument) {
    TempFolder folder;
    const std::string path = folder.Path("rig.wrg");
    CraftArchive(path, {Member("Meshes/Mesh_1.stl", StlBytes(*MakeMesh(3)))});
    EXPECT_THROW_CODE(Reader::Read(path), misc::tqException, 0, Corrupted(path));
    // No members at all: minizip cannot find an end record at the very start of the file, so a bare empty
    // archive fails to open; behind a preamble it opens, and the load fails at the document.
    CraftArchive(path, {});
    const Bytes empty = ReadBytes(path);
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqException, UnzipError(path));
    Bytes preamble = ToBytes("stub");
    preamble.insert(preamble.end(), empty.begin(), empty.end());
    WriteBytes(path, preamble);
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqException, Corrupted(path));
    // Or only near misses of the name.
    CraftArchive(path, {Member("workrig.xml", ToBytes(kXml)), Member("Meshes/WorkRig.xml", ToBytes(kXml)),
                        Member("WorkRig.xml/", {})});
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqException, Corrupted(path));
}

TEST(ArchiveDataReader, BrokenDocumentFailsAtTheDocument) {
    TempFolder folder;
    const std::string path = folder.Path("rig.wrg");
    for (const std::string& text : {std::string(), std::string("   \n"), std::string("<WorkRig units=\"METRIC\">"),
                                    std::string("<WorkRig units=\"METRIC\" units=\"INCH\"/>"), std::string("no xml"),
                                    std::string("\0<WorkRig units=\"METRIC\"/>", 26)}) {
        SCOPED_TRACE(text);
        CraftArchive(path, {Member("WorkRig.xml", ToBytes(text))});
        EXPECT_THROW_MSG(Reader::Read(path), misc::tqException, Corrupted(path));
    }
}

TEST(ArchiveDataReader, DocumentAloneLoadsAndEveryMeshLookupFails) {
    TempFolder folder;
    const std::string path = folder.Path("rig.wrg");
    CraftArchive(path, {Xml()});
    const auto data = Reader::Read(path);
    EXPECT_STREQ(data->Document().RootElement()->Attribute("displayName"), "r");
    for (const char16_t* name : {u"Meshes/Mesh_1.stl", u"", u"WorkRig.xml"}) {
        EXPECT_THROW_CODE(
            data->Mesh(name), misc::tqException, 0,
            u"tqWorkRig::ArchiveDataReader::ArchiveData::Mesh: WR: Could not find mesh with source: " + tqstring(name));
    }
}

TEST(ArchiveDataReader, PreambleBeforeTheArchiveIsSkipped) {
    // As a self-extracting stub has one: minizip finds the archive behind it, and the members' data with it.
    TempFolder folder;
    const Bytes archive = Crafted(folder, {Xml(), Member("Meshes/Mesh_1.stl", StlBytes(*MakeMesh(12)))});
    Bytes shifted(1000, 0x90);
    shifted.insert(shifted.end(), archive.begin(), archive.end());
    WriteBytes(folder.Path("rig.wrg"), shifted);
    EXPECT_EQ(Reader::Read(folder.Path("rig.wrg"))->Mesh(u"Meshes/Mesh_1.stl")->GetTriangleCount(), 12u);
}

TEST(ArchiveDataReader, DocumentIsParsedAsTinyXmlLoadsAFile) {
    // Line ends become '\n', everything after a zero byte is ignored, and a byte-order mark is honoured.
    TempFolder folder;
    const std::string path = folder.Path("rig.wrg");
    const std::string text = "\xEF\xBB\xBF<?xml version=\"1.0\"?>\r\n<WorkRig units=\"INCH\">\r\n<A>x\ry</A></WorkRig>";
    CraftArchive(path, {Member("WorkRig.xml", ToBytes(text + std::string("\0trailing <garbage", 18)))});
    const auto data = Reader::Read(path);
    TiXmlDocument expected;
    expected.Parse("\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<WorkRig units=\"INCH\">\n<A>x\ny</A></WorkRig>");
    EXPECT_EQ(DocumentText(data->Document()), DocumentText(expected));
    EXPECT_EQ(std::string(data->Document().RootElement()->FirstChildElement("A")->GetText()), "x y");
}

TEST(ArchiveDataReader, UnitComesFromTheFirstReadableRoot) {
    TempFolder folder;
    const std::string path = folder.Path("rig.wrg");
    const Bytes stl = StlBytes(*MakeMesh(2));
    CraftArchive(path, {Xml("<WorkRig version=\"2\" units=\"INCH\"/>"), Member("Meshes/Mesh_1.stl", stl)});
    EXPECT_EQ(Reader::Read(path)->Mesh(u"Meshes/Mesh_1.stl")->GetUnits(), tqUnitsFactory::Inch);
    CraftArchive(path, {Xml(), Member("Meshes/Mesh_1.stl", stl)});
    EXPECT_EQ(Reader::Read(path)->Mesh(u"Meshes/Mesh_1.stl")->GetUnits(), tqUnitsFactory::Metric);
    // Unknown or missing units pass a root over; a later top-level "WorkRig" may still give the unit.
    CraftArchive(path, {Xml("<WorkRig units=\"inch\"/><Other units=\"INCH\"/><WorkRig/><WorkRig units=\"INCH\"/>"),
                        Member("Meshes/Mesh_1.stl", stl)});
    EXPECT_EQ(Reader::Read(path)->Mesh(u"Meshes/Mesh_1.stl")->GetUnits(), tqUnitsFactory::Inch);
    const std::string getUnit =
        "tqWorkRig::ArchiveDataReader::`anonymous-namespace'::GetUnit: WR: Unable to read the unit from XML-Document";
    for (const std::string& text :
         {std::string("<WorkRig version=\"1\" displayName=\"old\"/>"), std::string("<Rig units=\"METRIC\"/>"),
          std::string("<Top><WorkRig units=\"METRIC\"/></Top>"), std::string("<WorkRig units=\"MM\"/>")}) {
        SCOPED_TRACE(text);
        CraftArchive(path, {Xml(text), Member("Meshes/Mesh_1.stl", ToBytes("not an STL file at all"))});
        // The unit is read before any mesh, so the broken mesh is not reached.
        EXPECT_THROW_CODE(Reader::Read(path), misc::tqException, 0, getUnit);
    }
}

TEST(ArchiveDataReader, MeshesAreTheFilesDirectlyInMeshes) {
    TempFolder folder;
    const std::string path = folder.Path("rig.wrg");
    const std::string text =
        "solid ascii\n  facet normal 0 0 1\n    outer loop\n      vertex 0 0 0\n      vertex 1 0 0\n"
        "      vertex 0 1 0\n    endloop\n  endfacet\nendsolid\n";
    CraftArchive(path, {Member("Meshes/", {}), Member("Meshes/Mesh_1.stl", StlBytes(*MakeMesh(4)), 0), Xml(),
                        Member("Meshes/text.stl", ToBytes(text)), Member("Meshes/\xC3\xBC.bin", StlBytes(*MakeMesh(6))),
                        Member("Other/Mesh_2.stl", ToBytes("x")), Member("meshes/Mesh_3.stl", ToBytes("x")),
                        Member("Mesh_4.stl", ToBytes("x"))});
    const auto data = Reader::Read(path);
    EXPECT_EQ(data->Mesh(u"Meshes/Mesh_1.stl")->GetTriangleCount(), 4u);
    EXPECT_EQ(data->Mesh(u"Meshes/text.stl")->GetTriangleCount(), 1u);
    EXPECT_EQ(data->Mesh(u"Meshes/\u00fc.bin")->GetTriangleCount(), 6u);
    for (const char16_t* absent : {u"Other/Mesh_2.stl", u"meshes/Mesh_3.stl", u"Mesh_4.stl", u"Meshes/mesh_1.stl",
                                   u"Meshes\\Mesh_1.stl", u"Meshes"}) {
        EXPECT_THROW_MSG(data->Mesh(absent), misc::tqException,
                         u"tqWorkRig::ArchiveDataReader::ArchiveData::Mesh: WR: Could not find mesh with source: " +
                             tqstring(absent));
    }
}

TEST(ArchiveDataReader, LaterMemberWithTheSamePathReplacesTheEarlier) {
    TempFolder folder;
    const std::string path = folder.Path("rig.wrg");
    // The earlier mesh is not an STL file, but it is gone before the meshes are read; its data is still checked.
    CraftArchive(path, {Xml("<WorkRig units=\"INCH\"/>"), Member("Meshes/Mesh_1.stl", ToBytes("garbage")),
                        Member("Meshes/Mesh_1.stl", StlBytes(*MakeMesh(9))), Xml()});
    const auto data = Reader::Read(path);
    EXPECT_EQ(data->Mesh(u"Meshes/Mesh_1.stl")->GetTriangleCount(), 9u);
    EXPECT_EQ(data->Mesh(u"Meshes/Mesh_1.stl")->GetUnits(), tqUnitsFactory::Metric);
    // A file cannot be written over a folder of its name: it is lost, and the folder stays.
    CraftArchive(path, {Member("WorkRig.xml/", {}), Xml()});
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqException, Corrupted(path));
}

TEST(ArchiveDataReader, EveryMeshIsParsedUsedOrNot) {
    TempFolder folder;
    const std::string path = folder.Path("rig.wrg");
    CraftArchive(path, {Xml(), Member("Meshes/Mesh_9.stl", ToBytes("short"))});
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqSTLParserException, "Invalid .stl file format!");
    Bytes wrongCount = StlBytes(*MakeMesh(3));
    wrongCount[80] = 4;
    CraftArchive(path, {Member("Meshes/Mesh_1.stl", wrongCount), Xml()});
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqSTLParserException, "Invalid number of triangles found in .stl file!");
    // An empty member is no mesh either.
    CraftArchive(path, {Xml(), Member("Meshes/Mesh_1.stl", {})});
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqSTLParserException, "Invalid .stl file format!");
}

TEST(ArchiveDataReader, FoldersThatTheWalkCouldNotReadAreRefused) {
    TempFolder folder;
    // A folder directly in "Meshes", made by a directory entry or by a deeper file.
    ExpectRefused(folder, {Xml(), Member("Meshes/sub/", {})});
    ExpectRefused(folder, {Xml(), Member("Meshes/sub/Mesh_1.stl", StlBytes(*MakeMesh(1)))});
    // A folder needed where a file already stands.
    ExpectRefused(folder, {Xml(), Member("Meshes", ToBytes("x")), Member("Meshes/Mesh_1.stl", StlBytes(*MakeMesh(1)))});
    ExpectRefused(folder, {Xml(), Member("WorkRig.xml/", {})});
    // Deeper folders elsewhere are harmless, and a file named "Meshes" is no folder of meshes.
    const std::string path = folder.Path("rig.wrg");
    CraftArchive(path, {Xml(), Member("Extra/a/b/c.txt", ToBytes("x")), Member("Meshes", ToBytes("x"))});
    EXPECT_NO_THROW(Reader::Read(path));
}

TEST(ArchiveDataReader, NamesThatWouldLeaveTheFolderAreRefused) {
    TempFolder folder;
    boost::filesystem::create_directories(folder.Path("inner"));
    for (const char* name : {"../escape.stl",     "Meshes/../../escape.stl",
                             "Meshes/..",         "..",
                             "/tmp/escape.stl",   "/",
                             "Meshes\\..\\x.stl", "Meshes\\x.stl",
                             "C:escape.stl",      "c:/escape.stl",
                             "Meshes//x.stl",     "//x",
                             "./WorkRig.xml",     "Meshes/./x.stl",
                             "Meshes/x.stl/.",    "x\x01.stl",
                             "Meshes/x\x1f.stl",  "Meshes/\x7fx.stl",
                             "Meshes/x\n.stl",    "a///"}) {
        SCOPED_TRACE(name);
        ExpectRefused(folder, {Xml(), Member(name, StlBytes(*MakeMesh(1)))});
    }
    // A zero byte inside the stored name, patched in after minizip wrote it.
    Bytes archive = Crafted(folder, {Xml(), Member("Meshes/xx.stl", StlBytes(*MakeMesh(1)))});
    PatchNameByte(archive, ReadCentralDirectory(archive).members[1], 8, '\0');
    ExpectRefused(folder, archive);
    // An empty name.
    ExpectRefused(folder, {Xml(), Member("", {})});
    // Nothing was written anywhere.
    EXPECT_FALSE(boost::filesystem::exists(folder.Path("escape.stl")));
    EXPECT_FALSE(boost::filesystem::exists("/tmp/escape.stl"));
    EXPECT_EQ(folder.List(), (std::vector<std::string>{"crafted.wrg", "inner", "source.zip"}));
}

TEST(ArchiveDataReader, LongNamesAreCutAt256Bytes) {
    TempFolder folder;
    const std::string path = folder.Path("rig.wrg");
    const std::string stem = "Meshes/" + std::string(249, 'a');
    // 256 bytes exactly, and 300 bytes cut to the same 256: the later replaces the earlier.
    CraftArchive(path, {Xml(), Member(stem, StlBytes(*MakeMesh(2))),
                        Member(stem + std::string(44, 'b'), StlBytes(*MakeMesh(5)))});
    const auto data = Reader::Read(path);
    EXPECT_EQ(data->Mesh(tqstring(stem))->GetTriangleCount(), 5u);
    // A cut that leaves an unsafe name is refused.
    ExpectRefused(folder, {Xml(), Member(std::string(254, 'a') + "/..x", ToBytes("x"))});
    // And the cut never runs into the bytes after the buffer: a name of 65535 bytes.
    CraftArchive(path, {Xml(), Member("Other/" + std::string(65000, 'z'), ToBytes("x"))});
    EXPECT_NO_THROW(Reader::Read(path));
}

TEST(ArchiveDataReader, DamagedDataIsRefused) {
    TempFolder folder;
    const Bytes stl = StlBytes(*MakeMesh(30));
    for (const int method : {0, 8}) {
        SCOPED_TRACE(method);
        const Bytes good =
            Crafted(folder, {Xml(), Member("Meshes/Mesh_1.stl", stl, method), Member("Other/unused.bin", stl, method)});
        const CentralDirectory directory = ReadCentralDirectory(good);
        for (std::size_t m = 1; m < 3; ++m) {
            const CentralEntry& e = directory.members[m];
            // The data does not match its CRC, in a used member and in an unused one.
            Bytes bad = good;
            bad[e.dataOffset + e.compressedSize / 2] ^= 0x10;
            ExpectRefused(folder, bad);
            bad = good;
            PatchCrc(bad, e, e.crc ^ 1u);
            ExpectRefused(folder, bad);
            // Declared longer than the data gives.
            bad = good;
            PatchUncompressedSize(bad, e, e.uncompressedSize + 1);
            ExpectRefused(folder, bad);
            // Declared shorter, with the CRC of the declared part: inflating more than declared is refused, not cut.
            bad = good;
            const Bytes prefix(stl.begin(), stl.begin() + 500);
            PatchUncompressedSize(bad, e, 500);
            PatchCrc(bad, e, Crc(prefix));
            ExpectRefused(folder, bad);
            // Encrypted, or a method minizip does not know.
            bad = good;
            PatchFlags(bad, e, static_cast<std::uint16_t>(e.flags | 1));
            ExpectRefused(folder, bad);
            bad = good;
            PatchMethod(bad, e, 12);
            ExpectRefused(folder, bad);
        }
    }
    // Deflate data that is not deflate data.
    Bytes bad = Crafted(folder, {Xml(), Member("Meshes/Mesh_1.stl", stl)});
    const CentralEntry e = ReadCentralDirectory(bad).members[1];
    for (std::size_t i = 0; i < 8; ++i) bad[e.dataOffset + i] = 0xFF;
    ExpectRefused(folder, bad);
}

TEST(ArchiveDataReader, BrokenCentralDirectory) {
    TempFolder folder;
    const Bytes good = Crafted(folder, {Xml(), Member("Meshes/Mesh_1.stl", StlBytes(*MakeMesh(3)))});
    const CentralDirectory directory = ReadCentralDirectory(good);
    // More entries announced than recorded: stepping past the last one fails, which ends the walk like the end of
    // the list, so the members before it are read.
    Bytes bad = good;
    Put16(bad, directory.endOffset + 8, 3);
    Put16(bad, directory.endOffset + 10, 3);
    WriteBytes(folder.Path("rig.wrg"), bad);
    EXPECT_EQ(Reader::Read(folder.Path("rig.wrg"))->Mesh(u"Meshes/Mesh_1.stl")->GetTriangleCount(), 3u);
    // The directory's offset, size or a record's name length pointing outside the file.
    bad = good;
    Put32(bad, directory.endOffset + 16, 0x7FFFFFF0u);
    ExpectRefused(folder, bad);
    bad = good;
    Put32(bad, directory.endOffset + 12, 0x7FFFFFF0u);
    ExpectRefused(folder, bad);
    bad = good;
    Put16(bad, directory.members[0].offset + 28, 0xFFFF);
    WriteBytes(folder.Path("rig.wrg"), bad);
    EXPECT_THROW(Reader::Read(folder.Path("rig.wrg")), misc::tqException);
    // A local header that disagrees with its central record.
    bad = good;
    Put32(bad, directory.members[1].localOffset, 0x12345678u);
    ExpectRefused(folder, bad);
    // The data offset beyond the end of the file.
    bad = good;
    Put32(bad, directory.members[1].offset + 42, static_cast<std::uint32_t>(good.size() - 10));
    ExpectRefused(folder, bad);
}

TEST(ArchiveDataReader, RandomDamageFailsOnlyWithTheLibrarysExceptions) {
    TempFolder folder;
    TiXmlDocument document;
    MakeDocument(document);
    const tqWorkRig::MeshList meshes{{u"Meshes/Mesh_1.stl", MakeMesh(40)}, {u"Meshes/Mesh_2.stl", MakeMesh(3)}};
    std::mt19937 random(20240601);
    for (const auto level : {tqWorkRig::WorkRigFileWriter::Default, tqWorkRig::WorkRigFileWriter::None}) {
        Writer::Write(document, folder.Path("good.wrg"), meshes, level);
        const Bytes good = ReadBytes(folder.Path("good.wrg"));
        const std::string path = folder.Path("damaged.wrg");
        for (int round = 0; round < 600; ++round) {
            Bytes bad = good;
            const int changes = 1 + static_cast<int>(random() % 4);
            for (int c = 0; c < changes; ++c) {
                const std::size_t at = random() % bad.size();
                switch (random() % 4) {
                    case 0:
                        bad[at] = static_cast<std::uint8_t>(random());
                        break;
                    case 1:
                        bad[at] ^= static_cast<std::uint8_t>(1u << (random() % 8));
                        break;
                    case 2:
                        bad[at] = 0xFF;
                        break;
                    default:
                        bad.resize(std::max<std::size_t>(at, 1));
                        break;
                }
            }
            WriteBytes(path, bad);
            try {
                Reader::Read(path);
            } catch (const misc::tqException&) {
            } catch (...) {
                ADD_FAILURE() << "round " << round << " threw something else";
            }
        }
    }
}

TEST(ArchiveDataReader, DecompressionBombsAreRefusedBeforeInflating) {
    TempFolder folder;
    const std::string path = folder.Path("bomb.wrg");
    // 64 MiB of zeros deflate to about 64 KiB; the members are written raw, so crafting them costs nothing.
    const Bytes zeros(64u << 20, 0);
    const Bytes packed = Deflate(zeros, 9);
    const uLong crc = crc32(crc32(0L, Z_NULL, 0), zeros.data(), static_cast<uInt>(zeros.size()));
    const auto craft = [&](int members, const std::string& xml) {
        zipFile zip = zipOpen64(path.c_str(), APPEND_STATUS_CREATE);
        const zip_fileinfo info{};
        zipOpenNewFileInZip(zip, "WorkRig.xml", &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, 6);
        zipWriteInFileInZip(zip, xml.data(), static_cast<unsigned>(xml.size()));
        zipCloseFileInZip(zip);
        for (int i = 0; i < members; ++i) {
            const std::string name = "Other/zeros" + std::to_string(i);
            zipOpenNewFileInZip2(zip, name.c_str(), &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, 9, 1);
            zipWriteInFileInZip(zip, packed.data(), static_cast<unsigned>(packed.size()));
            zipCloseFileInZipRaw(zip, zeros.size(), crc);
        }
        zipClose(zip, nullptr);
    };
    // 33 x 64 MiB is over 2 GiB in all.
    craft(33, kXml);
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqException, UnzipError(path));
    // The same members below the bound are read, and their data checked.
    craft(2, kXml);
    EXPECT_NO_THROW(Reader::Read(path));

    // A document of more than 256 MiB is refused; one of exactly 256 MiB is read.
    const std::string head = "<WorkRig units=\"METRIC\"/>";
    std::string huge = head + std::string((256u << 20) - head.size(), ' ');
    CraftArchive(path, {Member("WorkRig.xml", ToBytes(huge + " "))});
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqException, UnzipError(path));
    CraftArchive(path, {Member("WorkRig.xml", ToBytes(huge))});
    EXPECT_NO_THROW(Reader::Read(path));
}

TEST(ArchiveDataReader, MemberCountIsBounded) {
    TempFolder folder;
    const std::string path = folder.Path("many.wrg");
    const auto craft = [&](int members) {
        zipFile zip = zipOpen64(path.c_str(), APPEND_STATUS_CREATE);
        const zip_fileinfo info{};
        zipOpenNewFileInZip(zip, "WorkRig.xml", &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, 6);
        zipWriteInFileInZip(zip, kXml.data(), static_cast<unsigned>(kXml.size()));
        zipCloseFileInZip(zip);
        for (int i = 1; i < members; ++i) {
            zipOpenNewFileInZip(zip, ("e/" + std::to_string(i)).c_str(), &info, nullptr, 0, nullptr, 0, nullptr, 0, 0);
            zipCloseFileInZip(zip);
        }
        zipClose(zip, nullptr);
    };
    craft(65536);
    EXPECT_THROW_MSG(Reader::Read(path), misc::tqException, UnzipError(path));
    craft(65535);
    EXPECT_NO_THROW(Reader::Read(path));
}

namespace {

struct DeepRead {
    std::string path;
    std::string message;
    bool loaded = false;
};

void* ReadOnThread(void* argument) {
    auto* read = static_cast<DeepRead*>(argument);
    try {
        Reader::Read(read->path);
        read->loaded = true;
    } catch (const misc::tqException& e) {
        read->message = e.What();
    }
    return nullptr;
}

/// Reads on a thread with a 1 MiB stack, where TinyXML's parser dies at a few thousand levels.
DeepRead ReadOnSmallStack(const std::string& path) {
    DeepRead read{path, "", false};
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, 1u << 20);
    pthread_t thread;
    if (pthread_create(&thread, &attributes, &ReadOnThread, &read) != 0) throw std::runtime_error("pthread_create");
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
    return read;
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
    const std::string path = folder.Path("deep.wrg");
    CraftArchive(path, {Member("WorkRig.xml", ToBytes(Nested(256)))});
    EXPECT_TRUE(ReadOnSmallStack(path).loaded);
    for (const std::size_t depth : {257, 100000}) {
        SCOPED_TRACE(depth);
        CraftArchive(path, {Member("WorkRig.xml", ToBytes(Nested(depth)))});
        const DeepRead read = ReadOnSmallStack(path);
        EXPECT_FALSE(read.loaded);
        EXPECT_EQ(read.message, Corrupted(path));
    }
    // Unclosed, with attributes, comments and text between the levels: the parser still recurses.
    CraftArchive(path, {Member("WorkRig.xml", ToBytes(Nested(100000, "<a x='1'><!-- c -->t", "")))});
    EXPECT_EQ(ReadOnSmallStack(path).message, Corrupted(path));
}

TEST(ArchiveDataReader, ReadingLeavesNoTemporaryFiles) {
    TempFolder folder, temporary;
    const char* old = std::getenv("TMPDIR");
    const std::string saved = old != nullptr ? old : "";
    setenv("TMPDIR", temporary.Path().c_str(), 1);
    TiXmlDocument document;
    MakeDocument(document);
    const std::string path = folder.Path("rig.wrg");
    Writer::Write(document, path, {{u"Meshes/Mesh_1.stl", MakeMesh(20)}}, tqWorkRig::WorkRigFileWriter::Default);
    Reader::Read(path);
    CraftArchive(folder.Path("bad.wrg"), {Xml(), Member("../x", {})});
    EXPECT_THROW(Reader::Read(folder.Path("bad.wrg")), misc::tqException);
    if (old != nullptr)
        setenv("TMPDIR", saved.c_str(), 1);
    else
        unsetenv("TMPDIR");
    EXPECT_TRUE(temporary.List().empty());
    EXPECT_EQ(folder.List(), (std::vector<std::string>{"bad.wrg", "rig.wrg"}));
}
