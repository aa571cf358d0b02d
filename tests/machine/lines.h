// The serial lines of the virtual machine: how their adapters are plugged in, and the simulated
// controller at a line's far end.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <thread>

#include "demo/file_image.h"
#include "simulator/loader.h"
#include "simulator/wire.h"
#include "tests/support/pseudo_terminal.h"

namespace keplin::test {

using namespace std::chrono_literals;

// A raw line at 38400 bit/s, open beside whoever else has it: root is not kept out.
inline UniqueFd OpenRaw(const std::string& path) {
    UniqueFd line = OpenLine(path);
    termios settings{};
    EXPECT_EQ(tcgetattr(line.Get(), &settings), 0) << path;
    cfmakeraw(&settings);
    settings.c_cflag |= CLOCAL;
    cfsetspeed(&settings, B38400);
    tcsetattr(line.Get(), TCSANOW, &settings);
    return line;
}

// Whether that is so before five seconds are over.
template <typename Condition>
bool Soon(Condition&& condition) {
    const auto end = std::chrono::steady_clock::now() + 5s;
    while (!condition() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(5ms);
    return condition();
}

// Takes the adapter of the line to ttyS2 out of its socket, or puts it back.
inline void PlugIn(bool in) {
    std::ofstream("/sys/bus/usb/devices/1-1/authorized") << in;
}

// An adapter whose far end, ttyGS0, is in this machine too: a modem (ttyACM0), or an FT232
// (ttyUSB1) whose far end writes the two bytes of its state ahead of each packet. It takes no bytes
// until that end is open. A device that the machine has anyway it leaves alone.
class Gadget {
  public:
    explicit Gadget(const std::string& device)
        : device_(device), made_(!std::filesystem::exists(device)) {
        const bool modem = device == "/dev/ttyACM0";
        if (made_) Run("insmod /run/g_serial.ko" + std::string(modem ? "" : kFt232));
        EXPECT_TRUE(OpenWhenThere(device));
    }
    ~Gadget() {
        if (!made_) return;
        Run("rmmod g_serial");
        EXPECT_TRUE(Soon([this] { return !std::filesystem::exists(device_); }));
    }
    Gadget(const Gadget&) = delete;
    Gadget& operator=(const Gadget&) = delete;

  private:
    static constexpr const char* kFt232 =
        " use_acm=0 idVendor=0x0403 idProduct=0x6001 bcdDevice=0x0400";

    static void Run(const std::string& command) { EXPECT_EQ(std::system(command.c_str()), 0); }

    const std::string device_;
    const bool made_;
};

// A controller on a line, at the line's pace.
class Controller {
  public:
    explicit Controller(const std::string& farEnd) : line_(OpenRaw(farEnd)) {}

    void Leave() { thread_ = std::jthread(); }

    // Leaves the line: its memory is what the file describes.
    void ExpectToHold(const std::string& file) {
        Leave();
        EXPECT_TRUE(std::ranges::equal(loader_.Memory().Cells(), ImageOfFile(file)));
    }

  private:
    void Run(const std::stop_token& leaving) {
        std::array<std::uint8_t, 512> heard{};
        std::vector<std::uint8_t> said;
        while (!leaving.stop_requested()) {
            pollfd waiting{.fd = line_.Get(), .events = POLLIN, .revents = 0};
            ::poll(&waiting, 1, wire_.NextEvent() ? 1 : 20);
            const auto now = std::chrono::steady_clock::now().time_since_epoch();
            const auto count = ::read(line_.Get(), heard.data(), heard.size());
            if (count > 0) wire_.HostSends({heard.data(), static_cast<std::size_t>(count)}, now);
            wire_.Advance(now);
            wire_.TakeArrived(said);
            [[maybe_unused]] const auto sent = ::write(line_.Get(), said.data(), said.size());
        }
    }

    simulator::Loader loader_;
    simulator::Wire wire_{loader_};
    const UniqueFd line_;
    std::jthread thread_{[this](const std::stop_token& leaving) { Run(leaving); }};
};

}  // namespace keplin::test
