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

}  // namespace

TEST(TqBufferedBinaryIFStream, ReadsEveryByteWhateverTheChunkAndBufferSizes) {
    std::string content(10000, '\0');
    for (std::size_t i = 0; i < content.size(); ++i) content[i] = static_cast<char>(i * 7 + i / 251);
    const std::string path = TempPath("\xC3\xA4\xE2\x82\xAC.bin");  // the path reaches the file system as UTF-8
    std::ofstream(path, std::ios::binary) << content;
    for (const std::size_t buffer : {1u, 7u, 4096u, 65536u}) {
        for (const std::uint64_t chunk : {1u, 13u, 5000u, 20000u}) {
            misc::tqBufferedBinaryIFStream in(misc::from_utf8(path), buffer);
            EXPECT_EQ(in.GetSize(), content.size());
            std::string got;
            for (std::uint64_t count = chunk; count == chunk;) {
                std::string piece(static_cast<std::size_t>(chunk), '\0');
                in.Read(&piece[0], count);
                got.append(piece, 0, static_cast<std::size_t>(count));
                std::uint64_t remaining = 0;
                ASSERT_TRUE(in.GetRemaining(remaining));
                EXPECT_EQ(remaining, content.size() - got.size());
            }
            EXPECT_EQ(got, content) << "buffer " << buffer << ", chunk " << chunk;
        }
    }
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
