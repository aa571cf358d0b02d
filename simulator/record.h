// Device records: found in a stream of bytes, and taken apart.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "simulator/flash.h"

namespace keplin::simulator {

inline constexpr std::uint8_t kPing = 0x55;

// What a byte turned out to be.
enum class Heard {
    Other,     // outside a record, and no ping
    Ping,      // outside a record
    Begun,     // the colon that opens a record
    Inside,    // a digit within a record
    Complete,  // the last digit of a record
    Broken,    // no hexadecimal digit where one was due; the record is over and the byte is spent
};

// Finds the records in a stream of bytes: a colon, then as many pairs of hexadecimal digits, upper
// or lower case, as the byte count in the first pair asks for.
class RecordFrame {
  public:
    Heard Take(std::uint8_t byte);

    // The characters of the record under way, or of the one that the last byte ended.
    [[nodiscard]] std::string_view Text() const { return text_; }

    // Forgets the record under way.
    void Reset();

  private:
    Heard TakeOutside(std::uint8_t byte);

    std::string text_;
    std::size_t length_ = 0;  // of the whole record, in characters
    bool underWay_ = false;
};

// A record taken apart. `text` must be one that a RecordFrame found complete.
class Record {
  public:
    explicit Record(std::string_view text);

    [[nodiscard]] std::size_t Address() const;
    [[nodiscard]] std::uint8_t Type() const { return bytes_[3]; }
    [[nodiscard]] std::span<const std::uint8_t> Data() const;
    // All bytes, the checksum with them, add up to 0 modulo 256.
    [[nodiscard]] bool ChecksumRight() const;

    static constexpr std::uint8_t kErase = 3;

  private:
    static constexpr std::size_t kHeaderBytes = 4;  // count, address, type
    static constexpr std::size_t kMostBytes = kHeaderBytes + 255 + 1;

    std::array<std::uint8_t, kMostBytes> bytes_{};
};

// The block that an erase record names; nothing when the record is no erase of a known block.
std::optional<Block> BlockToErase(const Record& record);

}  // namespace keplin::simulator
