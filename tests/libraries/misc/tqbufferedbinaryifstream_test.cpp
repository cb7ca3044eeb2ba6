// tqBufferedBinaryIFStream: reads across buffer boundaries, the remaining size, UTF-8 paths and open failures.
#include "misc/tqbufferedbinaryifstream.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "support/tqtest.h"

namespace {

std::string TempPath(const std::string& name) {
    return (std::filesystem::temp_directory_path() / ("tqifs_" + std::to_string(::getpid()) + "_" + name)).string();
}

std::string MakeFile(const std::string& name, const std::string& content) {
    const std::string path = TempPath(name);
    std::ofstream(path, std::ios::binary) << content;
    return path;
}

std::string Pattern(std::size_t size) {
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>(i * 7 + i / 251);
    return bytes;
}

}  // namespace

TEST(TqBufferedBinaryIFStream, ReadsEveryByteWhateverTheChunkAndBufferSizes) {
    const std::string content = Pattern(10000);
    const std::string path = MakeFile("chunks.bin", content);
    for (const std::size_t buffer : {1u, 7u, 4096u, 65536u}) {
        for (const std::uint64_t chunk : {1u, 13u, 5000u, 20000u}) {
            misc::tqBufferedBinaryIFStream in(misc::tqstring(path), buffer);
            EXPECT_EQ(in.GetSize(), content.size());
            std::string got;
            for (;;) {
                std::string piece(static_cast<std::size_t>(chunk), '\0');
                std::uint64_t count = chunk;
                in.Read(&piece[0], count);
                got.append(piece, 0, static_cast<std::size_t>(count));
                std::uint64_t remaining = 0;
                ASSERT_TRUE(in.GetRemaining(remaining));
                EXPECT_EQ(remaining, content.size() - got.size());
                if (count < chunk) break;
            }
            EXPECT_EQ(got, content) << "buffer " << buffer << ", chunk " << chunk;
        }
    }
    std::filesystem::remove(path);
}

TEST(TqBufferedBinaryIFStream, PathsReachTheFileSystemAsUtf8) {
    const std::string path = MakeFile("\xC3\xA4\xE2\x82\xAC.bin", "abc");
    misc::tqBufferedBinaryIFStream in(misc::from_utf8(path));
    char out[4];
    std::uint64_t count = 4;
    in.Read(out, count);
    EXPECT_EQ(std::string(out, count), "abc");
    std::filesystem::remove(path);
}

TEST(TqBufferedBinaryIFStream, MissingFilesAndFoldersAreRefusedByName) {
    const misc::tqstring missing(TempPath("missing.bin"));
    EXPECT_THROW_MSG(
        misc::tqBufferedBinaryIFStream{missing}, misc::tqmiscException,
        u"tqBufferedBinaryIFStream::tqBufferedBinaryIFStream -> Could not open '" + missing + u"' for reading");
    const misc::tqstring folder(std::filesystem::temp_directory_path().string());
    EXPECT_THROW_MSG(misc::tqBufferedBinaryIFStream{folder}, misc::tqmiscException,
                     u"tqBufferedBinaryIFStream::tqBufferedBinaryIFStream -> '" + folder + u"' is not a regular file");
}
