// ArchiveDataWriter: the archive's bytes, member by member and against the documented way of writing them, the
// level table, and saves that fail without harming the file they would replace.
#include "persistence/archive/archivedatawriter.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <iterator>
#include <thread>

#include "persistence/archive/archivedatareader.h"
#include "support/tqtest.h"
#include "support/ziptestutil.h"

using namespace tqtest;
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
    explicit Sample(std::size_t first = 40) {
        MakeDocument(document);
        meshes.push_back({u"Meshes/Mesh_1.stl", MakeMesh(first)});
        meshes.push_back({u"Meshes/Mesh_2.stl", MakeMesh(7, 3.0)});
    }
};

std::string PermissionsMessage(const std::string& text) {
    return "tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::ZipArchive::CheckForWritePermissions: WR: " + text;
}
std::string CannotCreate(const std::string& file, const std::string& folder) {
    return PermissionsMessage("Could not create file: '" + file +
                              "'. Perhaps you do not have the permissions to create a file within the folder: '" +
                              folder + "'.");
}

/// The message of the tqException that a save throws, or "" if it throws none.
std::string SaveMessage(const std::string& path) {
    try {
        Sample sample;
        Writer::Write(sample.document, path, sample.meshes, WorkRigFileWriter::Default);
    } catch (const misc::tqException& e) {
        return e.What();
    }
    return "";
}

/// Runs body in a child process as the unprivileged user "nobody", so permission checks apply even under root;
/// returns the child's exit code.
int RunAsNobody(const std::function<bool()>& body) {
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0) {
            const passwd* nobody = getpwnam("nobody");
            if (setgroups(0, nullptr) != 0 || setgid(nobody != nullptr ? nobody->pw_gid : 65534) != 0 ||
                setuid(nobody != nullptr ? nobody->pw_uid : 65534) != 0)
                _exit(90);
        }
        _exit(body() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 99;
}

}  // namespace

TEST(ArchiveDataWriter, UnknownLevelFailsBeforeTheDiskIsTouched) {
    TempFolder folder;
    Sample sample;
    // Not even a folder that does not exist is looked at.
    for (const int level : {7, -2, 3}) {
        for (const std::string& target : {folder.Path("rig.wrg"), std::string("/nonexistent/rig.wrg")})
            EXPECT_THROW_CODE(Writer::Write(sample.document, target, sample.meshes,
                                            static_cast<WorkRigFileWriter::CompressionLevel>(level)),
                              misc::tqException, 0,
                              "tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::zlibLevel: Unknown value for "
                              "WorkRigFileWriter::CompressionLevel: " +
                                  std::to_string(level));
    }
    EXPECT_TRUE(folder.List().empty());
}

TEST(ArchiveDataWriter, EveryLevelWritesTheDocumentedBytesAndReadsBack) {
    // Large enough that level 0 spans several stored blocks, so where writes break shows in the bytes; a mesh
    // shared by two entries gives two members.
    Sample sample(3000);
    sample.meshes.push_back({u"Meshes/Mesh_3.stl", sample.meshes[0].mesh});
    // Small fixed content whose size and CRC pin the bytes against any change (zlib, minizip, printer, STL writer).
    Sample small(5);
    small.meshes.resize(1);
    const MeshList empty{{u"Meshes/Mesh_1.stl", MeshPointer(new cadcam::tqTMesh<double>())}};
    const std::pair<std::size_t, std::uint32_t> golden[] = {
        {590, 0xd4e79cbdu}, {1079, 0x5a20c256u}, {603, 0xa36fee50u}, {590, 0x164cb167u}};
    TempFolder folder;
    for (std::size_t i = 0; i < 4; ++i) {
        SCOPED_TRACE(kZlibLevels[i]);
        const std::string target = folder.Path("rig.wrg");
        Writer::Write(sample.document, target, sample.meshes, kLevels[i]);
        const Bytes written = ReadFileBytes(target);
        EXPECT_EQ(written, ReferenceArchive(sample.document, sample.meshes, kZlibLevels[i]));
        // Block writes are equal only where deflate does not care how its input is split.
        EXPECT_EQ(written == ReferenceArchive(sample.document, sample.meshes, kZlibLevels[i], true),
                  kZlibLevels[i] != 0);
        const auto data = Reader::Read(target);
        EXPECT_EQ(Printed(data->Document()), Printed(sample.document));
        for (const tqWorkRig::MeshEntry& entry : sample.meshes) {
            const auto mesh = data->Mesh(entry.name);
            EXPECT_TRUE(*mesh == *entry.mesh);
            EXPECT_EQ(mesh->Corner(3, 1).x, static_cast<double>(static_cast<float>(entry.mesh->Corner(3, 1).x)));
        }

        // Nothing printed makes an empty member, a mesh of no triangles 84 bytes.
        Writer::Write(TiXmlDocument(), target, empty, kLevels[i]);
        EXPECT_EQ(ReadFileBytes(target), ReferenceArchive(TiXmlDocument(), empty, kZlibLevels[i]));
        EXPECT_EQ(ReadZip(target).at(1).data.size(), 84u);

        Writer::Write(small.document, target, small.meshes, kLevels[i]);
        const Bytes bytes = ReadFileBytes(target);
        EXPECT_EQ(bytes.size(), golden[i].first);
        EXPECT_EQ(Crc(bytes), golden[i].second) << std::hex << Crc(bytes);
    }
}

TEST(ArchiveDataWriter, FailedSaveLeavesTheEarlierFileAndNoSibling) {
    Sample sample;
    TempFolder folder;
    const std::string target = folder.Path("rig.wrg");
    WriteFileBytes(target, "the earlier save");
    ASSERT_EQ(chmod(target.c_str(), 0640), 0);

    MeshList nullMesh = sample.meshes;
    nullMesh.push_back({u"Meshes/Mesh_3.stl", MeshPointer()});
    EXPECT_THROW_MSG(Writer::Write(sample.document, target, nullMesh, WorkRigFileWriter::Default), misc::tqException,
                     "Accessing TQ_NULL pointer");
    MeshPointer broken(new cadcam::tqTMesh<double>());
    broken->AddTriangle(0, 1, 5, {0.0, 0.0, 1.0});
    for (const auto level : {WorkRigFileWriter::None, WorkRigFileWriter::Best})
        EXPECT_THROW_MSG(Writer::Write(sample.document, target, {{u"Meshes/Mesh_1.stl", broken}}, level),
                         misc::tqSTLParserException,
                         "Can not use a mesh whose triangle 0 refers to missing vertex 0 to write an STL file.");
    EXPECT_EQ(ReadFileBytes(target), "the earlier save");
    EXPECT_EQ(folder.List(), std::vector<std::string>{"rig.wrg"});

    // A good save replaces it and keeps its permission bits; a new file gets the usual ones.
    Writer::Write(sample.document, target, sample.meshes, WorkRigFileWriter::Default);
    EXPECT_EQ(ReadFileBytes(target), ReferenceArchive(sample.document, sample.meshes, -1));
    const mode_t mask = umask(022);
    Writer::Write(sample.document, folder.Path("new.wrg"), sample.meshes, WorkRigFileWriter::Fastest);
    umask(mask);
    struct stat replaced, created;
    ASSERT_EQ(stat(target.c_str(), &replaced), 0);
    ASSERT_EQ(stat(folder.Path("new.wrg").c_str(), &created), 0);
    EXPECT_EQ(replaced.st_mode & 0777, 0640u);
    EXPECT_EQ(created.st_mode & 0777, 0644u);
    EXPECT_EQ(folder.List(), (std::vector<std::string>{"new.wrg", "rig.wrg"}));
}

TEST(ArchiveDataWriter, SymbolicLinkIsWrittenThrough) {
    Sample sample;
    TempFolder folder;
    ASSERT_EQ(mkdir(folder.Path("real").c_str(), 0755), 0);
    WriteFileBytes(folder.Path("real/rig.wrg"), "old");
    ASSERT_EQ(symlink("real/rig.wrg", folder.Path("link.wrg").c_str()), 0);
    Writer::Write(sample.document, folder.Path("link.wrg"), sample.meshes, WorkRigFileWriter::Default);
    struct stat st;
    ASSERT_EQ(lstat(folder.Path("link.wrg").c_str(), &st), 0);
    EXPECT_TRUE(S_ISLNK(st.st_mode));
    EXPECT_EQ(ReadFileBytes(folder.Path("real/rig.wrg")), ReferenceArchive(sample.document, sample.meshes, -1));
    EXPECT_EQ(folder.List(), (std::vector<std::string>{"link.wrg", "real"}));
}

TEST(ArchiveDataWriter, TargetsThatCannotBeFiles) {
    TempFolder folder;
    // A folder at the path, and a path under a missing folder: no file can be created there.
    ASSERT_EQ(mkdir(folder.Path("dir.wrg").c_str(), 0755), 0);
    EXPECT_EQ(SaveMessage(folder.Path("dir.wrg")), CannotCreate(folder.Path("dir.wrg"), folder.Path()));
    EXPECT_EQ(SaveMessage(folder.Path("missing/rig.wrg")),
              CannotCreate(folder.Path("missing/rig.wrg"), folder.Path("missing")));
    EXPECT_EQ(folder.List(), std::vector<std::string>{"dir.wrg"});
    // No name at all has no folder to check; a device is opened fine by the check, but never replaced.
    for (const std::string& target : {std::string(), std::string("/dev/null")})
        EXPECT_EQ(SaveMessage(target),
                  "tqWorkRig::ArchiveDataWriter::`anonymous-namespace'::ZipArchive::ZipArchive: Error when creating "
                  "archive '" +
                      target + "'.");
    struct stat st;
    ASSERT_EQ(stat("/dev/null", &st), 0);
    EXPECT_TRUE(S_ISCHR(st.st_mode));
}

TEST(ArchiveDataWriter, ReadOnlyFolderOrFileGivesItsMessage) {
    TempFolder folder;
    const std::string locked = folder.Path("locked"), open = folder.Path("open");
    ASSERT_EQ(mkdir(locked.c_str(), 0755), 0);
    ASSERT_EQ(mkdir(open.c_str(), 0777), 0);
    WriteFileBytes(locked + "/rig.wrg", "earlier");
    WriteFileBytes(open + "/rig.wrg", "protected");
    ASSERT_EQ(chmod((locked + "/rig.wrg").c_str(), 0666), 0);
    ASSERT_EQ(chmod((open + "/rig.wrg").c_str(), 0444), 0);
    ASSERT_EQ(chmod(locked.c_str(), 0555), 0);
    ASSERT_EQ(chmod(open.c_str(), 0777), 0);
    ASSERT_EQ(chmod(folder.Path().c_str(), 0755), 0);
    const std::string lockedMessage =
        PermissionsMessage("You do not have the permissions to write to the folder: '" + locked + "'.");
    // Also over a file that could be written in place: the save needs a sibling in the folder.
    EXPECT_EQ(RunAsNobody([&] {
                  return SaveMessage(locked + "/new.wrg") == lockedMessage &&
                         SaveMessage(locked + "/rig.wrg") == lockedMessage &&
                         SaveMessage(open + "/rig.wrg") == CannotCreate(open + "/rig.wrg", open);
              }),
              0);
    EXPECT_EQ(ReadFileBytes(locked + "/rig.wrg"), "earlier");
    EXPECT_EQ(ReadFileBytes(open + "/rig.wrg"), "protected");
    ASSERT_EQ(chmod(locked.c_str(), 0755), 0);
    for (const std::string& path : {locked, open})
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(path), std::filesystem::directory_iterator()), 1);
}

TEST(ArchiveDataWriter, EightThreadsSaveAndLoadAtOnce) {
    TempFolder folder;
    std::vector<std::thread> threads;
    std::vector<int> failures(8, 0);
    for (std::size_t t = 0; t < 8; ++t) {
        threads.emplace_back([&, t]() {
            // Each thread has its own document and meshes: model objects are not shared between threads.
            Sample own(200 + t);
            for (std::size_t round = 0; round < 5; ++round) {
                try {
                    const misc::tqstring path(folder.Path("rig" + std::to_string(t) + ".wrg"));
                    Writer::Write(own.document, path, own.meshes, kLevels[(t + round) % 4]);
                    if (Reader::Read(path)->Mesh(u"Meshes/Mesh_1.stl")->GetTriangleCount() != 200 + t) ++failures[t];
                } catch (...) {
                    ++failures[t];
                }
            }
        });
    }
    for (auto& thread : threads) thread.join();
    EXPECT_EQ(failures, std::vector<int>(8, 0));
    EXPECT_EQ(folder.List().size(), 8u);
}
