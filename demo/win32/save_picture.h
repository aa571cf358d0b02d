// Pictures of a window.
#pragma once

#include <windows.h>

#include <string>

namespace keplin {

// Saves what stands inside the window as a PNG file. False when that could not be done.
bool SavePicture(HWND window, const std::string& path);

}  // namespace keplin
