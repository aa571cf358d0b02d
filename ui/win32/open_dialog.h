// The system's open-file dialog.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "platform/desktop.h"

namespace keplin::win32 {

// The full path that the technician chose or typed, whether or not there is such a file. Nothing
// when the dialog was cancelled.
std::optional<std::string> AskForFile(HWND window, const OpenFileRequest& request);

}  // namespace keplin::win32
