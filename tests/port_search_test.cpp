#include "device/port_search.h"

#include <gtest/gtest.h>

#include "tests/support/data.h"
#include "tests/support/scripted_port.h"
#include "tests/support/virtual_desktop.h"

namespace keplin::test {
namespace {

struct PortSearches : testing::Test, VirtualScreen {
    ScriptedPort port{time, &trace};
    DeviceExchange controller{port, desktop};
    PortSearch search{window, port, controller, desktop};
    Observation observing{window, trace};

    ScriptedPort& ExpectOpen(int number, int status) {
        port.Expect("LineSpeed 38400").Expect("Setting3 0");
        return port.Expect("PortNumber " + std::to_string(number)).Expect("Open", status);
    }
    void ExpectPing(int answer) {
        port.ExpectDiscardStep().ExpectDiscardStep();
        port.Expect("WriteByte 85").Expect("ReadByte", answer);
    }
};

TEST_F(PortSearches, FindsTheControllerOnPortThreeAndLeavesItOpen) {
    port.Expect("DiscardInput");
    ExpectOpen(1, 0);
    ExpectOpen(2, 7);
    ExpectPing(-1);
    port.Expect("Close", 0);
    ExpectOpen(3, 7);
    ExpectPing(0x55);

    EXPECT_EQ(search.FindDevicePort(), 3);
    EXPECT_EQ(search.PortStatus, 7);
    EXPECT_EQ(trace.Take(), Data("port-search.trace"));
}

TEST_F(PortSearches, ASearchThatFindsNothingClosesWhatItOpened) {
    port.Fail("DiscardInput");
    for (int number = 1; number <= 4; ++number) {
        ExpectOpen(number, 1);
        ExpectPing('x');
        port.Expect("Close", -1);
    }
    EXPECT_EQ(search.FindDevicePort(), kNoPort);
    EXPECT_EQ(search.PortStatus, -1);
}

TEST_F(PortSearches, OpeningFailsAtTheFirstStepThatFails) {
    port.Fail("LineSpeed 38400");
    EXPECT_FALSE(search.OpenPort(1));
    port.Expect("LineSpeed 38400").Expect("Setting3 0").Fail("PortNumber 2");
    EXPECT_FALSE(search.OpenPort(2));
    for (const int notOpen : {0, -1, 32768, -32769, 65537}) {
        search.PortStatus = 0;
        ExpectOpen(3, notOpen);
        EXPECT_FALSE(search.OpenPort(3)) << notOpen;
        EXPECT_LE(search.PortStatus, 0);
    }
    ExpectOpen(4, -2);  // no success that anybody could close, but not a failure either
    EXPECT_TRUE(search.OpenPort(4));
    search.ClosePort();
}

TEST_F(PortSearches, ACloseThatFailsKeepsTheStatus) {
    search.PortStatus = 5;
    port.Fail("Close").Expect("Close", 65536);
    search.ClosePort();
    search.ClosePort();
    EXPECT_EQ(search.PortStatus, 5);
    port.Expect("Close", 0);
    search.ClosePort();
    search.ClosePort();
    EXPECT_EQ(search.PortStatus, 0);
}

}  // namespace
}  // namespace keplin::test
