// The key that opens the manual.
#pragma once

namespace keplin {

// Opens the manual that stands beside the program, in the system's browser, without waiting for it;
// where either is missing, nothing happens.
void OpenManual();

}  // namespace keplin
