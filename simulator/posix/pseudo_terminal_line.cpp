#include "simulator/posix/pseudo_terminal_line.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <span>
#include <system_error>
#include <utility>

namespace keplin::simulator {
namespace {

using std::chrono::milliseconds;

// How often to look for a host, or for a device that hung up: neither announces itself.
constexpr Time kLookAgain = milliseconds{10};
// A train of bytes is delivered in groups of about this length, so as not to wake for each.
constexpr Time kGroup = milliseconds{1};
// This many bytes on the wire take longer than a group.
constexpr std::size_t kTrain = 4;

int Checked(int result, const char* what) {
    if (result < 0) throw std::system_error(errno, std::generic_category(), what);
    return result;
}

Time SteadyNow() {
    return std::chrono::steady_clock::now().time_since_epoch();
}

timespec ToTimespec(Time duration) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(duration);
    timespec result{};
    result.tv_sec = seconds.count();
    result.tv_nsec = (duration - seconds).count();
    return result;
}

// A line discipline would echo and reshape bytes until the host has set the line up.
void MakeRaw(const UniqueFd& terminal) {
    termios settings{};
    Checked(::tcgetattr(terminal.Get(), &settings), "tcgetattr");
    ::cfmakeraw(&settings);
    Checked(::tcsetattr(terminal.Get(), TCSANOW, &settings), "tcsetattr");
}

UniqueFd OpenMaster() {
    constexpr int kFlags = O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC;
    UniqueFd master(Checked(::posix_openpt(kFlags), "posix_openpt"));
    Checked(::grantpt(master.Get()), "grantpt");
    Checked(::unlockpt(master.Get()), "unlockpt");
    MakeRaw(master);
    return master;
}

// Stands for a file without opening it: a terminal would count this as a host.
UniqueFd NameOf(const char* path) {
    return UniqueFd(Checked(::open(path, O_PATH | O_CLOEXEC), path));
}

UniqueFd HostEnd(const UniqueFd& master) {
    std::array<char, 128> name{};
    const int error = ::ptsname_r(master.Get(), name.data(), name.size());
    if (error != 0) throw std::system_error(error, std::generic_category(), "ptsname");
    return NameOf(name.data());
}

}  // namespace

PseudoTerminalLine::PseudoTerminalLine(DeviceEnd& device) : wire_(device), hostEnd_(NameOf("/")) {
    std::array<int, 2> ends{};
    Checked(::pipe2(ends.data(), O_CLOEXEC), "pipe2");
    wakeReader_ = UniqueFd(ends[0]);
    wakeWriter_ = UniqueFd(ends[1]);
    PlugIn();
    thread_ = std::thread([this] { Run(); });
}

PseudoTerminalLine::~PseudoTerminalLine() {
    wakeWriter_.Reset();
    thread_.join();
}

std::string PseudoTerminalLine::DevicePath() const {
    return "/proc/" + std::to_string(::getpid()) + "/fd/" + std::to_string(hostEnd_.Get());
}

void PseudoTerminalLine::Run() {
    do {
        CarryBytes();
    } while (WaitForWork());
}

void PseudoTerminalLine::CarryBytes() {
    const std::lock_guard lock(mutex_);
    const Time now = SteadyNow();
    FollowHangUp();
    ReadHost(now);
    wire_.Advance(now);
    WriteHost();
    if (wire_.HungUp()) Unplug();
}

void PseudoTerminalLine::FollowHangUp() {
    if (master_ || !wire_.PlugIn()) return;
    try {
        PlugIn();
    } catch (const std::system_error&) {
        // No pseudo-terminal to be had at the moment: the device stays unplugged until there is.
    }
}

void PseudoTerminalLine::PlugIn() {
    UniqueFd master = OpenMaster();
    Checked(::dup3(HostEnd(master).Get(), hostEnd_.Get(), O_CLOEXEC), "dup3");
    master_ = std::move(master);
    hostThere_ = true;
}

// What hostEnd_ stands for cannot be opened any more, not even when the system gives the terminal's
// number to somebody else's.
void PseudoTerminalLine::Unplug() {
    master_.Reset();
}

void PseudoTerminalLine::ReadHost(Time now) {
    if (!master_) return;
    std::array<std::uint8_t, 4096> buffer;
    const ssize_t count = ::read(master_.Get(), buffer.data(), buffer.size());
    hostThere_ = count >= 0 || errno != EIO;
    if (count <= 0) return;
    wire_.HostSends(std::span(buffer).first(static_cast<std::size_t>(count)), now);
}

void PseudoTerminalLine::WriteHost() {
    wire_.TakeArrived(toHost_);
    if (!master_ || toHost_.empty()) return;
    [[maybe_unused]] const ssize_t taken = ::write(master_.Get(), toHost_.data(), toHost_.size());
}

bool PseudoTerminalLine::WaitForWork() {
    std::optional<timespec> timeout;
    {
        const std::lock_guard lock(mutex_);
        const Time now = SteadyNow();
        const auto wake = WakeTime(now);
        if (wake) timeout = ToTimespec(std::max(*wake - now, Time::zero()));
    }
    // A terminal that no host has open is always ready; it is left out.
    const int master = hostThere_ ? master_.Get() : -1;
    std::array<pollfd, 2> watched{{{wakeReader_.Get(), POLLIN, 0}, {master, POLLIN, 0}}};
    ::ppoll(watched.data(), watched.size(), timeout ? &*timeout : nullptr, nullptr);
    return watched[0].revents == 0;
}

std::optional<Time> PseudoTerminalLine::WakeTime(Time now) const {
    auto wake = wire_.NextEvent();
    if (wake && wire_.InFlight() >= kTrain) wake = std::max(*wake, now + kGroup);
    if (master_ && hostThere_) return wake;
    return std::min(wake.value_or(Time::max()), now + kLookAgain);
}

}  // namespace keplin::simulator
