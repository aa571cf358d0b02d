// The real window in the system's own controls, with no program behind it.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/win32/utf16.h"
#include "tests/support/shown_window.h"
#include "ui/win32/win32_desktop.h"

namespace keplin::test {

// The window with its getting-started page.
class Win32Window : public ShownWindow<win32::MainWindow, win32::Win32Desktop, WatchedLine> {
  protected:
    Win32Window() {
        SetActiveWindow(window.Handle());
        Settle();
    }

    // All events that are there, and those that come of them.
    void Settle() {
        for (int i = 0; i < 5; ++i)
            desktop.YieldOnce();
    }

    LRESULT Send(const Control& control, UINT message, WPARAM first = 0, LPARAM second = 0) {
        return SendMessageW(window.HandleOf(control), message, first, second);
    }

    std::string TextOf(const Control& control) {
        std::wstring text(200, L'\0');
        const auto most = static_cast<int>(text.size());
        const int length = GetWindowTextW(window.HandleOf(control), text.data(), most);
        return win32::ToUtf8(text.substr(0, static_cast<std::size_t>(length)));
    }

    // Where the control stands in its container.
    RECT PlaceOf(const Control& control) {
        const HWND handle = window.HandleOf(control);
        RECT place{};
        GetWindowRect(handle, &place);
        MapWindowPoints(nullptr, GetParent(handle), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }

    // The name of the button that has the keyboard focus.
    std::string Focused() {
        for (const Control* control : model.Controls()) {
            const bool isButton = dynamic_cast<const Button*>(control) != nullptr;
            if (isButton && window.HandleOf(*control) == GetFocus()) return control->Name;
        }
        return "";
    }

    // One key, down and up, to whatever has the focus. `repeated`: it has been down before.
    void Type(WPARAM key, bool repeated = false) {
        const HWND target = GetFocus();
        SendMessageW(target, WM_KEYDOWN, key, repeated ? 1 << 30 : 0);
        SendMessageW(target, WM_KEYUP, key, 0);
        Settle();
    }

    // The left button of the mouse, pressed and let go on the control.
    void Click(const Control& control) {
        Send(control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        Send(control, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
        Settle();
    }
};

}  // namespace keplin::test
