// keplin-far-ends FILE: what stands at the far ends of the ports of the tests under Wine. Prints
// the devices of these four ports, one a line, and at the end of its input leaves with exit code 0
// when the controller was left alone or its memory is what the file describes.
#include <algorithm>
#include <iostream>
#include <limits>

#include "demo/file_image.h"
#include "simulator/loader.h"
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
    if (argc != 2) return 2;
    simulator::SilentDevice nobody;
    simulator::Loader loader;
    Echo echo;
    simulator::PseudoTerminalLine silent(nobody);
    simulator::PseudoTerminalLine controller(loader);
    simulator::PseudoTerminalLine echoing(echo);
    const test::PseudoTerminal stuck;
    std::cout << silent.DevicePath() << "\n"
              << controller.DevicePath() << "\n"
              << echoing.DevicePath() << "\n"
              << stuck.Path() << std::endl;
    std::cin.ignore(std::numeric_limits<std::streamsize>::max());
    return controller.WithDevice([&] {
        const bool leftAlone = loader.ObeyedRecords().empty();
        const auto cells = loader.Memory().Cells();
        return leftAlone || std::ranges::equal(cells, ImageOfFile(argv[1])) ? 0 : 1;
    });
} catch (const std::exception& error) {
    std::cerr << "keplin-far-ends: " << error.what() << "\n";
    return 2;
}
