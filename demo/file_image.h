// What the controller's memory has to hold after an update.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace keplin {

// The 64 KiB that the data records of the file describe, up to its first empty line, with FF in all
// other cells. Empty when the file cannot be read or a record lies outside the memory.
std::vector<std::uint8_t> ImageOfFile(const std::string& path);

}  // namespace keplin
