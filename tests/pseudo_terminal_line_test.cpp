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

const std::string kRecord = ":010000020CF1";

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

// What the host reads: `count` bytes, or fewer when the line hangs up.
std::string ReadAll(const UniqueFd& host, std::size_t count) {
    std::string text;
    while (text.size() < count) {
        pollfd ready{host.Get(), POLLIN, 0};
        char byte = 0;
        if (::poll(&ready, 1, kPatience) != 1 || ::read(host.Get(), &byte, 1) != 1) break;
        text.push_back(byte);
    }
    return text;
}

void Write(const UniqueFd& host, const std::string& text) {
    EXPECT_EQ(::write(host.Get(), text.data(), text.size()), std::ssize(text));
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
            Write(host, "U" + kRecord);
            EXPECT_EQ(ReadAll(host, 17), "U" + kRecord + ".\r\n");
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
    Write(host, "U");
    EXPECT_EQ(ReadAll(host, 1), "U");
    Write(host, "U");
    EXPECT_EQ(ReadAll(host, 1), "");
    pollfd state{host.Get(), POLLIN, 0};
    EXPECT_EQ(::poll(&state, 1, kPatience), 1);
    EXPECT_TRUE(state.revents & POLLHUP);
    EXPECT_FALSE(OpenNow(line.DevicePath()));

    line.WithDevice([&] { device.ClearFaults(); });
    const UniqueFd again = OpenWhenThere(line.DevicePath());
    Write(again, "U");
    EXPECT_EQ(ReadAll(again, 1), "U");
}

}  // namespace
}  // namespace keplin::simulator
