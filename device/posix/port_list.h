// Which serial ports this computer has.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace keplin {

// The device paths of the ports: USB adapters (ttyUSB*), then modem-like devices (ttyACM*), then
// the ports of the board (ttyS*) that have hardware behind them; each kind in the order of its
// numbers. Port n is the n-th of them, counted from 1. Folders that are absent or closed to this
// user hold no ports.
std::vector<std::string> ComputerPorts(
    const std::filesystem::path& deviceFolder = "/dev",
    const std::filesystem::path& ttyClassFolder = "/sys/class/tty");

}  // namespace keplin
