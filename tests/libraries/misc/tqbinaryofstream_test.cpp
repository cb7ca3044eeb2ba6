// tqBinaryOFStream: buffered writes land in order, closing, writing after close, and creation failures.
#include "misc/tqbinaryofstream.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "support/tqtest.h"

namespace {

std::string TempPath(const std::string& name) {
    return (std::filesystem::temp_directory_path() / ("tqofs_" + std::to_string(::getpid()) + "_" + name)).string();
}

std::string Slurp(const std::string& path) {
    std::ostringstream out;
    out << std::ifstream(path, std::ios::binary).rdbuf();
    return out.str();
}

}  // namespace

TEST(TqBinaryOFStream, WritesOfAnySizeLandInOrderAndReplaceTheFile) {
    const std::string path = TempPath("order.bin");
    std::ofstream(path) << std::string(200, '-');
    std::string expected;
    {
        misc::tqBinaryOFStream out(misc::tqstring(path), 16);
        for (std::size_t size : {1u, 15u, 16u, 3u, 40u, 0u, 9u}) {
            const std::string piece(size, static_cast<char>('a' + size % 26));
            out.Write(piece.data(), piece.size());
            expected += piece;
        }
        out.Close();
        EXPECT_FALSE(out.IsOpen());
        out.Close();  // twice is harmless
    }
    EXPECT_EQ(Slurp(path), expected);
    {
        misc::tqBinaryOFStream out{misc::tqstring(path)};
        out.Write("new", 3);
    }
    EXPECT_EQ(Slurp(path), "new");  // the destructor flushes
    std::filesystem::remove(path);
}

TEST(TqBinaryOFStream, FailuresNameThePath) {
    const misc::tqstring bad(TempPath("no_such_folder/file.bin")), path(TempPath("closed.bin"));
    EXPECT_THROW_MSG(misc::tqBinaryOFStream{bad}, misc::tqmiscException,
                     u"tqBinaryOFStream::tqBinaryOFStream -> Could not create '" + bad + u"'");
    misc::tqBinaryOFStream out(path);
    out.Close();
    EXPECT_THROW_MSG(out.Write("x", 1), misc::tqmiscException, u"tqBinaryOFStream::Write -> '" + path + u"' is closed");
    std::filesystem::remove(misc::to_utf8(path));
}
