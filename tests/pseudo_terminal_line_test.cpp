// The line between a host and a simulated controller, through real pseudo-terminals.
#include "simulator/posix/pseudo_terminal_line.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <string>

#include "platform/posix/unique_fd.h"
#include "simulator/faulty_device.h"
#include "simulator/loader.h"

namespace keplin::simulator {
namespace {

// Long enough for any machine; a test waits that long only to fail.
constexpr int kPatience = 10'000;  // milliseconds

UniqueFd OpenNow(const std::string& path) {
    return UniqueFd(::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
}

UniqueFd OpenWhenThere(const std::string& path) {
    for (int waited = 0; waited < kPatience; ++waited) {
        if (UniqueFd host = OpenNow(path)) return host;
        ::poll(nullptr, 0, 1);
    }
    return {};
}

// Waits until something is there to be read or the line has hung up.
int Poll(const UniqueFd& host) {
    pollfd state{host.Get(), POLLIN, 0};
    return ::poll(&state, 1, kPatience) == 1 ? state.revents : 0;
}

// What the host reads when it has sent the text: `count` bytes, or fewer when the line hangs up.
std::string Ask(const UniqueFd& host, const std::string& text, std::size_t count) {
    EXPECT_EQ(::write(host.Get(), text.data(), text.size()), std::ssize(text));
    std::string answer;
    char byte = 0;
    while (answer.size() < count && Poll(host) != 0 && ::read(host.Get(), &byte, 1) == 1)
        answer.push_back(byte);
    return answer;
}

TEST(PseudoTerminalLine, IsRawAndAnswersOneHostAfterTheOther) {
    Loader loader;
    std::string path;
    {
        PseudoTerminalLine line(loader);
        path = line.DevicePath();
        for (const std::size_t hosts : {1, 2}) {
            const UniqueFd host = OpenWhenThere(path);
            termios settings{};
            ASSERT_EQ(::tcgetattr(host.Get(), &settings), 0);
            EXPECT_EQ(settings.c_lflag & (ECHO | ICANON | ISIG), 0u);
            EXPECT_EQ(Ask(host, "U:010000020CF1", 17), "U:010000020CF1.\r\n");
            EXPECT_EQ(line.WithDevice([&] { return loader.ObeyedRecords().size(); }), hosts);
        }
    }
    EXPECT_FALSE(OpenNow(path));
}

TEST(PseudoTerminalLine, HangsUpAndComesBack) {
    Loader loader;
    FaultyDevice device(loader, 1);
    device.Inject({FaultKind::HangUp, 2, true});
    PseudoTerminalLine line(device);
    const UniqueFd host = OpenWhenThere(line.DevicePath());
    EXPECT_EQ(Ask(host, "U", 1), "U");
    EXPECT_EQ(Ask(host, "U", 1), "");
    EXPECT_TRUE(Poll(host) & POLLHUP);
    EXPECT_FALSE(OpenNow(line.DevicePath()));

    line.WithDevice([&] { device.ClearFaults(); });
    EXPECT_EQ(Ask(OpenWhenThere(line.DevicePath()), "U", 1), "U");
}

}  // namespace
}  // namespace keplin::simulator
