#include "update/line_sum.h"

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

}  // namespace

std::int16_t LineDataSum(std::string_view line) {
    if (!line.starts_with(':')) return -1;
    const std::int16_t count = HexByteValue(Mid(line, kCountPosition, 2));
    std::int16_t sum = 0;
    for (std::int16_t i = 0; i < count; ++i) {
        const std::size_t position = kDataPosition + 2 * static_cast<std::size_t>(i);
        sum = ToInt16(sum + HexByteValue(Mid(line, position, 2)));
    }
    return sum;
}

std::int16_t HexByteValue(std::string_view text) {
    return static_cast<std::int16_t>(16 * HexDigitValue(Mid(text, 1, 1)) +
                                     HexDigitValue(Mid(text, 2, 1)));
}

std::int16_t HexDigitValue(std::string_view text) {
    if (text.size() != 1) return 0;
    const char digit = text.front();
    if (digit >= '0' && digit <= '9') return static_cast<std::int16_t>(digit - '0');
    if (digit >= 'A' && digit <= 'F') return static_cast<std::int16_t>(digit - 'A' + 10);
    return 0;
}

}  // namespace keplin
