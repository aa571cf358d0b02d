#include "device/posix/posix_port.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "device/posix/lock_file.h"
#include "device/posix/prompt_close.h"

namespace keplin {
namespace {

using std::chrono::steady_clock;

// The longest record, 521 characters, takes 136 ms at 38400 bit/s: a line that needs longer than
// this is stuck.
constexpr std::chrono::milliseconds kWriteBound{500};

constexpr speed_t kSpeed = B38400;

bool HasModemLines(int line) {
    int modemLines = 0;
    return ioctl(line, TIOCMGET, &modemLines) == 0;
}

// Stops the programs that ask for the lock.
bool Lock(int line) {
    return flock(line, LOCK_EX | LOCK_NB) == 0;
}

// Stops the others too, until CloseLine. Not on a pseudo-terminal: there it would outlast this
// descriptor.
void KeepOthersOut(int line) {
    if (HasModemLines(line)) ioctl(line, TIOCEXCL);
}

constexpr tcflag_t kInputFlags =
    IGNBRK | BRKINT | PARMRK | ISTRIP | INLCR | IGNCR | ICRNL | IXON | IXOFF | IXANY | INPCK;
constexpr tcflag_t kOutputFlags = OPOST;
constexpr tcflag_t kLocalFlags = ECHO | ECHONL | ICANON | ISIG | IEXTEN;
constexpr tcflag_t kFramingFlags = CSIZE | CSTOPB | PARENB | PARODD | CRTSCTS | CLOCAL | CREAD;

termios RawSettings(termios settings) {
    cfmakeraw(&settings);
    settings.c_iflag &= ~kInputFlags;
    settings.c_cflag &= ~(tcflag_t{CSTOPB} | PARODD | CRTSCTS);
    settings.c_cflag |= CLOCAL | CREAD;
    settings.c_cc[VMIN] = 1;
    settings.c_cc[VTIME] = 0;
    cfsetispeed(&settings, kSpeed);
    cfsetospeed(&settings, kSpeed);
    return settings;
}

// Whether the settings agree in all that decides which bytes pass. A driver may differ elsewhere.
bool Agree(const termios& one, const termios& other) {
    const auto same = [](tcflag_t a, tcflag_t b, tcflag_t flags) { return ((a ^ b) & flags) == 0; };
    return same(one.c_iflag, other.c_iflag, kInputFlags) &&
           same(one.c_oflag, other.c_oflag, kOutputFlags) &&
           same(one.c_lflag, other.c_lflag, kLocalFlags) &&
           same(one.c_cflag, other.c_cflag, kFramingFlags) && one.c_cc[VMIN] == other.c_cc[VMIN] &&
           one.c_cc[VTIME] == other.c_cc[VTIME] && cfgetispeed(&one) == cfgetispeed(&other) &&
           cfgetospeed(&one) == cfgetospeed(&other);
}

bool Configure(int line) {
    termios found{};
    if (tcgetattr(line, &found) != 0) return false;
    const termios wanted = RawSettings(found);
    // Setting them succeeds as soon as the driver took one of them: only reading back tells.
    return tcsetattr(line, TCSANOW, &wanted) == 0 && tcgetattr(line, &found) == 0 &&
           Agree(wanted, found);
}

UniqueFd OpenDevice(const std::string& path) {
    // Without O_NONBLOCK the opening would wait for a carrier that a three-wire cable never shows.
    UniqueFd line{::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)};
    const bool usable =
        line && Lock(line.Get()) && Configure(line.Get()) && tcflush(line.Get(), TCIFLUSH) == 0;
    if (!usable) return {};
    KeepOthersOut(line.Get());
    return line;
}

bool IsPassing(int error) {
    return error == EAGAIN || error == EINTR;
}

bool IsHungUp(int line) {
    pollfd state{.fd = line, .events = 0, .revents = 0};
    return poll(&state, 1, 0) == 1 && (state.revents & (POLLHUP | POLLERR)) != 0;
}

}  // namespace

bool PosixPort::OpenLine(const std::string& path) {
    if (IsLockedByProcess(path, lockFolder_)) return false;
    line_ = OpenDevice(path);
    if (!line_) return false;
    if (OnLineChange) OnLineChange(line_.Get());
    return true;
}

void PosixPort::CloseLine() noexcept {
    if (!line_) return;
    if (OnLineChange) OnLineChange(-1);
    // Where another program has the device open too, it would stay closed to the next opening.
    ioctl(line_.Get(), TIOCNXCL);
    ClosePromptly(std::move(line_));
}

void PosixPort::CheckLine() noexcept {
    if (line_ && IsHungUp(line_.Get())) LoseLine();
}

std::int32_t PosixPort::ReadByte() {
    if (!line_) return -1;
    std::uint8_t byte = 0;
    const auto count = ::read(line_.Get(), &byte, 1);
    mayWait_ = count != 1;
    if (count == 1) return byte;
    // 0 bytes is how a line that hung up reads, but also an idle one whose settings another program
    // has changed meanwhile.
    if (count == 0 ? IsHungUp(line_.Get()) : !IsPassing(errno)) LoseLine();
    return -1;
}

void PosixPort::WriteText(std::string_view bytes) {
    RequireOpen();
    mayWait_ = true;  // its answer ends the wait
    const Moment deadline = steady_clock::now() + kWriteBound;
    bytes = WriteSome(bytes);
    while (!bytes.empty()) {
        AwaitRoom(deadline);
        bytes = WriteSome(bytes);
    }
}

// Returns what the device has not taken yet.
std::string_view PosixPort::WriteSome(std::string_view bytes) {
    const auto count = ::write(line_.Get(), bytes.data(), bytes.size());
    if (count >= 0) return bytes.substr(static_cast<std::size_t>(count));
    if (IsPassing(errno)) return bytes;
    LoseLine();
    throw PortError("the line was lost while writing");
}

void PosixPort::AwaitRoom(Moment deadline) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - steady_clock::now());
    if (left.count() > 0) {
        pollfd room{.fd = line_.Get(), .events = POLLOUT, .revents = 0};
        poll(&room, 1, static_cast<int>(left.count()));
        return;
    }
    // Half a record that left later would run into the next one, where the driver lets it be taken
    // back.
    tcflush(line_.Get(), TCOFLUSH);
    throw PortError("the device takes no more bytes");
}

void PosixPort::DiscardInput() {
    if (!line_) return;
    mayWait_ = true;
    if (tcflush(line_.Get(), TCIFLUSH) != 0) LoseLine();
}

}  // namespace keplin
