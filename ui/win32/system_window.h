// A window of the system whose messages come to this program first.
#pragma once

#include "platform/win32/owned.h"
#include "platform/win32/utf16.h"
#include "ui/rect.h"

namespace keplin::win32 {

// What a button is sent when what a press does is due.
inline constexpr UINT kPress = WM_APP;

class SystemWindow {
  public:
    // Inside the container, or on the desktop where that is nullptr.
    SystemWindow(const wchar_t* windowClass, const std::string& text, DWORD style,
                 const PixelRect& place, HWND container)
        : handle_(CreateWindowExW(0, windowClass, ToWide(text).c_str(), style, place.left,
                                  place.top, place.width, place.height, container, nullptr,
                                  GetModuleHandleW(nullptr), nullptr)),
          system_(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(Handle(), GWLP_WNDPROC))) {
        SetWindowLongPtrW(Handle(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        SetWindowLongPtrW(Handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Receive));
    }
    virtual ~SystemWindow() = default;
    SystemWindow(const SystemWindow&) = delete;
    SystemWindow& operator=(const SystemWindow&) = delete;

    [[nodiscard]] HWND Handle() const { return handle_.get(); }

  protected:
    void SetText(const std::string& text) const { SetWindowTextW(Handle(), ToWide(text).c_str()); }

    // What the window is sent. The default passes a press on to the button that was pressed, as a
    // message of its own: whoever pressed it, a screen reader for instance, need not wait for what
    // that does. With all else it does what the system does.
    virtual LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) {
        const bool press = message == WM_COMMAND && HIWORD(first) == BN_CLICKED && second != 0;
        return press ? PostMessageW(reinterpret_cast<HWND>(second), kPress, 0, 0)
                     : CallWindowProcW(system_, Handle(), message, first, second);
    }

  private:
    // Not by SetWindowSubclass, which asks the system at each message whose it is.
    static LRESULT CALLBACK Receive(HWND handle, UINT message, WPARAM first, LPARAM second) {
        auto* self = reinterpret_cast<SystemWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
        return self->OnMessage(message, first, second);
    }

    const Owned<HWND, DestroyWindow> handle_;
    const WNDPROC system_;  // what receives the messages of such a window otherwise
};

}  // namespace keplin::win32
