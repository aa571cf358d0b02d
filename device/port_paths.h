// The path of the device behind a port, also after an adapter was unplugged and is back.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "device/device_paths.h"

namespace keplin {

class PortPaths {
  public:
    explicit PortPaths(DevicePaths paths) : paths_(std::move(paths)) {}

    // The path of this port as it is now, counted from 1; empty where there is no such port.
    const std::string& Choose(std::int32_t port);

    // The path chosen last as long as it is there, else that of a port that has come since: an
    // adapter may come back under another name. A port that stood beside it then is another device.
    const std::string& FindAgain();

  private:
    const DevicePaths paths_;
    std::string chosen_;
    std::vector<std::string> others_;  // the paths of all other ports as it was chosen
};

}  // namespace keplin
