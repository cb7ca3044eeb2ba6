// ArchiveDataWriter: the archive's bytes, member by member and against the documented way of writing them, the
// level table, and saves that fail without harming the file they would replace.
#include "persistence/archive/archivedatawriter.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <boost/filesystem.hpp>
#include <functional>
#include <thread>

#include "archivetestsupport.h"
#include "cadcam/stl/tqtstltranslator.h"
#include "persistence/archive/archivedatareader.h"
#include "support/tqtest.h"

using namespace archivetest;
using tqWorkRig::MeshEntry;
using tqWorkRig::MeshList;
using tqWorkRig::WorkRigFileWriter;
namespace Writer = tqWorkRig::ArchiveDataWriter;
namespace Reader = tqWorkRig::ArchiveDataReader;

namespace {

const WorkRigFileWriter::CompressionLevel kLevels[] = {WorkRigFileWriter::Default, WorkRigFileWriter::None,
                                                       WorkRigFileWriter::Fastest, WorkRigFileWriter::Best};
const int kZlibLevels[] = {-1, 0, 1, 9};

struct Sample {
    TiXmlDocument document;
    MeshList meshes;
    Sample(std::size_t first = 40, std::size_t second = 7) {
        MakeDocument(document);
        meshes.push_back({u"Meshes/Mesh_1.stl", MakeMesh(first)});
        meshes.push_back({u"Meshes/Mesh_2.stl", MakeMesh(second, 3.0)});
    }
};

/// Runs body in a child process as the unprivileged user "nobody", so permission checks apply even under root;
/// returns the child's exit code. The body reports failures through its exit code.
int RunAsNobody(const std::function<int()>& body) {
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0) {
            const passwd* nobody = getpwnam("nobody");
            const uid_t uid = nobody != nullptr ? nobody->pw_uid : 65534;
            const gid_t gid = nobody != nullptr ? nobody->pw_gid : 65534;
            if (setgroups(0, nullptr) != 0 || setgid(gid) != 0 || setuid(uid) != 0) _exit(90);
        }
        int code = 91;
        try {
            code = body();
        } catch (...) {
            code = 92;
        }
        _exit(code);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 99;
}

std::vector<std::string> ListFolder(const std::string& path) {
    std::vector<std::string> names;
    for (boost::filesystem::directory_iterator it(path), end; it != end; ++it)
        names.push_back(it->path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

/// The message of the tqException that statement throws, or "" if it throws none.
std::string MessageOf(const std::function<void()>& statement) {
    try {
        statement();
    } catch (const misc::tqException& e) {
        return e.What();
    }
    return "";
}

}  // namespace

TEST(ArchiveDataWriter, UnknownLevelFailsBeforeTheDiskIsTouched) {
    TempFolder folder;
    Sample sample;
    const std::string target = folder.Path("rig.wrg");
    EXPECT_THROW_CODE(
        Writer::Write(sample.document, target, sample.meshes, static_cast<WorkRigFileWriter::CompressionLevel>(7)),
        misc::tqException, 0,
        "tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::zlibLevel: Unknown value for "
        "WorkRigFileWriter::CompressionLevel: 7");
    EXPECT_THROW_MSG(
        Writer::Write(sample.document, target, sample.meshes, static_cast<WorkRigFileWriter::CompressionLevel>(-2)),
        misc::tqException,
        "tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::zlibLevel: Unknown value for "
        "WorkRigFileWriter::CompressionLevel: -2");
    EXPECT_TRUE(folder.List().empty());
    // Not even a folder that does not exist is looked at.
    EXPECT_THROW_MSG(Writer::Write(sample.document, "/nonexistent/rig.wrg", sample.meshes,
                                   static_cast<WorkRigFileWriter::CompressionLevel>(3)),
                     misc::tqException,
                     "tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::zlibLevel: Unknown value for "
                     "WorkRigFileWriter::CompressionLevel: 3");
}

TEST(ArchiveDataWriter, BytesEqualTheDocumentedWritesAtEveryLevel) {
    // Large enough that level 0 spans several stored blocks, so where writes break shows in the bytes.
    Sample sample(3000, 1500);
    TempFolder folder;
    for (std::size_t i = 0; i < 4; ++i) {
        SCOPED_TRACE(kZlibLevels[i]);
        const std::string target = folder.Path("rig" + std::to_string(i) + ".wrg");
        Writer::Write(sample.document, target, sample.meshes, kLevels[i]);
        const Bytes written = ReadBytes(target);
        EXPECT_EQ(written, ReferenceArchive(sample.document, sample.meshes, kZlibLevels[i]));
        // Block writes are equal only where deflate does not care how its input is split.
        const bool sameWithBlocks = written == ReferenceArchive(sample.document, sample.meshes, kZlibLevels[i], true);
        EXPECT_EQ(sameWithBlocks, kZlibLevels[i] != 0);
    }
}

TEST(ArchiveDataWriter, GoldenArchivesPinTheBytes) {
    // Small fixed content; any change of the bytes (zlib, minizip, printer, STL writer) shows here.
    TiXmlDocument document;
    MakeDocument(document);
    MeshList meshes{{u"Meshes/Mesh_1.stl", MakeMesh(5)}};
    const std::pair<std::size_t, std::uint32_t> golden[] = {
        {590, 0xd4e79cbdu}, {1079, 0x5a20c256u}, {603, 0xa36fee50u}, {590, 0x164cb167u}};
    TempFolder folder;
    for (std::size_t i = 0; i < 4; ++i) {
        SCOPED_TRACE(kZlibLevels[i]);
        Writer::Write(document, folder.Path("golden.wrg"), meshes, kLevels[i]);
        const Bytes bytes = ReadBytes(folder.Path("golden.wrg"));
        EXPECT_EQ(bytes.size(), golden[i].first);
        EXPECT_EQ(Crc(bytes), golden[i].second) << std::hex << Crc(bytes);
    }
}

TEST(ArchiveDataWriter, MembersFollowTheLayout) {
    Sample sample;
    TempFolder folder;
    for (std::size_t i = 0; i < 4; ++i) {
        SCOPED_TRACE(kZlibLevels[i]);
        Writer::Write(sample.document, folder.Path("rig.wrg"), sample.meshes, kLevels[i]);
        const Bytes archive = ReadBytes(folder.Path("rig.wrg"));
        const CentralDirectory directory = ReadCentralDirectory(archive);
        EXPECT_EQ(directory.commentLength, 0);
        ASSERT_EQ(directory.members.size(), 3u);
        const char* names[] = {"WorkRig.xml", "Meshes/Mesh_1.stl", "Meshes/Mesh_2.stl"};
        for (std::size_t m = 0; m < 3; ++m) {
            const CentralEntry& e = directory.members[m];
            EXPECT_EQ(e.name, names[m]);
            EXPECT_EQ(e.method, 8);
            // A zeroed file-info record: minizip turns its zeroed date into month 1, day 0 of 1980.
            EXPECT_EQ(e.time, 0);
            EXPECT_EQ(e.date, 0x0020);
            EXPECT_EQ(e.localTime, 0);
            EXPECT_EQ(e.localDate, 0x0020);
            // minizip marks a member that zlib's deflate found to be text (never at level 0, where no block is
            // coded): the document, not the meshes.
            EXPECT_EQ(e.internalAttributes, m == 0 && kZlibLevels[i] != 0 ? 1 : 0);
            EXPECT_EQ(e.externalAttributes, 0u);
            EXPECT_EQ(e.extraLength, 0);
            EXPECT_EQ(e.localExtraLength, 0);
            EXPECT_EQ(e.commentLength, 0);
            EXPECT_EQ(Crc(Inflate(MemberData(archive, e), e.uncompressedSize)), e.crc);
        }
        const CentralEntry& xml = directory.members[0];
        const Bytes text = Inflate(MemberData(archive, xml), xml.uncompressedSize);
        ASSERT_FALSE(text.empty());
        EXPECT_EQ(text.back(), '>');
        EXPECT_EQ(std::string(text.begin(), text.begin() + 5), "<?xml");
        const Bytes stl = Inflate(MemberData(archive, directory.members[1]), directory.members[1].uncompressedSize);
        EXPECT_EQ(stl, StlBytes(*sample.meshes[0].mesh));
    }
}

TEST(ArchiveDataWriter, LevelZeroStoresBlocksInsideDeflate) {
    Sample sample(3000, 2);
    TempFolder folder;
    Writer::Write(sample.document, folder.Path("rig.wrg"), sample.meshes, WorkRigFileWriter::None);
    const Bytes archive = ReadBytes(folder.Path("rig.wrg"));
    for (const CentralEntry& e : ReadCentralDirectory(archive).members) {
        SCOPED_TRACE(e.name);
        EXPECT_EQ(e.method, 8);
        const Bytes data = MemberData(archive, e);
        // Walk the deflate blocks: each must be stored (type 00), byte-aligned, LEN and its complement.
        std::size_t at = 0, content = 0, blocks = 0;
        for (bool last = false; !last; ++blocks) {
            ASSERT_LT(at, data.size());
            last = (data[at] & 1) != 0;
            ASSERT_EQ((data[at] >> 1) & 3, 0) << "block " << blocks << " is not stored";
            const std::uint16_t length = Get16(data, at + 1), complement = Get16(data, at + 3);
            ASSERT_EQ(static_cast<std::uint16_t>(~length), complement);
            at += 5 + length;
            content += length;
        }
        EXPECT_EQ(at, data.size());
        EXPECT_EQ(content, e.uncompressedSize);
    }
}

TEST(ArchiveDataWriter, WritingTwiceGivesTheSameBytes) {
    Sample sample;
    TempFolder folder;
    for (const auto level : kLevels) {
        Writer::Write(sample.document, folder.Path("a.wrg"), sample.meshes, level);
        Writer::Write(sample.document, folder.Path("b.wrg"), sample.meshes, level);
        EXPECT_EQ(ReadBytes(folder.Path("a.wrg")), ReadBytes(folder.Path("b.wrg")));
    }
}

TEST(ArchiveDataWriter, SharedMeshGivesTwoIdenticalMembers) {
    TiXmlDocument document;
    MakeDocument(document);
    const MeshPointer shared = MakeGridMesh(20, 10);
    const MeshList meshes{{u"Meshes/Mesh_1.stl", shared}, {u"Meshes/Mesh_2.stl", shared}};
    TempFolder folder;
    Writer::Write(document, folder.Path("rig.wrg"), meshes, WorkRigFileWriter::Default);
    const Bytes archive = ReadBytes(folder.Path("rig.wrg"));
    const CentralDirectory directory = ReadCentralDirectory(archive);
    ASSERT_EQ(directory.members.size(), 3u);
    const CentralEntry &a = directory.members[1], &b = directory.members[2];
    EXPECT_EQ(a.crc, b.crc);
    EXPECT_EQ(a.uncompressedSize, 84u + 50u * 400u);
    EXPECT_EQ(MemberData(archive, a), MemberData(archive, b));
}

TEST(ArchiveDataWriter, RoundTripAtEveryLevel) {
    Sample sample;
    TempFolder folder;
    for (const auto level : kLevels) {
        Writer::Write(sample.document, folder.WidePath("rig.wrg"), sample.meshes, level);
        const auto data = Reader::Read(folder.WidePath("rig.wrg"));
        EXPECT_EQ(DocumentText(data->Document()), DocumentText(sample.document));
        for (const MeshEntry& entry : sample.meshes) {
            const auto mesh = data->Mesh(entry.name);
            EXPECT_TRUE(*mesh == *entry.mesh);
            EXPECT_EQ(mesh->Corner(3, 1).x, static_cast<double>(static_cast<float>(entry.mesh->Corner(3, 1).x)));
        }
    }
}

TEST(ArchiveDataWriter, EmptyDocumentAndEmptyMeshList) {
    // Nothing printed means an empty member; a mesh of no triangles is 84 bytes.
    TiXmlDocument empty;
    TempFolder folder;
    const MeshList meshes{{u"Meshes/Mesh_1.stl", MeshPointer(new cadcam::tqTMesh<double>())}};
    Writer::Write(empty, folder.Path("rig.wrg"), meshes, WorkRigFileWriter::Default);
    const CentralDirectory directory = ReadCentralDirectory(ReadBytes(folder.Path("rig.wrg")));
    ASSERT_EQ(directory.members.size(), 2u);
    EXPECT_EQ(directory.members[0].uncompressedSize, 0u);
    EXPECT_EQ(directory.members[1].uncompressedSize, 84u);
}

TEST(ArchiveDataWriter, FailedSaveLeavesTheEarlierFileAndNoSibling) {
    Sample sample;
    TempFolder folder;
    const std::string target = folder.Path("rig.wrg");
    WriteBytes(target, ToBytes("the earlier save"));
    ASSERT_EQ(chmod(target.c_str(), 0640), 0);

    MeshList nullMesh = sample.meshes;
    nullMesh.push_back({u"Meshes/Mesh_3.stl", MeshPointer()});
    EXPECT_THROW_MSG(Writer::Write(sample.document, target, nullMesh, WorkRigFileWriter::Default), misc::tqException,
                     "Accessing TQ_NULL pointer");

    MeshPointer broken(new cadcam::tqTMesh<double>());
    broken->AddTriangle(0, 1, 5, {0.0, 0.0, 1.0});
    for (const auto level : {WorkRigFileWriter::None, WorkRigFileWriter::Best}) {
        EXPECT_THROW_MSG(Writer::Write(sample.document, target, {{u"Meshes/Mesh_1.stl", broken}}, level),
                         misc::tqSTLParserException,
                         "Can not use a mesh whose triangle 0 refers to missing vertex 0 to write an STL file.");
    }
    EXPECT_EQ(ReadBytes(target), ToBytes("the earlier save"));
    EXPECT_EQ(folder.List(), std::vector<std::string>{"rig.wrg"});

    // A good save replaces it and keeps its permission bits.
    Writer::Write(sample.document, target, sample.meshes, WorkRigFileWriter::Default);
    struct stat st;
    ASSERT_EQ(stat(target.c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0640u);
    EXPECT_EQ(ReadBytes(target), ReferenceArchive(sample.document, sample.meshes, -1));
    EXPECT_EQ(folder.List(), std::vector<std::string>{"rig.wrg"});
}

TEST(ArchiveDataWriter, NewFileGetsTheUsualPermissions) {
    Sample sample;
    TempFolder folder;
    const mode_t mask = umask(022);
    Writer::Write(sample.document, folder.Path("rig.wrg"), sample.meshes, WorkRigFileWriter::Fastest);
    umask(mask);
    struct stat st;
    ASSERT_EQ(stat(folder.Path("rig.wrg").c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0644u);
}

TEST(ArchiveDataWriter, SymbolicLinkIsWrittenThrough) {
    Sample sample;
    TempFolder folder;
    ASSERT_EQ(mkdir(folder.Path("real").c_str(), 0755), 0);
    WriteBytes(folder.Path("real/rig.wrg"), ToBytes("old"));
    ASSERT_EQ(symlink("real/rig.wrg", folder.Path("link.wrg").c_str()), 0);
    Writer::Write(sample.document, folder.Path("link.wrg"), sample.meshes, WorkRigFileWriter::Default);
    struct stat st;
    ASSERT_EQ(lstat(folder.Path("link.wrg").c_str(), &st), 0);
    EXPECT_TRUE(S_ISLNK(st.st_mode));
    EXPECT_EQ(ReadBytes(folder.Path("real/rig.wrg")), ReferenceArchive(sample.document, sample.meshes, -1));
    EXPECT_EQ(folder.List(), (std::vector<std::string>{"link.wrg", "real"}));
}

TEST(ArchiveDataWriter, UnicodePathReachesTheFileSystemAsUtf8) {
    Sample sample;
    TempFolder folder;
    const misc::tqstring target = folder.WidePath("") + u"/R\u00fcst \u673a\U0001F527.wrg";
    Writer::Write(sample.document, target, sample.meshes, WorkRigFileWriter::Default);
    EXPECT_EQ(folder.List(), std::vector<std::string>{"R\xC3\xBCst \xE6\x9C\xBA\xF0\x9F\x94\xA7.wrg"});
    EXPECT_EQ(DocumentText(Reader::Read(target)->Document()), DocumentText(sample.document));
}

TEST(ArchiveDataWriter, TargetsThatCannotBeFiles) {
    Sample sample;
    TempFolder folder;
    const std::string base = folder.Path();
    // A folder at the path, and a path under a missing folder: no file can be created there.
    ASSERT_EQ(mkdir(folder.Path("dir.wrg").c_str(), 0755), 0);
    EXPECT_THROW_MSG(Writer::Write(sample.document, folder.Path("dir.wrg"), sample.meshes, WorkRigFileWriter::Default),
                     misc::tqException,
                     "tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::ZipArchive::CheckForWritePermissions: WR: "
                     "Could not create file: '" +
                         base +
                         "/dir.wrg'. Perhaps you do not have the permissions to create a "
                         "file within the folder: '" +
                         base + "'.");
    EXPECT_THROW_MSG(
        Writer::Write(sample.document, folder.Path("missing/rig.wrg"), sample.meshes, WorkRigFileWriter::Default),
        misc::tqException,
        "tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::ZipArchive::CheckForWritePermissions: WR: "
        "Could not create file: '" +
            base +
            "/missing/rig.wrg'. Perhaps you do not have the permissions to "
            "create a file within the folder: '" +
            base + "/missing'.");
    EXPECT_EQ(folder.List(), std::vector<std::string>{"dir.wrg"});
    // No name at all has no folder to check.
    EXPECT_THROW_MSG(Writer::Write(sample.document, "", sample.meshes, WorkRigFileWriter::Default), misc::tqException,
                     "tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::ZipArchive::ZipArchive: Error when creating "
                     "archive ''.");
    // A device is opened fine by the check, but never replaced by an archive.
    EXPECT_THROW_MSG(Writer::Write(sample.document, "/dev/null", sample.meshes, WorkRigFileWriter::Default),
                     misc::tqException,
                     "tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::ZipArchive::ZipArchive: Error when creating "
                     "archive '/dev/null'.");
    struct stat st;
    ASSERT_EQ(stat("/dev/null", &st), 0);
    EXPECT_TRUE(S_ISCHR(st.st_mode));
}

TEST(ArchiveDataWriter, ReadOnlyFolderGivesTheFolderMessage) {
    TempFolder folder;
    const std::string locked = folder.Path("locked");
    ASSERT_EQ(mkdir(locked.c_str(), 0755), 0);
    WriteBytes(locked + "/rig.wrg", ToBytes("earlier"));
    ASSERT_EQ(chmod((locked + "/rig.wrg").c_str(), 0666), 0);
    ASSERT_EQ(chmod(locked.c_str(), 0555), 0);
    ASSERT_EQ(chmod(folder.Path().c_str(), 0755), 0);
    const std::string expected =
        "tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::ZipArchive::CheckForWritePermissions: WR: You do not "
        "have the permissions to write to the folder: '" +
        locked + "'.";
    const int code = RunAsNobody([&]() {
        Sample sample;
        // Also over a file that could be written in place: the save needs a sibling in the folder.
        for (const char* name : {"/new.wrg", "/rig.wrg"}) {
            if (MessageOf([&] {
                    Writer::Write(sample.document, locked + name, sample.meshes, WorkRigFileWriter::Default);
                }) != expected)
                return 1;
        }
        return 0;
    });
    EXPECT_EQ(code, 0);
    EXPECT_EQ(ReadBytes(locked + "/rig.wrg"), ToBytes("earlier"));
    chmod(locked.c_str(), 0755);
    EXPECT_EQ(ListFolder(locked), std::vector<std::string>{"rig.wrg"});
}

TEST(ArchiveDataWriter, ReadOnlyFileGivesTheFileMessage) {
    TempFolder folder;
    const std::string open = folder.Path("open");
    ASSERT_EQ(mkdir(open.c_str(), 0777), 0);
    ASSERT_EQ(chmod(open.c_str(), 0777), 0);
    ASSERT_EQ(chmod(folder.Path().c_str(), 0755), 0);
    WriteBytes(open + "/rig.wrg", ToBytes("protected"));
    ASSERT_EQ(chmod((open + "/rig.wrg").c_str(), 0444), 0);
    const std::string expected =
        "tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::ZipArchive::CheckForWritePermissions: WR: Could not "
        "create file: '" +
        open +
        "/rig.wrg'. Perhaps you do not have the permissions to create a file within the "
        "folder: '" +
        open + "'.";
    const int code = RunAsNobody([&]() {
        Sample sample;
        return MessageOf([&] {
                   Writer::Write(sample.document, open + "/rig.wrg", sample.meshes, WorkRigFileWriter::Default);
               }) == expected
                   ? 0
                   : 1;
    });
    EXPECT_EQ(code, 0);
    EXPECT_EQ(ReadBytes(open + "/rig.wrg"), ToBytes("protected"));
    EXPECT_EQ(ListFolder(open), std::vector<std::string>{"rig.wrg"});
}

TEST(ArchiveDataWriter, EightThreadsSaveAndLoadAtOnce) {
    TempFolder folder;
    Sample sample;
    std::vector<std::thread> threads;
    std::vector<int> failures(8, 0);
    for (int t = 0; t < 8; ++t) {
        threads.emplace_back([&, t]() {
            // Each thread has its own document and meshes: model objects are not shared between threads.
            Sample own(200 + static_cast<std::size_t>(t), 3);
            for (int round = 0; round < 5; ++round) {
                try {
                    const misc::tqstring path = folder.WidePath("rig" + std::to_string(t) + ".wrg");
                    Writer::Write(own.document, path, own.meshes, kLevels[(t + round) % 4]);
                    const auto data = Reader::Read(path);
                    if (data->Mesh(u"Meshes/Mesh_1.stl")->GetTriangleCount() != 200u + static_cast<std::size_t>(t))
                        ++failures[static_cast<std::size_t>(t)];
                } catch (...) {
                    ++failures[static_cast<std::size_t>(t)];
                }
            }
        });
    }
    for (auto& thread : threads) thread.join();
    EXPECT_EQ(failures, std::vector<int>(8, 0));
    EXPECT_EQ(folder.List().size(), 8u);
}
