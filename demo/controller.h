// The simulated controller of the demonstration, plugged in as port 1 or 2. The other one opens and
// is silent; ports 3 and 4 do not exist.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "simulator/faulty_device.h"
#include "simulator/loader.h"
#include "simulator/posix/pseudo_terminal_line.h"

namespace keplin {

class DemoController {
  public:
    using Memory = std::vector<std::uint8_t>;

    // Throws std::system_error when the system has no pseudo-terminal for it.
    DemoController(std::int32_t port, const std::vector<simulator::FaultAt>& faults);

    // The devices behind ports 1 and 2.
    [[nodiscard]] std::vector<std::string> DevicePaths() const;

    // The 64 KiB of the program memory as they are now.
    Memory ReadMemory();

  private:
    const std::int32_t port_;
    simulator::SilentDevice nobody_;
    simulator::Loader loader_;
    simulator::FaultyDevice controller_;
    simulator::PseudoTerminalLine silentLine_;
    simulator::PseudoTerminalLine line_;
};

}  // namespace keplin
