#include "ui/win32/system_window.h"

#include "ui/win32/utf16.h"

namespace keplin::win32 {

SystemWindow::SystemWindow(const wchar_t* windowClass, DWORD style, const PixelRect& place,
                           HWND container)
    : handle_(CreateWindowExW(0, windowClass, nullptr, style, place.left, place.top, place.width,
                              place.height, container, nullptr, GetModuleHandleW(nullptr),
                              nullptr)),
      system_(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(Handle(), GWLP_WNDPROC))) {
    SetWindowLongPtrW(Handle(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(Handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Receive));
}

void SystemWindow::SetText(const std::string& text) const {
    SetWindowTextW(Handle(), ToWide(text).c_str());
}

LRESULT SystemWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
    return CallWindowProcW(system_, Handle(), message, first, second);
}

// In the last messages the window goes with its owner: only the system still has to do with it.
LRESULT CALLBACK SystemWindow::Receive(HWND handle, UINT message, WPARAM first, LPARAM second) {
    auto* self = reinterpret_cast<SystemWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
    return self->OnMessage(message, first, second);
}

}  // namespace keplin::win32
