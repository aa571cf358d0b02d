#include "update/line_sum.h"

#include <array>

#include "device/int16.h"

namespace keplin {
namespace {

// The part of the text that starts at a position counted from 1; shorter, or empty, where the text
// ends earlier.
std::string_view Mid(std::string_view text, std::size_t position, std::size_t length) {
    return position > text.size() ? std::string_view{} : text.substr(position - 1, length);
}

constexpr std::size_t kCountPosition = 2;
constexpr std::size_t kDataPosition = 10;  // behind the colon, the count, the address and the type

constexpr std::array<std::uint8_t, 256> ValuesOfCharacters() {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::array<std::uint8_t, 256> values{};
    for (std::size_t value = 0; value < kDigits.size(); ++value)
        values[static_cast<std::uint8_t>(kDigits[value])] = static_cast<std::uint8_t>(value);
    return values;
}

// The value of a character as a digit; 0 for one that is none.
std::int32_t DigitValue(char character) {
    static constexpr auto kValues = ValuesOfCharacters();
    return kValues[static_cast<std::uint8_t>(character)];
}

}  // namespace

std::int16_t LineDataSum(std::string_view line) {
    if (!line.starts_with(':')) return -1;
    const std::int16_t count = HexByteValue(Mid(line, kCountPosition, 2));
    const std::string_view digits = Mid(line, kDataPosition, 2 * static_cast<std::size_t>(count));
    const std::size_t pairs = digits.size() / 2;
    std::int32_t sum = 0;
    for (std::size_t i = 0; i < pairs; ++i)
        sum += 16 * DigitValue(digits[2 * i]) + DigitValue(digits[2 * i + 1]);
    return ToInt16(sum + HexByteValue(digits.substr(2 * pairs)));
}

std::int16_t HexByteValue(std::string_view text) {
    return static_cast<std::int16_t>(16 * HexDigitValue(Mid(text, 1, 1)) +
                                     HexDigitValue(Mid(text, 2, 1)));
}

std::int16_t HexDigitValue(std::string_view text) {
    return static_cast<std::int16_t>(text.size() == 1 ? DigitValue(text.front()) : 0);
}

}  // namespace keplin
