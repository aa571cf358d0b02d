// What a screen reader is told beyond what the system's controls tell by themselves.
#pragma once

#include <windows.h>

#include <string>

namespace keplin::win32 {

// Somebody listens.
bool IsHeard();

// The control's accessible description from now on; "" takes it away.
void Describe(HWND control, const std::string& text);

// Has the text spoken now, as news of that control.
void Announce(HWND control, const std::string& text);

}  // namespace keplin::win32
