// The controller's program memory: 64 KiB of cells that can be written only once after an erase.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace keplin::simulator {

// Cells that are erased together.
struct Block {
    std::size_t first = 0;  // address of the first cell
    std::size_t size = 0;   // number of cells
    friend bool operator==(const Block&, const Block&) = default;
};

inline constexpr std::array<Block, 5> kBlocks{{
    {0x0000, 0x2000},
    {0x2000, 0x2000},
    {0x4000, 0x4000},
    {0x8000, 0x4000},
    {0xC000, 0x4000},
}};

class Flash {
  public:
    static constexpr std::size_t kSize = 0x10000;   // cells, one byte each
    static constexpr std::uint8_t kErased = 0xFF;   // what an erased cell reads as
    static constexpr std::size_t kOldEnd = 0x8000;  // the old program fills the cells below

    // Holds an old program in blocks 1 to 3, always the same one and no cell of it erased; blank
    // above.
    Flash();

    [[nodiscard]] std::span<const std::uint8_t, kSize> Cells() const { return cells_; }

    void Erase(Block block);
    // What an erase leaves that was cut short: the lower half of the block erased, the rest as is.
    void EraseFirstHalf(Block block);

    // Writes `data` from `address` on, within the memory. False when one of the cells is not
    // erased; then nothing was written.
    bool Write(std::size_t address, std::span<const std::uint8_t> data);

  private:
    std::array<std::uint8_t, kSize> cells_;
};

}  // namespace keplin::simulator
