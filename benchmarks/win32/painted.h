// What a program for Windows tells when its first window has been painted.
#pragma once

#include <windows.h>
// Behind it.
#include <psapi.h>

#include <iostream>

namespace keplin::benchmarks {

// Paints the window with all that stands in it and processes what is due. Then prints the most
// memory that the process ever held, in KiB.
inline void TellWhenPainted(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    MSG event{};
    while (PeekMessageW(&event, nullptr, 0, 0, PM_REMOVE) && event.message != WM_TIMER)
        DispatchMessageW(&event);
    GdiFlush();
    PROCESS_MEMORY_COUNTERS memory{};
    GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
    std::cout << "painted " << memory.PeakWorkingSetSize / 1024 << std::endl;
}

}  // namespace keplin::benchmarks
