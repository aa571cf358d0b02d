// The far end of a serial line: the master of a pseudo-terminal.
#pragma once

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <termios.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/posix/unique_fd.h"

namespace keplin::test {

class PseudoTerminal {
  public:
    // As another program may have left it: another speed and framing, flow control, line ends
    // translated, bytes echoed and kept back until the line ends. Every user may open it.
    PseudoTerminal() : master_(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
        if (!master_ || ::grantpt(master_.Get()) != 0 || ::unlockpt(master_.Get()) != 0) {
            throw std::runtime_error("no pseudo-terminal");
        }
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

    void Send(std::string_view bytes) const {
        const auto count = ::write(master_.Get(), bytes.data(), bytes.size());
        if (count != static_cast<ssize_t>(bytes.size())) throw std::runtime_error("not sent");
    }

    // What arrives until `count` bytes are there or nothing more comes for a while.
    [[nodiscard]] std::string Receive(std::size_t count) const {
        std::string received;
        std::array<char, 4096> part{};
        while (received.size() < count && IsReadable(master_.Get())) {
            const auto size = std::min(part.size(), count - received.size());
            const auto got = ::read(master_.Get(), part.data(), size);
            if (got <= 0) break;
            received.append(part.data(), static_cast<std::size_t>(got));
        }
        return received;
    }

    static bool IsReadable(int descriptor, int milliseconds = kLongWait) {
        pollfd waiting{.fd = descriptor, .events = POLLIN, .revents = 0};
        return ::poll(&waiting, 1, milliseconds) == 1;
    }

  private:
    static constexpr int kLongWait = 2000;

    UniqueFd master_;
    std::string path_;
};

}  // namespace keplin::test
