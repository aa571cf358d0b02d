// Numbers that come in 32 bits and that the program keeps in 16.
#pragma once

#include <cstdint>
#include <limits>
#include <stdexcept>

namespace keplin {

// The same number in 16 bits. Throws std::overflow_error when it does not fit.
inline std::int16_t ToInt16(std::int32_t value) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (value < Limits::min() || value > Limits::max()) throw std::overflow_error("16 bits");
    return static_cast<std::int16_t>(value);
}

}  // namespace keplin
