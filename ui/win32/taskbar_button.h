// The window's button in the taskbar.
#pragma once

#include <windows.h>

#include "ui/run_progress.h"

namespace keplin::win32 {

class TaskbarButton {
  public:
    // Shows on the button how an update stands, red where it stopped.
    void Show(HWND window, const RunProgress& progress);

    // Marks the button until the technician turns to the window; not where it is the active one.
    static void CallForAttention(HWND window);

  private:
    RunProgress shown_;
};

}  // namespace keplin::win32
