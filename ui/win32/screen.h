// The screen that a window is on, and what the technician has set for it.
#pragma once

#include <windows.h>

#include "ui/controls.h"
#include "ui/rect.h"

namespace keplin::win32 {

// The part of the screen that windows may take.
PixelRect WorkAreaOf(HWND window);

// The dots per inch of the screen, as the system tells them.
UINT ScreenDotsOf(HWND window);

// How much larger than usual the technician has set texts; 1 is usual.
double TextSize();

}  // namespace keplin::win32
