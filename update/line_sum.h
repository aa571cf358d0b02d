// The sum of the data bytes of one line of the update file. Nothing of the line is verified.
#pragma once

#include <cstdint>
#include <string_view>

namespace keplin {

// The sum of as many data bytes as the line's byte count says, 0 to 32767, or -1 for a line that
// does not begin with ":". Digits past the line's end count 0. Throws std::overflow_error when the
// sum passes 32767.
std::int16_t LineDataSum(std::string_view line);

// The value of the first two characters as upper-case hexadecimal digits, 0 to 255; a character
// that is none, or that is missing, counts 0.
std::int16_t HexByteValue(std::string_view text);

// 0 to 15 for a text that is exactly one upper-case hexadecimal digit, 0 for every other text.
std::int16_t HexDigitValue(std::string_view text);

}  // namespace keplin
