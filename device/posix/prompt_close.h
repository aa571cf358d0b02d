// Closing a serial line without waiting for a device that takes no bytes.
#pragma once

#include "platform/posix/unique_fd.h"

namespace keplin {

// Closes the descriptor and drops what has not left by then. A USB driver waits in the closing,
// half a minute by its default, until the adapter has taken all bytes, and no flush makes it forget
// them; here that wait ends after 0.1 s. For the length of the call SIGALRM is this function's.
void ClosePromptly(UniqueFd line) noexcept;

}  // namespace keplin
