// The simulated controller of the demonstration, plugged in as port 2. Port 1 opens and is silent;
// ports 3 and 4 do not exist.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "simulator/faulty_device.h"
#include "simulator/loader.h"
#include "simulator/pseudo_terminal_line.h"

namespace keplin {

class DemoController {
  public:
    using Memory = std::vector<std::uint8_t>;

    // Throws std::system_error when the system has no pseudo-terminal for it.
    explicit DemoController(const std::vector<simulator::FaultAt>& faults);

    // The device behind a port number; empty where there is none.
    [[nodiscard]] std::string DevicePath(std::int32_t port) const;

    // The 64 KiB of the program memory as they are now.
    Memory ReadMemory();

  private:
    simulator::SilentDevice nobody_;
    simulator::Loader loader_;
    simulator::FaultyDevice controller_;
    simulator::PseudoTerminalLine port1_;
    simulator::PseudoTerminalLine port2_;
};

}  // namespace keplin
