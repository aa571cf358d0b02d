// The serial adapter on real pseudo-terminals, whose far end the tests hold.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <thread>

#include "device/posix_port.h"
#include "tests/support/pseudo_terminal.h"

namespace keplin::test {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

constexpr std::uint8_t kPing = 0x55;
constexpr unsigned kNobody = 65534;

std::int32_t OpenPort(PosixPort& port, std::int32_t number, std::int32_t speed = 38400) {
    port.LineSpeed(speed);
    port.Setting3(0);
    port.PortNumber(number);
    return port.Open();
}

// What opening this path gives to somebody else.
std::int32_t OpenAnother(const fs::path& path) {
    PosixPort port([&](std::int32_t) { return path.string(); });
    return OpenPort(port, 1);
}

// The same without the privileges of root; the caller has them.
std::int32_t OpenAsNobody(const fs::path& path) {
    const pid_t child = fork();
    if (child == 0) {
        const bool changed = setgid(kNobody) == 0 && setuid(kNobody) == 0;
        _exit(changed ? OpenAnother(path) : 99);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class SerialAdapter : public ::testing::Test {
  protected:
    SerialAdapter() {
        fs::create_directory(folder_);
        Plug(*far_);
    }
    void TearDown() override { fs::remove_all(folder_); }

    // Puts a line behind the path of port 2, the only one there is.
    void Plug(const PseudoTerminal& line) const {
        fs::remove(device_);
        fs::create_symlink(line.Path(), device_);
    }

    std::string Read(std::size_t count) {
        std::string bytes;
        while (bytes.size() < count && PseudoTerminal::IsReadable(port_.TakeIdleDescriptor())) {
            for (auto byte = port_.ReadByte(); byte >= 0; byte = port_.ReadByte()) {
                bytes += static_cast<char>(byte);
            }
        }
        return bytes;
    }

    // `line` is the descriptor that the port had.
    void ExpectLost(int line) {
        EXPECT_TRUE(port_.LineLost());
        EXPECT_EQ(port_.ReadByte(), -1);
        EXPECT_EQ(port_.TakeIdleDescriptor(), -1) << "a dead line is always ready";
        EXPECT_EQ(fcntl(line, F_GETFD), -1) << "the adapter could not get its name back";
        EXPECT_THROW(port_.WriteText(":"), PortError);
    }

    const fs::path folder_ =
        fs::temp_directory_path() / ("keplin-serial-" + std::to_string(getpid()));
    const fs::path device_ = folder_ / "ttyUSB0";
    std::optional<PseudoTerminal> far_{std::in_place};
    PosixPort port_{
        [this](std::int32_t number) { return number == 2 ? device_.string() : std::string{}; }};
};

TEST_F(SerialAdapter, PassesEveryByteUnchangedBothWays) {
    std::string bytes;
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    ASSERT_GT(OpenPort(port_, 2), 0);
    const termios settings = far_->Settings();
    EXPECT_EQ(cfgetispeed(&settings), speed_t{B38400});
    EXPECT_EQ(cfgetospeed(&settings), speed_t{B38400});
    EXPECT_EQ(settings.c_iflag & (IXON | IXOFF | IXANY | INPCK), 0U);
    EXPECT_EQ(settings.c_cflag & (CSTOPB | PARENB | PARODD | CRTSCTS), 0U);
    EXPECT_EQ(settings.c_cflag & (CLOCAL | CREAD), tcflag_t{CLOCAL | CREAD});

    far_->Send(bytes);
    EXPECT_EQ(Read(256), bytes);
    port_.WriteByte(0xFF);
    port_.WriteText(bytes);
    EXPECT_EQ(far_->Receive(257), "\xFF" + bytes) << "an echo or a translated byte";
}

TEST_F(SerialAdapter, DropsWhatCameBeforeOpeningAndBeforeADiscard) {
    far_->Send("old\n");
    ASSERT_EQ(far_->Receive(5), "old\r\n") << "the echo shows that the bytes have arrived";
    ASSERT_GT(OpenPort(port_, 2), 0);
    EXPECT_EQ(port_.ReadByte(), -1);

    far_->Send("stale");
    ASSERT_TRUE(PseudoTerminal::IsReadable(port_.TakeIdleDescriptor()));
    EXPECT_EQ(port_.ReadByte(), 's');
    EXPECT_EQ(port_.TakeIdleDescriptor(), -1) << "more bytes may be waiting";
    port_.Setting47(-1);
    port_.DiscardInput();
    EXPECT_GE(port_.TakeIdleDescriptor(), 0);
    EXPECT_EQ(port_.TakeIdleDescriptor(), -1) << "one wait for each read";
    EXPECT_EQ(port_.ReadByte(), -1);
    EXPECT_GE(port_.TakeIdleDescriptor(), 0);
}

TEST_F(SerialAdapter, KeepsASecondProgramOutUntilClosed) {
    ASSERT_GT(OpenPort(port_, 2), 0);
    EXPECT_EQ(OpenAnother(device_), 0);
    EXPECT_GT(OpenPort(port_, 2), 0) << "opening again gives up the line first";
    EXPECT_LE(port_.Close(), 0);
    EXPECT_GT(OpenAnother(device_), 0);

    port_.DiscardInput();
    EXPECT_EQ(port_.ReadByte(), -1);
    EXPECT_EQ(port_.TakeIdleDescriptor(), -1);
    EXPECT_FALSE(port_.LineLost());
    EXPECT_THROW(port_.WriteByte(kPing), PortError);
}

TEST_F(SerialAdapter, KeepsOtherUsersOut) {
    if (getuid() != 0) GTEST_SKIP() << "only root can become another user";
    EXPECT_GT(OpenAsNobody(far_->Path()), 0);
    ASSERT_GT(OpenPort(port_, 2), 0);
    EXPECT_EQ(OpenAsNobody(far_->Path()), 0);
    port_.Close();
    EXPECT_GT(OpenAsNobody(far_->Path()), 0) << "nothing may stay behind on the line";
    far_->Allow(0600);
    EXPECT_EQ(OpenAsNobody(far_->Path()), 0) << "without permission";
}

TEST_F(SerialAdapter, OpensNothingButASerialLine) {
    std::ofstream(folder_ / "file") << "text";
    ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0600), 0);
    for (const char* name : {"absent", "file", "pipe", "."}) {
        EXPECT_EQ(OpenAnother(folder_ / name), 0) << name;
    }
    EXPECT_EQ(OpenPort(port_, 3), 0) << "no such port";
    EXPECT_EQ(OpenPort(port_, 2, 38401), 0) << "no such speed";
    EXPECT_EQ(port_.TakeIdleDescriptor(), -1);
}

TEST_F(SerialAdapter, AStuckLineEndsTheWriteAndTheNextPingLeaves) {
    ASSERT_GT(OpenPort(port_, 2), 0);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THROW(port_.WriteText(std::string(1 << 20, ':')), PortError);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 2s);
    EXPECT_FALSE(port_.LineLost());
    EXPECT_NO_THROW(port_.WriteByte(kPing)) << "the rest of the text is in its way";
}

TEST_F(SerialAdapter, ALongTextThatIsTakenInPiecesArrivesWhole) {
    ASSERT_GT(OpenPort(port_, 2), 0);
    const std::string text(100'000, '.');
    std::string received;
    std::thread reader([&] { received = far_->Receive(text.size()); });
    EXPECT_NO_THROW(port_.WriteText(text));
    reader.join();
    EXPECT_EQ(received.size(), text.size());
}

TEST_F(SerialAdapter, NoticesAHangUpInEachStepOfAnExchange) {
    const auto openLine = [this] {
        Plug(far_.emplace());
        EXPECT_GT(OpenPort(port_, 2), 0);
        EXPECT_FALSE(port_.LineLost());
        return port_.TakeIdleDescriptor();
    };
    {
        SCOPED_TRACE("before the discard");
        const int line = openLine();
        far_->HangUp();
        port_.DiscardInput();
        ExpectLost(line);
    }
    {
        SCOPED_TRACE("before the write");
        const int line = openLine();
        far_->HangUp();
        EXPECT_THROW(port_.WriteText(":"), PortError);
        ExpectLost(line);
    }
    {
        SCOPED_TRACE("within the reply");
        const int line = openLine();
        port_.WriteText(":01");
        far_->Send(":0");
        EXPECT_EQ(Read(2), ":0");
        far_->HangUp();
        EXPECT_TRUE(PseudoTerminal::IsReadable(port_.TakeIdleDescriptor())) << "the wait goes on";
        EXPECT_EQ(port_.ReadByte(), -1);
        ExpectLost(line);
    }
    port_.Close();
    EXPECT_FALSE(port_.LineLost());
}

TEST_F(SerialAdapter, ALostLineIsOpenedAgainOnlyWhenAskedTo) {
    ASSERT_GT(OpenPort(port_, 2), 0);
    far_->HangUp();
    EXPECT_EQ(port_.ReadByte(), -1);
    port_.PortNumber(4);
    port_.LineSpeed(9600);
    port_.ReopenLostLine();
    EXPECT_TRUE(port_.LineLost()) << "still unplugged";

    Plug(far_.emplace());
    port_.DiscardInput();
    EXPECT_EQ(port_.ReadByte(), -1);
    EXPECT_THROW(port_.WriteText(":"), PortError) << "nothing must go to a new line by itself";
    EXPECT_THROW(port_.WriteByte(kPing), PortError);
    EXPECT_TRUE(port_.LineLost());

    port_.ReopenLostLine();
    EXPECT_FALSE(port_.LineLost());
    port_.WriteByte(kPing);
    EXPECT_EQ(far_->Receive(1), "U");
    const termios settings = far_->Settings();
    EXPECT_EQ(cfgetospeed(&settings), speed_t{B38400}) << "not as it was open before";
    far_->Send("U");
    EXPECT_EQ(Read(1), "U");

    far_->HangUp();
    Plug(far_.emplace());
    port_.ReopenLostLine();
    EXPECT_NO_THROW(port_.WriteByte(kPing)) << "a loss that nobody has noticed yet";
}

}  // namespace
}  // namespace keplin::test
