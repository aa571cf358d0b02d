#include "simulator/flash.h"

#include <algorithm>

namespace keplin::simulator {

Flash::Flash() {
    cells_.fill(kErased);
    for (std::size_t address = 0; address < kOldEnd; ++address) {
        cells_[address] = static_cast<std::uint8_t>((address ^ (address >> 8)) & 0x7F);
    }
}

void Flash::Erase(Block block) {
    std::ranges::fill(std::span(cells_).subspan(block.first, block.size), kErased);
}

void Flash::EraseFirstHalf(Block block) {
    Erase({block.first, block.size / 2});
}

bool Flash::Write(std::size_t address, std::span<const std::uint8_t> data) {
    const auto cells = std::span(cells_).subspan(address, data.size());
    if (!std::ranges::all_of(cells, [](std::uint8_t cell) { return cell == kErased; })) {
        return false;
    }
    std::ranges::copy(data, cells.begin());
    return true;
}

}  // namespace keplin::simulator
