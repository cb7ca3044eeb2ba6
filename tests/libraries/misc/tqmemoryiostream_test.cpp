// tqMemoryIOStream: growth rule, reads and writes, seeking, attached memory, copies, and failures that change nothing.
#include "misc/tqmemoryiostream.h"

#include <string>

#include "support/tqtest.h"

using misc::tqMemoryIOStream;

namespace {

std::string Contents(const tqMemoryIOStream& s) {
    return std::string(reinterpret_cast<const char*>(s.GetBuffer()), static_cast<std::size_t>(s.GetSize()));
}

/// Writes count bytes, or as many as take the stream one byte past its capacity.
void WriteBytes(tqMemoryIOStream& s, std::uint64_t count = 0) {
    const std::string bytes(count ? count : s.GetCapacity() - s.GetSize() + 1, 'x');
    s.Write(bytes.data(), bytes.size());
}

}  // namespace

TEST(TqMemoryIOStream, ZeroCapacityAndZeroStepAreRefused) {
    EXPECT_THROW_CODE(tqMemoryIOStream(0), misc::tqException, 0,
                      "tqMemoryIOStream::tqMemoryIOStream - initialCapacity should be greater than zero");
    tqMemoryIOStream s(8);
    EXPECT_THROW_CODE(s.SetIncreaseStep(0), misc::tqException, 0,
                      "tqMemoryIOStream::SetIncreaseStep - newIncreaseStep should be greater than zero");
    EXPECT_EQ(s.GetIncreaseStep(), tqMemoryIOStream::kDefaultIncreaseStep);
}

TEST(TqMemoryIOStream, GrowsByStepsTwentyTimesThenDoubles) {
    tqMemoryIOStream s(10), odd(10);
    s.SetIncreaseStep(10);
    odd.SetIncreaseStep(4);
    WriteBytes(s, 25);
    WriteBytes(odd, 25);
    EXPECT_EQ(s.GetCapacity(), 30u);    // the excess 15 rounds down to 10; 10 + 10 + 10
    EXPECT_EQ(odd.GetCapacity(), 26u);  // 10 + 12 + 4
    for (int i = 1; i < 20; ++i) WriteBytes(s);
    EXPECT_EQ(s.GetGrowthCount(), 20u);
    EXPECT_EQ(s.GetCapacity(), 220u);  // 30 and nineteen steps
    WriteBytes(s, 1);                  // fits
    WriteBytes(s);
    EXPECT_EQ(s.GetGrowthCount(), 21u);
    EXPECT_EQ(s.GetCapacity(), 440u);
    WriteBytes(s, 2000 - s.GetSize());  // doubles as often as needed in one growth: 880, 1760, 3520
    EXPECT_EQ(s.GetGrowthCount(), 22u);
    EXPECT_EQ(s.GetCapacity(), 3520u);
    EXPECT_EQ(Contents(s), std::string(2000, 'x'));
}

TEST(TqMemoryIOStream, ReadsStopAtTheEndAndWritesRaiseTheSizeOnlyPastIt) {
    tqMemoryIOStream s(4);
    s.Write("0123456789", 10);
    s.Seek(3);
    char out[100] = {};
    std::uint64_t count = 100, remaining = 0;
    s.Read(out, count);
    EXPECT_EQ(std::string(out, count), "3456789");
    s.Read(out, count = 5);
    EXPECT_EQ(count, 0u);
    s.Seek(3);
    s.Read(out, count = 4);
    EXPECT_EQ(std::string(out, 4), "3456");
    ASSERT_TRUE(s.GetRemaining(remaining));
    EXPECT_EQ(remaining, 3u);
    s.Write("XY", 2);
    EXPECT_EQ(s.GetSize(), 10u);
    s.Write("abc", 3);
    s.Write(nullptr, 0);
    EXPECT_EQ(Contents(s), "0123456XYabc");
    EXPECT_EQ(s.GetPosition(), 12u);
}

TEST(TqMemoryIOStream, SeekToTheSizeIsAllowedAndBeyondFailsWithTheLimit) {
    tqMemoryIOStream s;
    s.Write("abcde", 5);
    s.Seek(5);
    s.Seek(1);
    EXPECT_THROW_MSG(s.Seek(6), misc::tqIdxRangeException<std::uint64_t>,
                     "tqMemoryIOStream::Seek -> Position beyond the end of the stream");
    try {
        s.Seek(6);
    } catch (const misc::tqIdxRangeException<std::uint64_t>& e) {
        EXPECT_EQ(e.GetLimit(), 4u);
        EXPECT_EQ(e.GetIndex(), 6u);
    }
    EXPECT_EQ(s.GetPosition(), 1u);
    EXPECT_EQ(s.GetSize(), 5u);
}

TEST(TqMemoryIOStream, AttachedStreamWorksOnTheCallersMemoryAndNeverGrows) {
    char memory[8] = {'a', 'b', 'c', 'd', 0, 0, 0, 0};
    tqMemoryIOStream s(memory, sizeof memory, 4);
    EXPECT_TRUE(s.IsAttached());
    EXPECT_EQ(s.GetBuffer(), reinterpret_cast<std::uint8_t*>(memory));
    char out[8];
    std::uint64_t count = 8;
    s.Read(out, count);
    EXPECT_EQ(std::string(out, count), "abcd");
    s.Seek(2);
    s.Write("XYZ", 3);
    EXPECT_THROW_CODE(s.Write("1234", 4), misc::tqException, 0,
                      "tqMemoryIOStream::Write -> Attempt to write beyond attached memory!");
    EXPECT_EQ(s.GetSize(), 5u);
    EXPECT_EQ(s.GetPosition(), 5u);
    EXPECT_EQ(s.GetCapacity(), 8u);
    EXPECT_EQ(std::string(memory, 8), std::string("abXYZ\0\0\0", 8));
    s.Write("123", 3);  // exactly to the end is fine
    EXPECT_EQ(std::string(memory, 8), "abXYZ123");
    EXPECT_THROW_MSG(tqMemoryIOStream(memory, 4, 5), misc::tqException,
                     "tqMemoryIOStream::tqMemoryIOStream - size should not exceed capacity");
}

TEST(TqMemoryIOStream, CopiesOwnTheirBytesAndMovesLeaveAnUsableEmptyStream) {
    char memory[4] = {'w', 'x', 'y', 'z'};
    tqMemoryIOStream attached(memory, 4, 4);
    attached.Seek(1);
    tqMemoryIOStream copy(attached), assigned;
    EXPECT_FALSE(copy.IsAttached());
    EXPECT_NE(copy.GetBuffer(), attached.GetBuffer());
    EXPECT_EQ(copy.GetPosition(), 1u);
    copy.Seek(4);
    copy.Write("!", 1);  // grows: the copy is not attached
    EXPECT_EQ(std::string(memory, 4), "wxyz");
    assigned = copy;
    tqMemoryIOStream moved(std::move(assigned));
    EXPECT_EQ(Contents(moved), "wxyz!");
    EXPECT_EQ(assigned.GetSize(), 0u);  // a moved-from stream is empty and usable
    assigned.Write("ok", 2);
    EXPECT_EQ(Contents(assigned), "ok");
}
