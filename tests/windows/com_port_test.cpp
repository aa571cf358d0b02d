// The serial adapter of Windows on COM ports whose far ends keplin-far-ends holds: nobody on COM1,
// the controller on COM2, an echo on COM3, and on COM4 somebody who takes nothing.
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <string>
#include <thread>

#include "device/win32/port_list.h"
#include "device/win32/win32_port.h"

namespace keplin::test {
namespace {

using namespace std::chrono_literals;

struct ComPort : testing::Test {
    bool Open(std::int32_t number, std::int32_t speed = 38400) {
        port.LineSpeed(speed);
        port.PortNumber(number);
        return port.Open() > 0;
    }

    // What comes until so many bytes are there or the line is lost.
    std::string Read(std::size_t count) {
        std::string bytes;
        for (int waits = 0; bytes.size() < count && waits < 1000 && !port.LineLost();) {
            const auto byte = port.ReadByte();
            if (byte >= 0) {
                bytes += static_cast<char>(byte);
            } else {
                EXPECT_TRUE(port.TakeWait() || port.LineLost());
                EXPECT_FALSE(port.TakeWait()) << "one wait for each read";
                std::this_thread::sleep_for(2ms);
                ++waits;
            }
        }
        return bytes;
    }

    Win32Port port{[] { return std::vector<std::string>{"COM1", "", "COM3", "COM4", "COM77"}; }};
};

TEST_F(ComPort, IsOpenOnlyWhereThereIsOneAtTheLoadersSettings) {
    auto listed = ComputerPorts();
    listed.resize(4);
    EXPECT_EQ(listed, (std::vector<std::string>{"COM1", "COM2", "COM3", "COM4"}));
    EXPECT_FALSE(Open(2)) << "no such port";
    EXPECT_FALSE(Open(5)) << "no such device";
    EXPECT_FALSE(Open(3, 9600));
    EXPECT_EQ(port.ReadByte(), -1);
    EXPECT_FALSE(port.TakeWait());
    EXPECT_THROW(port.WriteByte(0x55), PortError);

    const auto device = [] {
        return Own(CreateFileW(L"\\\\.\\COM3", GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                               OPEN_EXISTING, 0, nullptr));
    };
    DCB settings{};
    settings.DCBlength = sizeof settings;
    ASSERT_TRUE(BuildCommDCBW(L"baud=9600 parity=E data=7 stop=2 xon=on octs=on", &settings));
    ASSERT_TRUE(SetCommState(device().get(), &settings));
    ASSERT_TRUE(Open(3));
    ASSERT_TRUE(GetCommState(device().get(), &settings));
    EXPECT_EQ(settings.BaudRate, DWORD{38400});
    EXPECT_EQ(settings.ByteSize, 8);
    EXPECT_TRUE(settings.Parity == NOPARITY && settings.StopBits == ONESTOPBIT);
    EXPECT_FALSE(settings.fOutX || settings.fInX || settings.fOutxCtsFlow || settings.fParity);
}

TEST_F(ComPort, PassesEveryByteInOrderAndDropsWhatIsDiscarded) {
    ASSERT_TRUE(Open(3));
    std::string bytes;
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    port.WriteText(bytes);
    EXPECT_EQ(Read(256), bytes);

    port.WriteText("stale");
    EXPECT_EQ(Read(1), "s");
    std::this_thread::sleep_for(100ms);
    EXPECT_EQ(port.ReadByte(), 't') << "the rest is in the adapter's buffer";
    EXPECT_FALSE(port.TakeWait()) << "more bytes are waiting";
    port.DiscardInput();
    EXPECT_TRUE(port.TakeWait());
    EXPECT_EQ(port.ReadByte(), -1);
    port.WriteText("late");
    std::this_thread::sleep_for(100ms);
    port.DiscardInput();
    EXPECT_EQ(port.ReadByte(), -1);
    port.WriteText("left");
    std::this_thread::sleep_for(100ms);
    ASSERT_TRUE(Open(3));
    EXPECT_EQ(port.ReadByte(), -1) << "came before the opening";
    port.WriteByte('U');
    EXPECT_EQ(Read(1), "U");
}

TEST_F(ComPort, ALineThatHungUpIsNoticedInEachStepAndOpenedAgainOnlyWhenAskedTo) {
    const std::function<void()> steps[] = {[&] { port.ReadByte(); }, [&] { port.DiscardInput(); },
                                           [&] { port.CheckLine(); }};
    ASSERT_TRUE(Open(3));
    for (const auto& step : steps) {
        SCOPED_TRACE(&step - steps);
        port.WriteText("\4\4");
        std::this_thread::sleep_for(100ms);
        EXPECT_FALSE(port.LineLost());
        step();
        for (int i = 0; i < 10; ++i)
            port.ReadByte();  // what came before
        EXPECT_TRUE(port.LineLost());
        EXPECT_EQ(port.ReadByte(), -1);
        EXPECT_FALSE(port.TakeWait());
        EXPECT_THROW(port.WriteByte(0x55), PortError) << "nothing must go to a new line by itself";
        port.ReopenLostLine();
        EXPECT_FALSE(port.LineLost());
        port.WriteByte(0x55);
        EXPECT_EQ(Read(1), "U");
    }
}

TEST_F(ComPort, AStuckLineEndsTheWriteAndIsClosedPromptly) {
    ASSERT_TRUE(Open(4));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THROW(port.WriteText(std::string(1 << 20, ':')), PortError);
    EXPECT_FALSE(port.LineLost());
    port.Close();
    const auto taken = std::chrono::steady_clock::now() - start;
    EXPECT_GT(taken, 400ms);
    EXPECT_LT(taken, 2s);
}

}  // namespace
}  // namespace keplin::test
