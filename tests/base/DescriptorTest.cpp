#include "base/Descriptor.h"

#include "tests/base/StuckDescriptor.h"

#include <array>
#include <cerrno>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

namespace Ledgrove {
namespace {

/// A pipe whose ends a test can close separately.
class Pipe {
public:
    Pipe() {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe(ends.data()), 0);
        m_from = ends[0];
        m_to = ends[1];
    }
    ~Pipe() {
        CloseFrom();
        CloseTo();
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    int From() const { return m_from; }
    int To() const { return m_to; }
    void CloseFrom() { CloseOnce(m_from); }
    void CloseTo() { CloseOnce(m_to); }

private:
    static void CloseOnce(int& number) {
        if (number >= 0)
            close(number);
        number = -1;
    }

    int m_from = -1;
    int m_to = -1;
};

bool IsOpen(int number) {
    return fcntl(number, F_GETFD) >= 0;
}

TEST(Descriptor, ClosesAtTheEndOfItsScope) {
    int number = -1;
    {
        const Descriptor null("/dev/null", O_RDONLY);
        ASSERT_TRUE(null.IsOpen());
        number = null.Number();
        EXPECT_TRUE(IsOpen(number));
    }
    EXPECT_FALSE(IsOpen(number));
}

TEST(Descriptor, SaysWhyItIsNotOpen) {
    const Descriptor missing("/no such folder/file", O_RDONLY);
    EXPECT_FALSE(missing.IsOpen());
    EXPECT_EQ(missing.OpenError(), ENOENT);
}

TEST(Descriptor, IsClosedInStartedPrograms) {
    const Descriptor null("/dev/null", O_RDONLY);
    EXPECT_NE(fcntl(null.Number(), F_GETFD) & FD_CLOEXEC, 0);
}

TEST(ReadSome, ReturnsTheAvailableBytesAndNothingAtTheEnd) {
    Pipe pipe;
    ASSERT_EQ(WriteAll(pipe.To(), "abc"), 0);
    std::array<char, 8> buffer{};
    const ReadCount some = ReadSome(pipe.From(), buffer.data(), buffer.size());
    EXPECT_EQ(std::string(buffer.data(), some.Bytes), "abc");
    EXPECT_EQ(some.Error, 0);
    pipe.CloseTo();
    const ReadCount end = ReadSome(pipe.From(), buffer.data(), buffer.size());
    EXPECT_EQ(end.Bytes, 0u);
    EXPECT_EQ(end.Error, 0);
}

TEST(ReadSome, ReturnsTheSystemsError) {
    std::array<char, 8> buffer{};
    const ReadCount none = ReadSome(-1, buffer.data(), buffer.size());
    EXPECT_EQ(none.Bytes, 0u);
    EXPECT_EQ(none.Error, EBADF);
}

TEST(ReadAll, AppendsUpToTheEnd) {
    Pipe pipe;
    ASSERT_EQ(WriteAll(pipe.To(), "abc"), 0);
    pipe.CloseTo();
    std::string bytes = "before ";
    EXPECT_EQ(ReadAll(pipe.From(), bytes, 10), 0);
    EXPECT_EQ(bytes, "before abc");
}

TEST(ReadAll, MoreThanTheLimitIsAnError) {
    Pipe pipe;
    ASSERT_EQ(WriteAll(pipe.To(), "abcd"), 0);
    pipe.CloseTo();
    std::string bytes;
    EXPECT_EQ(ReadAll(pipe.From(), bytes, 3), EFBIG);
}

TEST(ReadAll, ReturnsTheSystemsError) {
    std::string bytes = "as it was";
    EXPECT_EQ(ReadAll(-1, bytes, 100), EBADF);
    EXPECT_EQ(bytes, "as it was");
}

TEST(WriteAll, WritesMoreThanTheSystemTakesAtOnce) {
    // A non-blocking pipe accepts only as many bytes as fit.
    Pipe pipe;
    ASSERT_EQ(fcntl(pipe.To(), F_SETFL, O_NONBLOCK), 0);
    const int room = fcntl(pipe.From(), F_GETPIPE_SZ);
    ASSERT_GT(room, 0);
    EXPECT_EQ(WriteAll(pipe.To(), std::string(static_cast<std::size_t>(room), 'x')), 0);
    EXPECT_EQ(WriteAll(pipe.To(), "x"), EAGAIN);
}

TEST(WriteAll, ReturnsTheSystemsError) {
    const Descriptor full("/dev/full", O_WRONLY);
    EXPECT_EQ(WriteAll(full.Number(), "x"), ENOSPC);
    EXPECT_EQ(WriteAll(full.Number(), ""), 0);
}

TEST(WriteAll, NoProgressIsAnError) {
    const int before = Testing::StuckWrites();
    EXPECT_EQ(WriteAll(Testing::StuckDescriptor, "x"), EIO);
    EXPECT_EQ(Testing::StuckWrites(), before + 1);
}

TEST(Sync, ReturnsTheSystemsError) {
    EXPECT_EQ(Sync(-1), EBADF);
}

} // namespace
} // namespace Ledgrove
