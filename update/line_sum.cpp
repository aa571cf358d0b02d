#include "update/line_sum.h"

#include <array>

#include "platform/int16.h"

namespace keplin {
namespace {

// The part of the text that starts at a position counted from 1; shorter, or empty, where the text
// ends earlier.
std::string_view Mid(std::string_view text, std::size_t position, std::size_t length) {
    return position > text.size() ? std::string_view{} : text.substr(position - 1, length);
}

constexpr std::size_t kCountPosition = 2;
constexpr std::size_t kDataPosition = 10;  // behind the colon, the count, the address and the type

// The value of a character as a digit; 0 for one that is none. Without a branch or a table, so that
// the compiler takes many characters at once.
constexpr std::uint8_t DigitValue(char character) {
    const auto numeral = static_cast<std::uint8_t>(character - '0');
    const auto letter = static_cast<std::uint8_t>(character - 'A');
    return static_cast<std::uint8_t>((-(numeral < 10) & numeral) | (-(letter < 6) & (letter + 10)));
}

// A line's digits in rows of 32, summed column by column: all digits of a column weigh the same.
constexpr std::size_t kColumns = 32;
using Columns = std::array<std::uint8_t, kColumns>;
constexpr std::size_t kMostRows = std::size_t{2} * 255 / kColumns + 1;
static_assert(kMostRows * 0xF <= 255, "a column's sum is a byte");

void AddRow(const char* row, Columns& sums) {
    for (std::size_t i = 0; i < kColumns; ++i)
        sums[i] = static_cast<std::uint8_t>(sums[i] + DigitValue(row[i]));
}

// The sum of up to 255 bytes, two digits each; a digit that the last one lacks counts 0.
std::int32_t SumOfBytes(std::string_view digits) {
    Columns sums{};
    for (; digits.size() >= kColumns; digits.remove_prefix(kColumns))
        AddRow(digits.data(), sums);
    if (!digits.empty()) {
        std::array<char, kColumns> lastRow{};
        digits.copy(lastRow.data(), kColumns);
        AddRow(lastRow.data(), sums);
    }
    std::int32_t sum = 0;
    for (std::size_t i = 0; i < kColumns; i += 2)
        sum += 16 * sums[i] + sums[i + 1];
    return sum;
}

}  // namespace

std::int16_t LineDataSum(std::string_view line) {
    if (!line.starts_with(':')) return -1;
    const std::int16_t count = HexByteValue(Mid(line, kCountPosition, 2));
    return ToInt16(SumOfBytes(Mid(line, kDataPosition, 2 * static_cast<std::size_t>(count))));
}

std::int16_t HexByteValue(std::string_view text) {
    return static_cast<std::int16_t>(16 * HexDigitValue(Mid(text, 1, 1)) +
                                     HexDigitValue(Mid(text, 2, 1)));
}

std::int16_t HexDigitValue(std::string_view text) {
    return static_cast<std::int16_t>(text.size() == 1 ? DigitValue(text.front()) : 0);
}

}  // namespace keplin
