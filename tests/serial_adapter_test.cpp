// The serial adapter on real pseudo-terminals, whose far end the tests hold.
#include <gtest/gtest.h>
#include <sys/socket.h>

#include <csignal>
#include <functional>
#include <numeric>

#include "device/posix/posix_port.h"
#include "device/posix/prompt_close.h"
#include "tests/support/open_port.h"
#include "tests/support/pseudo_terminal.h"
#include "tests/support/temporary_file.h"

namespace keplin::test {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

constexpr std::uint8_t kPing = 0x55;

class SerialAdapter : public ::testing::Test {
  protected:
    SerialAdapter() {
        Plug(device_);
        port_.OnLineChange = [this](int line) {
            EXPECT_TRUE(line >= 0 || IsOpen(line_)) << "told too late";
            line_ = line;
        };
    }
    void SetUp() override { ASSERT_GT(OpenPort(port_, 2), 0); }

    static bool IsOpen(int descriptor) { return fcntl(descriptor, F_GETFD) != -1; }

    // Puts a new line behind the path.
    void Plug(const fs::path& path) {
        fs::remove(path);
        fs::create_symlink(far_.emplace().Path(), path);
    }

    bool ByteComes() { return port_.TakeWait() && IsReadable(line_); }

    std::string Read(std::size_t count) {
        std::string bytes;
        while (bytes.size() < count && ByteComes()) {
            for (auto byte = port_.ReadByte(); byte >= 0; byte = port_.ReadByte()) {
                bytes += static_cast<char>(byte);
            }
        }
        return bytes;
    }

    void ExpectPingArrives() {
        EXPECT_NO_THROW(port_.WriteByte(kPing));
        EXPECT_EQ(far_->Receive(1), "U");
    }

    const TemporaryFolder temporary_;
    const fs::path folder_ = temporary_.Path();
    const fs::path device_ = folder_ / "ttyUSB0";
    std::vector<std::string> ports_{"", device_};  // of the computer
    std::optional<PseudoTerminal> far_;
    int line_ = -1;  // the descriptor that is to be watched
    PosixPort port_{[this] { return ports_; }, folder_};
};

TEST_F(SerialAdapter, PassesEveryByteUnchangedBothWays) {
    std::string bytes(256, '\0');
    std::iota(bytes.begin(), bytes.end(), '\0');
    const termios settings = far_->Settings();
    EXPECT_TRUE(cfgetispeed(&settings) == B38400 && cfgetospeed(&settings) == B38400);
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
    Plug(device_);
    far_->Send("old\n");
    ASSERT_EQ(far_->Receive(5), "old\r\n") << "the echo shows that the bytes have arrived";
    ASSERT_GT(OpenPort(port_, 2), 0);
    EXPECT_EQ(port_.ReadByte(), -1);

    far_->Send("stale");
    ASSERT_TRUE(ByteComes());
    EXPECT_EQ(port_.ReadByte(), 's');
    EXPECT_FALSE(port_.TakeWait()) << "more bytes may be waiting";
    port_.Setting47(-1);
    port_.DiscardInput();
    EXPECT_TRUE(port_.TakeWait());
    EXPECT_FALSE(port_.TakeWait()) << "one wait for each read";
    EXPECT_EQ(port_.ReadByte(), -1);
    EXPECT_TRUE(port_.TakeWait());
}

TEST_F(SerialAdapter, KeepsASecondProgramOutUntilClosed) {
    EXPECT_EQ(OpenAnother(device_), 0);
    EXPECT_GT(OpenPort(port_, 2), 0) << "opening again gives up the line first";
    EXPECT_LE(port_.Close(), 0);
    EXPECT_GT(OpenAnother(device_), 0);

    port_.DiscardInput();
    EXPECT_EQ(port_.ReadByte(), -1);
    EXPECT_FALSE(port_.TakeWait());
    EXPECT_FALSE(port_.LineLost());
    EXPECT_THROW(port_.WriteByte(kPing), PortError);
}

TEST_F(SerialAdapter, OpensNothingButASerialLine) {
    std::ofstream(folder_ / "file") << "text";
    ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0600), 0);
    for (const char* name : {"absent", "file", "pipe", "."})
        EXPECT_EQ(OpenAnother(folder_ / name), 0) << name;
    EXPECT_EQ(OpenPort(port_, 3), 0) << "no such port";
    EXPECT_EQ(OpenPort(port_, 2, 38401), 0) << "no such speed";
    EXPECT_FALSE(port_.TakeWait());
}

TEST_F(SerialAdapter, AStuckLineEndsTheWriteAndTheNextPingLeaves) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THROW(port_.WriteText(std::string(1 << 20, ':')), PortError);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 2s);
    EXPECT_FALSE(port_.LineLost());
    EXPECT_NO_THROW(port_.WriteByte(kPing)) << "the rest of the text is in its way";
}

TEST_F(SerialAdapter, NoticesAHangUpInEachStepOfAnExchangeAndAtRest) {
    const std::function<void()> steps[] = {
        [&] { port_.DiscardInput(); }, [&] { EXPECT_THROW(port_.WriteText(":"), PortError); },
        [&] { EXPECT_TRUE(ByteComes() && port_.ReadByte() == -1) << "the wait goes on"; },
        [&] { port_.CheckLine(); }};
    for (const auto& step : steps) {
        SCOPED_TRACE(&step - steps);
        Plug(device_);
        ASSERT_GT(OpenPort(port_, 2), 0);
        EXPECT_FALSE(port_.LineLost());
        port_.WriteText(":01");
        far_->Send(":0");
        EXPECT_EQ(Read(2), ":0");
        far_->Send("noise");
        const int line = line_;
        ASSERT_TRUE(IsReadable(line));
        port_.CheckLine();
        EXPECT_FALSE(port_.LineLost());
        far_->HangUp();
        step();
        EXPECT_TRUE(port_.LineLost());
        EXPECT_EQ(port_.ReadByte(), -1);
        EXPECT_FALSE(port_.TakeWait()) << "a dead line is always ready";
        EXPECT_EQ(line_, -1);
        EXPECT_FALSE(IsOpen(line)) << "the adapter could not get its name back";
        EXPECT_THROW(port_.WriteText(":"), PortError);
    }
    port_.Close();
    EXPECT_FALSE(port_.LineLost());
}

// A terminal program looks at the line meanwhile and changes its settings.
TEST_F(SerialAdapter, AnIdleLineThatReadsAsEndedIsNotLost) {
    termios settings = far_->Settings();
    settings.c_cc[VMIN] = 0;
    far_->Apply(settings);
    EXPECT_EQ(port_.ReadByte(), -1);
    EXPECT_FALSE(port_.LineLost());
    far_->Send("U");
    EXPECT_EQ(Read(1), "U");
    far_->HangUp();
    EXPECT_EQ(port_.ReadByte(), -1);
    EXPECT_TRUE(port_.LineLost());
}

TEST_F(SerialAdapter, StaysAwayFromAPortThatARunningProcessHasLocked) {
    port_.Close();
    const fs::path lock = folder_ / "LCK..ttyUSB0";
    const pid_t self = getpid();
    const pid_t ended = fork();
    if (ended == 0) _exit(0);
    waitpid(ended, nullptr, 0);
    const std::string bytes(reinterpret_cast<const char*>(&self), sizeof self);
    const auto expect = [&](int status, const std::vector<std::string>& owners) {
        for (const std::string& owner : owners) {
            std::ofstream(lock, std::ios::binary) << owner;
            EXPECT_EQ(OpenAnother(device_, folder_), status) << owner;
        }
    };
    expect(1, {std::to_string(ended) + "\n", "", "0\n", "-1\n", "no number"});
    expect(0, {bytes, std::to_string(self) + " terminal user\n", "         1\n"});
    EXPECT_TRUE(getuid() != 0 || OpenAsNobody(device_, folder_) == 0) << "another user's process";
    fs::remove(lock);
    ASSERT_EQ(mkfifo(lock.c_str(), 0600), 0);
    EXPECT_EQ(OpenAnother(device_, folder_), 1) << "nobody writes into it";
}

// No pseudo-terminal makes its closing wait; this socket does, for a reader who takes nothing. Who
// started the program may have kept the alarm from it.
TEST(PromptClose, DoesNotWaitForADeviceThatTakesNoBytes) {
    const UniqueFd listener(socket(AF_INET, SOCK_STREAM, 0));
    ASSERT_EQ(listen(listener.Get(), 1), 0);
    sockaddr address{};
    socklen_t size = sizeof address;
    ASSERT_EQ(getsockname(listener.Get(), &address, &size), 0);
    UniqueFd line(socket(AF_INET, SOCK_STREAM, 0));
    ASSERT_EQ(connect(line.Get(), &address, size), 0);
    const linger wait{1, 30};
    ASSERT_EQ(setsockopt(line.Get(), SOL_SOCKET, SO_LINGER, &wait, sizeof wait), 0);
    const std::string bytes(1 << 20, ':');
    while (send(line.Get(), bytes.data(), bytes.size(), MSG_DONTWAIT) > 0) {
    }

    sigset_t alarm;
    sigemptyset(&alarm);
    sigaddset(&alarm, SIGALRM);
    pthread_sigmask(SIG_BLOCK, &alarm, nullptr);
    const int descriptor = line.Get();
    const auto start = std::chrono::steady_clock::now();
    ClosePromptly(std::move(line));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 10s);
    EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
    EXPECT_EQ(std::signal(SIGALRM, SIG_DFL), SIG_DFL) << "left behind";
    sigset_t blocked;
    pthread_sigmask(SIG_UNBLOCK, &alarm, &blocked);
    EXPECT_TRUE(sigismember(&blocked, SIGALRM));
}

TEST_F(SerialAdapter, ALostLineIsOpenedAgainOnlyWhenAskedTo) {
    far_->HangUp();
    EXPECT_EQ(port_.ReadByte(), -1);
    port_.PortNumber(4);
    port_.ReopenLostLine();
    EXPECT_TRUE(port_.LineLost()) << "still unplugged";

    Plug(device_);
    port_.DiscardInput();
    EXPECT_EQ(port_.ReadByte(), -1);
    EXPECT_THROW(port_.WriteText(":"), PortError) << "nothing must go to a new line by itself";
    EXPECT_THROW(port_.WriteByte(kPing), PortError);
    EXPECT_TRUE(port_.LineLost());

    port_.ReopenLostLine();
    EXPECT_FALSE(port_.LineLost());
    ExpectPingArrives();
    far_->Send("U");
    EXPECT_EQ(Read(1), "U");

    Plug(device_);
    port_.ReopenLostLine();
    ExpectPingArrives();  // after a loss that nobody had noticed
}

// The adapter goes and comes back under another name, and then under its old one.
TEST_F(SerialAdapter, ALostLineIsFoundUnderAnotherNameButNeverTakenForItsNeighbour) {
    const PseudoTerminal neighbour;
    // More ports than a search tries: the last one moves up when the first is gone.
    const std::vector<std::string> others{"/nowhere/2", "/nowhere/3", "/nowhere/4",
                                          neighbour.Path()};
    fs::path path = device_;
    ports_ = others;
    ports_.insert(ports_.begin(), path);
    ASSERT_GT(OpenPort(port_, 1), 0);
    for (const char* name : {"ttyUSB1", "ttyUSB0"}) {
        far_->HangUp();
        port_.CheckLine();
        fs::remove(path);
        ports_ = others;
        port_.ReopenLostLine();
        EXPECT_TRUE(port_.LineLost());

        path = folder_ / name;
        Plug(path);
        ports_.push_back(path);
        port_.ReopenLostLine();
        EXPECT_FALSE(port_.LineLost());
        ExpectPingArrives();
    }
}

}  // namespace
}  // namespace keplin::test
