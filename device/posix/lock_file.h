// The lock files by which terminal programs keep each other off a serial port.
#pragma once

#include <filesystem>
#include <string>

namespace keplin {

// Whether a running process has left a lock file for the device, LCK..NAME in `lockFolder`. A file
// whose process is gone, or that names none, locks nothing.
bool IsLockedByProcess(const std::string& devicePath, const std::filesystem::path& lockFolder);

}  // namespace keplin
