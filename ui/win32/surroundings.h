// What the window asks of the screen that it is on, as the technician has set it.
#pragma once

#include <windows.h>

#include "ui/rect.h"

namespace keplin::win32 {

// The part of the screen that windows may take.
PixelRect WorkAreaOf(HWND window);

// The dots per inch of the screen, as the system tells them.
UINT ScreenDotsOf(HWND window);

// How much larger than usual the technician has set texts; 1 is usual.
double TextSize();

}  // namespace keplin::win32
