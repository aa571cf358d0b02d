// What a press on F1 comes to.
#pragma once

#include <chrono>

namespace keplin {

// Whether the manual is to be opened at this press, which it then is. A browser takes its time to
// come, and the key is pressed again: one manual in three seconds is enough.
inline bool IsManualDue() {
    using std::chrono::steady_clock;
    static steady_clock::time_point patientUntil;
    const auto now = steady_clock::now();
    if (now < patientUntil) return false;
    patientUntil = now + std::chrono::seconds(3);
    return true;
}

}  // namespace keplin
