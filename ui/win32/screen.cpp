#include "ui/win32/screen.h"

#include <algorithm>

#include "ui/win32/gdi.h"
#include "ui/win32/system_call.h"

namespace keplin::win32 {
PixelRect WorkAreaOf(HWND window) {
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &screen);
    const RECT& work = screen.rcWork;
    return {work.left, work.top, work.right - work.left, work.bottom - work.top};
}

// One for all screens where the system knows no other.
UINT ScreenDotsOf(HWND window) {
    static const auto ask = SystemCall<UINT WINAPI(HWND)>(L"user32.dll", "GetDpiForWindow");
    if (ask) return ask(window);
    const MemoryContext screen(CreateCompatibleDC(nullptr));
    return static_cast<UINT>(GetDeviceCaps(screen.get(), LOGPIXELSY));
}

double TextSize() {
    constexpr DWORD kUsual = 100;  // percent
    DWORD percent = 0;
    DWORD size = sizeof percent;
    RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Accessibility", L"TextScaleFactor",
                 RRF_RT_REG_DWORD, nullptr, &percent, &size);
    return double(std::max(percent, kUsual)) / kUsual;
}

}  // namespace keplin::win32
