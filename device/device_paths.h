// Which devices of the computer are its serial ports.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace keplin {

// The paths of the devices behind ports 1, 2, 3 and so on as they are at the moment of asking; an
// empty path where there is no such port. May name more ports than a search tries.
using DevicePaths = std::function<std::vector<std::string>()>;

}  // namespace keplin
