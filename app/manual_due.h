// What a press on F1 comes to.
#pragma once

#include <chrono>
#include <utility>

namespace keplin {

// Whether the manual is to be opened at this press. A browser takes its time to come, and the key
// is pressed again, or held down: one manual is enough.
inline bool IsManualDue() {
    using std::chrono::steady_clock;
    static steady_clock::time_point patientUntil;
    const auto now = steady_clock::now();
    return std::exchange(patientUntil, now + std::chrono::seconds(3)) < now;
}

}  // namespace keplin
