// The serial adapter on the kernel's own drivers, in the virtual machine: ttyS0 leads to ttyS1, and
// the USB adapter ttyUSB0 to ttyS2.
#include <gtest/gtest.h>
#include <sys/ioctl.h>

#include <tuple>

#include "tests/machine/lines.h"
#include "tests/machine/program.h"
#include "tests/support/open_port.h"
#include "tests/support/rig.h"

namespace keplin::test {
namespace {

TEST(Machine, ListsItsPortsInOrderAndNoPhantoms) {
    ASSERT_TRUE(std::filesystem::exists("/dev/ttyS3")) << "a name without hardware";
    for (const std::string made : {"/dev/ttyACM0", "/dev/ttyUSB1"}) {
        const Gadget gadget(made);
        const std::vector<std::string> ports = {"/dev/ttyUSB0", made, "/dev/ttyS0", "/dev/ttyS1",
                                                "/dev/ttyS2"};
        EXPECT_EQ(ComputerPorts(), ports);
    }
}

TEST(Machine, OpensNoLineThatStaysAtItsOwnSpeed) {
    const Gadget gadget("/dev/ttyACM0");
    PosixPort port(Only("/dev/ttyGS0"));
    EXPECT_EQ(OpenPort(port, 1), 0) << "of 9600 bit/s, whatever it is told";
}

class EachDriver : public testing::TestWithParam<const char*> {
  protected:
    const std::string device_ = std::string("/dev/") + GetParam();
    const Gadget gadget_{device_};
};

TEST_P(EachDriver, KeepsOthersOutUntilClosed) {
    ASSERT_EQ(chmod(device_.c_str(), 0666), 0);
    const UniqueFd stillOpen = OpenRaw(device_);
    PosixPort port(Only(device_));
    ASSERT_GT(OpenPort(port, 1), 0);
    EXPECT_EQ(OpenAnother(device_), 0);
    EXPECT_EQ(OpenAsNobody(device_), 0);
    port.Close();
    EXPECT_GT(OpenAsNobody(device_), 0);
    EXPECT_GT(OpenAnother(device_), 0);
}

// Another program left the line with other settings, and stopped by its far end.
TEST_P(EachDriver, UpdatesWhateverTheLineWasSetTo) {
    const std::string far = device_ == "/dev/ttyS0"     ? "/dev/ttyS1"
                            : device_ == "/dev/ttyUSB0" ? "/dev/ttyS2"
                                                        : "/dev/ttyGS0";
    const UniqueFd farEnd = OpenRaw(far);
    const UniqueFd former = OpenRaw(device_);
    termios settings{};
    tcgetattr(former.Get(), &settings);
    settings.c_iflag |= IXON | IXOFF;
    settings.c_cflag &= ~tcflag_t{CSIZE | CLOCAL};
    settings.c_cflag |= CS7 | PARENB | CSTOPB | CRTSCTS;
    cfsetspeed(&settings, B9600);
    ASSERT_EQ(tcsetattr(former.Get(), TCSANOW, &settings), 0);
    Send(farEnd, "\x13");
    std::this_thread::sleep_for(200ms);

    Controller controller(far);
    const TemporaryFile file(kSmallFile);
    Program program(Only(device_));
    ASSERT_TRUE(program.ReachProgramPage(file.Path()));
    tcgetattr(former.Get(), &settings);
    EXPECT_EQ(cfgetospeed(&settings), speed_t{B38400});
    EXPECT_EQ(settings.c_cflag & (CSIZE | PARENB | CSTOPB | CRTSCTS | CLOCAL | CREAD),
              tcflag_t{CS8 | CLOCAL | CREAD});
    EXPECT_TRUE(program.Update());
    controller.ExpectToHold(file.Path());
}

INSTANTIATE_TEST_SUITE_P(Machine, EachDriver, testing::Values("ttyS0", "ttyUSB0", "ttyACM0"));

int Unsent(const std::string& device) {
    int count = 0;
    ioctl(OpenRaw(device).Get(), TIOCOUTQ, &count);
    return count;
}

TEST(Machine, AStuckAdapterHoldsNobodyUp) {
    for (const std::string device : {"/dev/ttyS0", "/dev/ttyUSB1", "/dev/ttyACM0"}) {
        SCOPED_TRACE(device);
        const Gadget gadget(device);
        std::optional<PosixPort> port(std::in_place, Only(device));
        const std::function<void()> steps[] = {[&] { port->Close(); },
                                               [&] { EXPECT_GT(OpenPort(*port, 1), 0); },
                                               [&] { port.reset(); }};
        for (const auto& step : steps) {
            ASSERT_GT(OpenPort(*port, 1), 0);
            // What lies between two UARTs holds some hundred bytes.
            port->WriteText(std::string(device == "/dev/ttyS0" ? 4000 : 1, 'U'));
            std::this_thread::sleep_for(200ms);
            EXPECT_GT(Unsent(device), 0) << "not stuck";
            const auto start = std::chrono::steady_clock::now();
            step();
            EXPECT_LT(std::chrono::steady_clock::now() - start, 500ms);
        }
    }
    Controller("/dev/ttyS1").Leave();
}

// What an FT232 says of its line.
enum LineState : char { kFine = 0x60, kOverrun = 0x62, kBreak = 0x70 };

TEST(Machine, ALineErrorReadsAsAZeroAndSpoilsOnlyTheReplyItIsIn) {
    const std::string line = ":022000005AA5DF";
    const Gadget gadget("/dev/ttyUSB1");
    const UniqueFd farEnd = OpenRaw("/dev/ttyGS0");
    const auto send = [&](LineState state, const std::string& bytes) {
        Send(farEnd, std::string{'\x01', state} + bytes);
        std::this_thread::sleep_for(20ms);
    };
    Program program(Only("/dev/ttyUSB1"));
    ASSERT_GT(OpenPort(program.port, 1), 0);
    send(kFine, "a\xFF");
    send(kBreak, {'\0'});
    send(kOverrun, "b");
    send(kFine, "c");
    for (const int byte : {int{'a'}, 0xFF, 0, 0, int{'b'}, int{'c'}, -1})
        EXPECT_EQ(program.port.ReadByte(), byte);

    DeviceExchange exchange(program.port, program.desktop);
    for (const auto state : {kBreak, kFine, kOverrun, kFine}) {
        program.desktop.OnSleep = [&](auto) {
            send(kFine, line.substr(0, 5));
            send(state, state == kBreak ? std::string{'\0'} : line.substr(5, 1));
            send(kFine, line.substr(6) + ".\r\n");
        };
        EXPECT_EQ(exchange.SendDataLine(line), state == kFine) << int{state};
    }
}

// Waits for an answer from the press of Update on.
constexpr int kPingAfterErase = 8;
constexpr int kFirstLine = 10;

// Where the adapter is unplugged, and whether it comes back under a new name, as it does while
// anybody has the old one open.
class Replug : public testing::TestWithParam<std::tuple<std::string, bool>> {
  protected:
    void TearDown() override {
        PlugIn(false);
        PlugIn(true);
        EXPECT_TRUE(OpenWhenThere("/dev/ttyUSB0"));
    }
};

TEST_P(Replug, ASecondTryCompletes) {
    const std::string place = std::get<0>(GetParam());
    const bool newName = std::get<1>(GetParam());
    const bool inAPause = place == "InAPause";
    Controller controller("/dev/ttyS2");
    const TemporaryFile file(kSmallFile);
    UniqueFd another;
    Program program;
    ASSERT_TRUE(program.ReachProgramPage(file.Path()));
    if (newName && !inAPause) another = OpenRaw("/dev/ttyUSB0");
    if (place == "AtRest") {
        PlugIn(false);
        EXPECT_TRUE(Soon([&] { return program.desktop.YieldOnce(), program.port.LineLost(); }));
    } else {
        int left = place == "InAPing" ? kPingAfterErase : place == "InARecord" ? kFirstLine : 1;
        program.desktop.OnSleep = [&](auto duration) {
            if (duration != (inAPause ? 2000ms : 50ms) || --left != 0) return;
            PlugIn(false);
            if (inAPause && newName) PlugIn(true);
        };
        EXPECT_FALSE(program.Update());
    }
    PlugIn(true);
    EXPECT_TRUE(OpenWhenThere(newName ? "/dev/ttyUSB1" : "/dev/ttyUSB0"));
    EXPECT_TRUE(program.Update());
    controller.ExpectToHold(file.Path());
}

INSTANTIATE_TEST_SUITE_P(Machine, Replug,
                         testing::Combine(testing::Values("AtRest", "InAPing", "InARecord",
                                                          "InAPause"),
                                          testing::Bool()));

TEST(Machine, AWholeUpdateArrivesAsItIs) {
    const std::string file = "samples/QDX-470-sample.HEX";
    Controller controller("/dev/ttyS2");
    Program program;
    program.desktop.Hurry = 1;
    ASSERT_TRUE(program.ReachProgramPage(file));
    EXPECT_EQ(program.window.lblResults.Caption.Get(), " Port 1 Ready.  Click NEXT to continue.");
    EXPECT_TRUE(program.Update());
    controller.ExpectToHold(file);
}

}  // namespace
}  // namespace keplin::test
