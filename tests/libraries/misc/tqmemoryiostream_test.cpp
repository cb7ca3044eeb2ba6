// tqMemoryIOStream: growth rule, reads and writes, seeking, attached memory, copies, and failures that change nothing.
#include "misc/tqmemoryiostream.h"

#include <cstring>
#include <string>
#include <vector>

#include "support/tqtest.h"

using misc::tqMemoryIOStream;

namespace {

std::string Contents(const tqMemoryIOStream& s) {
    return std::string(reinterpret_cast<const char*>(s.GetBuffer()), static_cast<std::size_t>(s.GetSize()));
}

void WriteBytes(tqMemoryIOStream& s, std::size_t count, char fill = 'x') {
    const std::string bytes(count, fill);
    s.Write(bytes.data(), bytes.size());
}

}  // namespace

TEST(TqMemoryIOStream, ZeroCapacityAndZeroStepAreRefused) {
    EXPECT_THROW_CODE(tqMemoryIOStream(0), misc::tqException, 0,
                      "tqMemoryIOStream::tqMemoryIOStream - initialCapacity should be greater than zero");
    tqMemoryIOStream s(8);
    EXPECT_EQ(s.GetIncreaseStep(), tqMemoryIOStream::kDefaultIncreaseStep);
    EXPECT_THROW_CODE(s.SetIncreaseStep(0), misc::tqException, 0,
                      "tqMemoryIOStream::SetIncreaseStep - newIncreaseStep should be greater than zero");
    EXPECT_EQ(s.GetIncreaseStep(), tqMemoryIOStream::kDefaultIncreaseStep);
}

TEST(TqMemoryIOStream, FirstGrowthRoundsTheExcessDownToStepsAndAddsOneStep) {
    tqMemoryIOStream s(10);
    s.SetIncreaseStep(10);
    WriteBytes(s, 25);
    // 25 - 10 = 15 rounds down to 10; 10 + 10 + 10.
    EXPECT_EQ(s.GetCapacity(), 30u);
    EXPECT_EQ(s.GetGrowthCount(), 1u);
    EXPECT_EQ(s.GetSize(), 25u);
    EXPECT_EQ(s.GetPosition(), 25u);

    tqMemoryIOStream odd(10);
    odd.SetIncreaseStep(4);
    WriteBytes(odd, 25);
    EXPECT_EQ(odd.GetCapacity(), 26u);  // 10 + 12 + 4
}

TEST(TqMemoryIOStream, TwentyLinearGrowthsThenDoubling) {
    tqMemoryIOStream s(10);
    s.SetIncreaseStep(10);
    for (int i = 0; i < 20; ++i) WriteBytes(s, static_cast<std::size_t>(s.GetCapacity() - s.GetSize() + 1));
    EXPECT_EQ(s.GetGrowthCount(), 20u);
    EXPECT_EQ(s.GetCapacity(), 210u);
    WriteBytes(s, 1);  // fits
    EXPECT_EQ(s.GetGrowthCount(), 20u);
    WriteBytes(s, static_cast<std::size_t>(s.GetCapacity() - s.GetSize() + 1));
    EXPECT_EQ(s.GetGrowthCount(), 21u);
    EXPECT_EQ(s.GetCapacity(), 420u);
    // Doubles as often as needed in one growth: 840, 1680, 3360.
    WriteBytes(s, static_cast<std::size_t>(2000 - s.GetSize()));
    EXPECT_EQ(s.GetGrowthCount(), 22u);
    EXPECT_EQ(s.GetCapacity(), 3360u);
    EXPECT_EQ(Contents(s), std::string(2000, 'x'));
}

TEST(TqMemoryIOStream, ShortReadsReportTheCountAndStopAtTheEnd) {
    tqMemoryIOStream s(4);
    s.Write("0123456789", 10);
    s.Seek(0);
    char out[100] = {};
    std::uint64_t count = 100;
    s.Read(out, count);
    EXPECT_EQ(count, 10u);
    EXPECT_EQ(std::string(out, 10), "0123456789");
    EXPECT_EQ(s.GetPosition(), 10u);
    count = 5;
    s.Read(out, count);
    EXPECT_EQ(count, 0u);

    s.Seek(3);
    count = 4;
    s.Read(out, count);
    EXPECT_EQ(std::string(out, 4), "3456");
    std::uint64_t remaining = 0;
    ASSERT_TRUE(s.GetRemaining(remaining));
    EXPECT_EQ(remaining, 3u);
}

TEST(TqMemoryIOStream, WritesOverwriteInPlaceAndRaiseTheSizeOnlyPastTheEnd) {
    tqMemoryIOStream s;
    s.Write("abcdef", 6);
    s.Seek(2);
    s.Write("XY", 2);
    EXPECT_EQ(s.GetSize(), 6u);
    EXPECT_EQ(s.GetPosition(), 4u);
    s.Write("123", 3);
    EXPECT_EQ(Contents(s), "abXY123");
    s.Write(nullptr, 0);
    EXPECT_EQ(s.GetSize(), 7u);
}

TEST(TqMemoryIOStream, SeekToTheSizeIsAllowedAndBeyondFailsWithTheLimit) {
    tqMemoryIOStream s;
    s.Write("abcde", 5);
    s.Seek(2);
    s.Seek(5);
    EXPECT_EQ(s.GetPosition(), 5u);
    s.Seek(1);
    try {
        s.Seek(6);
        FAIL() << "no exception";
    } catch (const misc::tqIdxRangeException<std::uint64_t>& e) {
        EXPECT_EQ(e.GetLimit(), 4u);
        EXPECT_EQ(e.GetIndex(), 6u);
        EXPECT_EQ(e.GetMessage(), misc::tqstring(u"tqMemoryIOStream::Seek -> Position beyond the end of the stream"));
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
    EXPECT_EQ(std::string(memory, 5), "abXYZ");
    EXPECT_EQ(s.GetSize(), 5u);

    EXPECT_THROW_CODE(s.Write("1234", 4), misc::tqException, 0,
                      "tqMemoryIOStream::Write -> Attempt to write beyond attached memory!");
    EXPECT_EQ(s.GetSize(), 5u);
    EXPECT_EQ(s.GetPosition(), 5u);
    EXPECT_EQ(s.GetCapacity(), 8u);
    EXPECT_EQ(s.GetGrowthCount(), 0u);
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
    tqMemoryIOStream copy(attached);
    EXPECT_FALSE(copy.IsAttached());
    EXPECT_NE(copy.GetBuffer(), attached.GetBuffer());
    EXPECT_EQ(copy.GetPosition(), 1u);
    copy.Seek(4);
    copy.Write("!", 1);  // grows: the copy is not attached
    EXPECT_EQ(Contents(copy), "wxyz!");
    EXPECT_EQ(std::string(memory, 4), "wxyz");

    tqMemoryIOStream assigned;
    assigned = copy;
    EXPECT_EQ(Contents(assigned), "wxyz!");
    tqMemoryIOStream moved(std::move(assigned));
    EXPECT_EQ(Contents(moved), "wxyz!");
    EXPECT_EQ(assigned.GetSize(), 0u);  // a moved-from stream is empty and usable
    assigned.Write("ok", 2);
    EXPECT_EQ(Contents(assigned), "ok");
}
