// What the controller's memory has to hold after an update.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace keplin {

// The 64 KiB that all data records of the file describe, with FF in all other cells. An update that
// an empty line ends leaves less in the memory. Empty when the file cannot be read or a record lies
// outside the memory.
std::vector<std::uint8_t> ImageOfFile(const std::string& path);

}  // namespace keplin
