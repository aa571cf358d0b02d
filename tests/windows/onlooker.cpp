// keplin-onlooker: prints what can be read and used in the windows of keplin.exe, each text as it
// comes into sight, and ends when they are gone. It asks the system, not the program, which may be
// busy.
#include <windows.h>

#include <iostream>
#include <map>
#include <string>

#include "platform/win32/utf16.h"

namespace {

using Texts = std::map<HWND, std::wstring>;

BOOL CALLBACK Read(HWND window, LPARAM texts) {
    std::wstring text(200, L'\0');
    text.resize(static_cast<std::size_t>(InternalGetWindowText(window, text.data(), 200)));
    if (IsWindowVisible(window) && IsWindowEnabled(window))
        (*reinterpret_cast<Texts*>(texts))[window] = text;
    return TRUE;
}

// The program's window and the dialog that stands over it.
BOOL CALLBACK ReadProgram(HWND window, LPARAM texts) {
    const HWND program = FindWindowW(L"KeplinWindow", nullptr);
    if (program != nullptr && (window == program || GetWindow(window, GW_OWNER) == program)) {
        Read(window, texts);
        EnumChildWindows(window, Read, texts);
    }
    return TRUE;
}

}  // namespace

int main() {
    Texts before;
    for (bool seen = false; !seen || FindWindowW(L"KeplinWindow", nullptr) != nullptr; Sleep(20)) {
        Texts now;
        EnumWindows(ReadProgram, reinterpret_cast<LPARAM>(&now));
        for (const auto& [window, text] : now) {
            if (!text.empty() && before[window] != text)
                std::cout << keplin::win32::ToUtf8(text) << std::endl;
        }
        seen = seen || !now.empty();
        before = std::move(now);
    }
}
