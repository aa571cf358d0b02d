// The far end of a serial line: the master of a pseudo-terminal.
#pragma once

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <termios.h>

#include <stdexcept>
#include <string>

#include "platform/posix/unique_fd.h"

namespace keplin::test {

// A line as a program opens it; there is none where that fails.
inline UniqueFd OpenLine(const std::string& path) {
    return UniqueFd(::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
}

// The same where the line may not be there yet: a device has its name a moment before it can be
// opened.
inline UniqueFd OpenWhenThere(const std::string& path) {
    for (int waited = 0; waited < 10'000; ++waited) {
        if (UniqueFd line = OpenLine(path)) return line;
        ::poll(nullptr, 0, 1);
    }
    return {};
}

// Waits that long for it on any machine, and so long only to fail.
inline bool IsReadable(const int descriptor) {
    pollfd waiting{.fd = descriptor, .events = POLLIN, .revents = 0};
    return ::poll(&waiting, 1, 5000) == 1;
}

// What comes until `count` bytes are there, the line hangs up or nothing more comes for a while.
inline std::string Receive(const UniqueFd& line, std::size_t count) {
    std::string received(count, '\0');
    std::size_t size = 0;
    while (size < count && IsReadable(line.Get())) {
        const auto got = ::read(line.Get(), &received[size], count - size);
        if (got <= 0) break;
        size += static_cast<std::size_t>(got);
    }
    received.resize(size);
    return received;
}

inline void Send(const UniqueFd& line, std::string_view bytes) {
    const auto count = ::write(line.Get(), bytes.data(), bytes.size());
    if (count != static_cast<ssize_t>(bytes.size())) throw std::runtime_error("not sent");
}

class PseudoTerminal {
  public:
    // As another program may have left it: another speed and framing, flow control, line ends
    // translated, bytes echoed and kept back until the line ends. Every user may open it.
    PseudoTerminal() {
        if (!master_ || ::grantpt(master_.Get()) != 0 || ::unlockpt(master_.Get()) != 0)
            throw std::runtime_error("no pseudo-terminal");
        path_ = ::ptsname(master_.Get());
        termios settings = Settings();
        settings.c_iflag |= ICRNL | ISTRIP | INPCK | IXON | IXOFF | IXANY;
        settings.c_oflag |= OPOST | ONLCR;
        settings.c_cflag |= CSTOPB | PARODD | CRTSCTS;
        settings.c_lflag |= ICANON | ECHO | ISIG;
        settings.c_cc[VMIN] = 0;
        cfsetspeed(&settings, B9600);
        Apply(settings);
        Allow(0666);
    }

    [[nodiscard]] const std::string& Path() const { return path_; }
    void Allow(mode_t mode) const { ::chmod(path_.c_str(), mode); }
    void HangUp() { master_.Reset(); }

    // The settings of the end that the program opens.
    [[nodiscard]] termios Settings() const {
        termios settings{};
        tcgetattr(master_.Get(), &settings);
        return settings;
    }
    void Apply(const termios& settings) const { tcsetattr(master_.Get(), TCSANOW, &settings); }

    void Send(std::string_view bytes) const { test::Send(master_, bytes); }
    [[nodiscard]] std::string Receive(std::size_t count) const {
        return test::Receive(master_, count);
    }

  private:
    UniqueFd master_ = OpenLine("/dev/ptmx");
    std::string path_;
};

}  // namespace keplin::test
