// What tells the demonstration from the product at a glance.
#pragma once

#include "ui/win32/main_window.h"

namespace keplin {

// Says DEMONSTRATION in the window's title and on a ribbon across its upper right corner, which
// stays on every page. Returns the ribbon, which belongs to the window. The icon comes with the
// program's resources.
HWND MarkAsDemonstration(win32::MainWindow& window, const ISPMain& model);

}  // namespace keplin
