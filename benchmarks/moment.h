// The clock that all processes of a measurement share.
#pragma once

#include <chrono>
#include <cstdint>

namespace keplin::benchmarks {

// Nanoseconds since the computer was started.
using Moment = std::int64_t;

inline Moment Now() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

}  // namespace keplin::benchmarks
