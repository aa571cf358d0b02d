// keplin-bench-empty-window: what any program with one window needs, up to its first sight.
#include "benchmarks/win32/painted.h"

int main() {
    WNDCLASSW kind{};
    kind.lpfnWndProc = DefWindowProcW;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    kind.lpszClassName = L"EmptyWindow";
    RegisterClassW(&kind);
    RECT place{0, 0, 622, 343};  // as the program's
    constexpr DWORD kFrame = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
    AdjustWindowRect(&place, kFrame, FALSE);
    const HWND window =
        CreateWindowExW(0, kind.lpszClassName, L"Empty", kFrame, CW_USEDEFAULT, CW_USEDEFAULT,
                        place.right - place.left, place.bottom - place.top, nullptr, nullptr,
                        kind.hInstance, nullptr);
    ShowWindow(window, SW_SHOWNORMAL);
    keplin::benchmarks::TellWhenPainted(window);
}
