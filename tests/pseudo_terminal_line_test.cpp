// The line between a host and a simulated controller, through real pseudo-terminals.
#include "simulator/posix/pseudo_terminal_line.h"

#include <gtest/gtest.h>

#include "simulator/faulty_device.h"
#include "simulator/loader.h"
#include "tests/support/pseudo_terminal.h"

namespace keplin::simulator {
namespace {

using namespace test;

const std::string kRecord = ":010000020CF1";

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
            Send(host, "U" + kRecord);
            EXPECT_EQ(Receive(host, 17), "U" + kRecord + ".\r\n");
            EXPECT_EQ(line.WithDevice([&] { return loader.ObeyedRecords().size(); }), hosts);
        }
    }
    EXPECT_FALSE(OpenLine(path));
}

TEST(PseudoTerminalLine, HangsUpAndComesBack) {
    Loader loader;
    FaultyDevice device(loader, 1);
    device.Inject({FaultKind::HangUp, 2, true});
    PseudoTerminalLine line(device);
    const UniqueFd host = OpenWhenThere(line.DevicePath());
    Send(host, "U");
    EXPECT_EQ(Receive(host, 1), "U");
    Send(host, "U");
    EXPECT_EQ(Receive(host, 1), "");
    pollfd state{host.Get(), POLLIN, 0};
    EXPECT_EQ(::poll(&state, 1, 5000), 1);
    EXPECT_TRUE(state.revents & POLLHUP);
    EXPECT_FALSE(OpenLine(line.DevicePath()));

    line.WithDevice([&] { device.ClearFaults(); });
    const UniqueFd again = OpenWhenThere(line.DevicePath());
    Send(again, "U");
    EXPECT_EQ(Receive(again, 1), "U");
}

}  // namespace
}  // namespace keplin::simulator
