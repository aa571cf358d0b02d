#include "demo/file_image.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "platform/path.h"
#include "update/line_reader.h"

namespace keplin {
namespace {

constexpr std::size_t kMemorySize = 0x10000;
constexpr std::size_t kDataPosition = 9;  // of the first data digit in a record
constexpr std::size_t kDataType = 0;

std::size_t Number(const std::string& record, std::size_t position, std::size_t digits) {
    return std::stoul(record.substr(position, digits), nullptr, 16);
}

void Place(const std::string& record, std::vector<std::uint8_t>& image) {
    if (!record.starts_with(':') || Number(record, 7, 2) != kDataType) return;
    const std::size_t count = Number(record, 1, 2);
    const std::size_t address = Number(record, 3, 4);
    for (std::size_t i = 0; i < count; ++i) {
        image.at(address + i) = static_cast<std::uint8_t>(Number(record, kDataPosition + 2 * i, 2));
    }
}

}  // namespace

std::vector<std::uint8_t> ImageOfFile(const std::string& path) try {
    std::vector<std::uint8_t> image(kMemorySize, 0xFF);
    std::ifstream file(ToPath(path), std::ios::binary);
    LineReader reader(file);
    while (!reader.AtEnd()) {
        Place(std::string(reader.ReadLine()), image);
    }
    return image;
} catch (const std::exception&) {
    return {};
}

}  // namespace keplin
