// A window of the system whose messages come to this program first.
#pragma once

#include <windows.h>

#include <string>

#include "platform/win32/owned.h"
#include "ui/rect.h"

namespace keplin::win32 {

class SystemWindow {
  public:
    // Hidden and without text; inside the container, or on the desktop where that is nullptr.
    SystemWindow(const wchar_t* windowClass, DWORD style, const PixelRect& place, HWND container);
    virtual ~SystemWindow() = default;
    SystemWindow(const SystemWindow&) = delete;
    SystemWindow& operator=(const SystemWindow&) = delete;

    [[nodiscard]] HWND Handle() const { return handle_.get(); }

  protected:
    // What the window is sent. The default does what the system does with it.
    virtual LRESULT OnMessage(UINT message, WPARAM first, LPARAM second);
    void SetText(const std::string& text) const;

  private:
    static LRESULT CALLBACK Receive(HWND handle, UINT message, WPARAM first, LPARAM second);

    const Owned<HWND, DestroyWindow> handle_;
    const WNDPROC system_;  // what receives the messages of such a window otherwise
};

}  // namespace keplin::win32
