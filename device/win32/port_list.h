// Which serial ports this computer has.
#pragma once

#include <string>
#include <vector>

namespace keplin {

// The names of the COM ports that the system lists as serial devices, as ByPortNumber orders them.
std::vector<std::string> ComputerPorts();

}  // namespace keplin
