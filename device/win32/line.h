// Opening and closing a COM port without waiting for a device that is stuck.
#pragma once

#include <windows.h>

#include <string>

#include "platform/win32/owned.h"

namespace keplin {

using UniqueHandle = Owned<HANDLE, CloseHandle>;

// The port of that name ("COM5") at 38400 bit/s, eight data bits, no parity, one stop bit, no flow
// control, DTR and RTS on, and nothing received yet. Its reads return at once, its writes after
// 500 ms at most. None when it is not there, held by another program, does not take these settings
// or has not opened after 2 s: the port of a radio may look that long for its far end.
UniqueHandle OpenLine(const std::string& name);

// Drops what was written and has not left yet. Takes 0.5 s at most: a driver that waits for longer
// closes behind the program's back.
void ClosePromptly(UniqueHandle line) noexcept;

}  // namespace keplin
