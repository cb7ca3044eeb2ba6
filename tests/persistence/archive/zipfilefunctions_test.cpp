// Zip file functions: the exclusive sibling that a planted file or link cannot redirect, its rename over the
// target, and the reading side (which the reader's tests show serves only regular files).
#include "persistence/archive/zipfilefunctions.h"

#include <minizip/zip.h>
#include <sys/stat.h>
#include <unistd.h>

#include <random>

#include "support/tqtest.h"
#include "support/ziptestutil.h"

using namespace tqtest;
using tqWorkRig::detail::kZipDummyPath;
using tqWorkRig::detail::ZipReadSource;
using tqWorkRig::detail::ZipWriteTarget;

namespace {

/// Writes a one-member archive through the target's table; returns whether zipClose succeeded.
bool WriteArchive(ZipWriteTarget& target) {
    zipFile zip = zipOpen2_64(kZipDummyPath, APPEND_STATUS_CREATE, nullptr, target.GetFunctions());
    if (zip == nullptr) return false;
    const zip_fileinfo info{};
    zipOpenNewFileInZip(zip, "member", &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, 6);
    zipWriteInFileInZip(zip, "content", 7);
    zipCloseFileInZip(zip);
    return zipClose(zip, nullptr) == ZIP_OK;
}

}  // namespace

TEST(ZipFileFunctions, PlantedNamesAreNeverFollowed) {
    TempFolder folder;
    WriteFileBytes(folder.Path("victim"), "victim");
    ASSERT_EQ(symlink(folder.Path("victim").c_str(), folder.Path("planted-link").c_str()), 0);
    WriteFileBytes(folder.Path("planted-file"), "planted");
    const std::vector<std::string> names = {"planted-link", "planted-file", "fresh"};
    std::size_t next = 0;
    ZipWriteTarget target(folder.Path("rig.wrg"), [&]() { return names.at(next++); });
    ASSERT_TRUE(WriteArchive(target));
    EXPECT_EQ(target.GetSiblingPath(), folder.Path("fresh"));
    ASSERT_TRUE(target.Commit());
    EXPECT_EQ(ReadFileBytes(folder.Path("victim")), "victim");
    EXPECT_EQ(ReadFileBytes(folder.Path("planted-file")), "planted");
    EXPECT_EQ(folder.List(), (std::vector<std::string>{"planted-file", "planted-link", "rig.wrg", "victim"}));
    EXPECT_EQ(ReadZip(folder.Path("rig.wrg")).at(0).data, "content");
}

TEST(ZipFileFunctions, SiblingIsCreatedPrivatelyAndRemovedUnlessCommitted) {
    TempFolder folder;
    WriteFileBytes(folder.Path("rig.wrg"), "earlier");
    {
        ZipWriteTarget target(folder.Path("rig.wrg"));
        ASSERT_TRUE(WriteArchive(target));
        const std::string sibling = target.GetSiblingPath();
        EXPECT_EQ(sibling.find(folder.Path() + "/.wr-"), 0u);
        EXPECT_EQ(sibling.substr(sibling.size() - 4), ".tmp");
        EXPECT_NE(sibling.find("-" + std::to_string(getpid()) + "-"), std::string::npos);
        EXPECT_EQ(folder.List().size(), 2u);
    }
    EXPECT_EQ(folder.List(), std::vector<std::string>{"rig.wrg"});
    EXPECT_EQ(ReadFileBytes(folder.Path("rig.wrg")), "earlier");
    // A rename that cannot happen (the target became a folder) removes the sibling too.
    ZipWriteTarget target(folder.Path("later.wrg"));
    ASSERT_TRUE(WriteArchive(target));
    ASSERT_EQ(mkdir(folder.Path("later.wrg").c_str(), 0755), 0);
    ASSERT_EQ(mkdir(folder.Path("later.wrg/keep").c_str(), 0755), 0);
    EXPECT_FALSE(target.Commit());
    EXPECT_EQ(folder.List(), (std::vector<std::string>{"later.wrg", "rig.wrg"}));
}

TEST(ZipFileFunctions, OpeningTwiceOrForTheWrongModeFails) {
    TempFolder folder;
    WriteFileBytes(folder.Path("file"), "0123456789");
    ZipReadSource source(folder.Path("file"));
    zlib_filefunc64_def* table = source.GetFunctions();
    EXPECT_EQ(table->zopen64_file(table->opaque, kZipDummyPath, ZLIB_FILEFUNC_MODE_CREATE | ZLIB_FILEFUNC_MODE_WRITE),
              nullptr);
    voidpf stream =
        table->zopen64_file(table->opaque, kZipDummyPath, ZLIB_FILEFUNC_MODE_READ | ZLIB_FILEFUNC_MODE_EXISTING);
    ASSERT_NE(stream, nullptr);
    EXPECT_EQ(table->zopen64_file(table->opaque, kZipDummyPath, ZLIB_FILEFUNC_MODE_READ), nullptr);
    EXPECT_EQ(source.GetSize(), 10u);
    EXPECT_EQ(table->zseek64_file(table->opaque, stream, 0, ZLIB_FILEFUNC_SEEK_END), 0);
    EXPECT_EQ(table->ztell64_file(table->opaque, stream), 10u);
    // A backward move past the start is refused.
    EXPECT_EQ(table->zseek64_file(table->opaque, stream, static_cast<ZPOS64_T>(-11), ZLIB_FILEFUNC_SEEK_CUR), -1);
    EXPECT_EQ(table->zseek64_file(table->opaque, stream, static_cast<ZPOS64_T>(-4), ZLIB_FILEFUNC_SEEK_CUR), 0);
    char bytes[8] = {};
    EXPECT_EQ(table->zread_file(table->opaque, stream, bytes, 8), 4u);
    EXPECT_EQ(std::string(bytes, 4), "6789");
    EXPECT_EQ(table->zclose_file(table->opaque, stream), 0);
}

TEST(ZipFileFunctions, ReadAtAcrossTheReadAhead) {
    TempFolder folder;
    std::mt19937 random(3);
    Bytes content(300000, '\0');
    for (char& byte : content) byte = static_cast<char>(random());
    WriteFileBytes(folder.Path("file"), content);
    ZipReadSource source(folder.Path("file"));
    zlib_filefunc64_def* table = source.GetFunctions();
    ASSERT_NE(table->zopen64_file(table->opaque, kZipDummyPath, ZLIB_FILEFUNC_MODE_READ), nullptr);
    for (int round = 0; round < 500; ++round) {
        const std::size_t offset = random() % (content.size() + 10), count = random() % 140000;
        Bytes out(count, '\0');
        std::size_t read = 0;
        ASSERT_TRUE(source.ReadAt(offset, &out[0], count, read));
        out.resize(read);
        ASSERT_EQ(out, content.substr(std::min(offset, content.size()), count));
    }
}
