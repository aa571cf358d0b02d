// keplin-far-ends MEMORY [FAULT]...: what stands at the far ends of the ports of the tests under
// Wine. Prints the devices of these four ports, one a line. At the end of its input it writes the
// 64 KiB of the controller's memory to that file, unless the controller was left alone. Its faults
// are named as those of keplin-demo: hang-up@60.
#include <fstream>
#include <iostream>
#include <limits>
#include <span>

#include "simulator/faulty_device.h"
#include "simulator/posix/pseudo_terminal_line.h"
#include "tests/support/pseudo_terminal.h"

namespace keplin {
namespace {

// Sends each byte back. Two bytes 04 one after the other make it hang up and come back.
class Echo final : public simulator::DeviceEnd {
  public:
    void Receive(std::uint8_t byte, std::vector<simulator::SentByte>& answer) override {
        hungUp_ = byte == 4 && last_ == 4;
        last_ = byte;
        answer.push_back({byte});
    }
    [[nodiscard]] bool HungUp() const override { return hungUp_; }
    void LineClosed() override { hungUp_ = false; }

  private:
    std::uint8_t last_ = 0;
    bool hungUp_ = false;
};

}  // namespace
}  // namespace keplin

int main(int argc, char** argv) try {
    using namespace keplin;
    if (argc < 2) return 2;
    simulator::SilentDevice nobody;
    simulator::Loader loader;
    simulator::FaultyDevice faulty(loader, 1);
    for (const char* fault : std::span(argv, static_cast<std::size_t>(argc)).subspan(2))
        faulty.Inject(simulator::ParseFault(fault).value());
    Echo echo;
    simulator::PseudoTerminalLine silent(nobody);
    simulator::PseudoTerminalLine controller(faulty);
    simulator::PseudoTerminalLine echoing(echo);
    const test::PseudoTerminal stuck;
    std::cout << silent.DevicePath() << "\n"
              << controller.DevicePath() << "\n"
              << echoing.DevicePath() << "\n"
              << stuck.Path() << std::endl;
    std::cin.ignore(std::numeric_limits<std::streamsize>::max());
    return controller.WithDevice([&] {
        if (loader.ObeyedRecords().empty()) return 0;
        std::ofstream file(argv[1], std::ios::binary);
        for (const std::uint8_t cell : loader.Memory().Cells())
            file.put(static_cast<char>(cell));
        return file.flush() ? 0 : 1;
    });
} catch (const std::exception& error) {
    std::cerr << "keplin-far-ends: " << error.what() << "\n";
    return 2;
}
