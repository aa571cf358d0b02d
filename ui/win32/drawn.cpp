#include "ui/win32/drawn.h"

#include <commctrl.h>

#include "ui/win32/utf16.h"

namespace keplin::win32 {

void Drawn::Create(HWND container, const wchar_t* windowClass, DWORD style) {
    const DWORD enabled = control_.Enabled ? 0 : WS_DISABLED;
    handle_ = CreateWindowExW(0, windowClass, nullptr, WS_CHILD | WS_CLIPSIBLINGS | enabled | style,
                              0, 0, 0, 0, container, nullptr, GetModuleHandleW(nullptr), nullptr);
    SetWindowSubclass(handle_, Receive, 0, reinterpret_cast<DWORD_PTR>(this));
    SetWindowPos(handle_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void Drawn::SetText(const std::string& text) const {
    SetWindowTextW(handle_, ToWide(text).c_str());
}

void Drawn::Apply(Aspect aspect) {
    switch (aspect) {
        case Aspect::Visible:
            ShowWindow(handle_, control_.Visible ? SW_SHOWNA : SW_HIDE);
            break;
        case Aspect::Enabled:
            EnableWindow(handle_, control_.Enabled);
            break;
        case Aspect::Left:
        case Aspect::Top:
        case Aspect::Height: {
            const PixelRect place = PlaceNow();
            SetWindowPos(handle_, nullptr, place.left, place.top, place.width, place.height,
                         SWP_NOZORDER | SWP_NOACTIVATE);
            break;
        }
        default:
            break;
    }
}

void Drawn::Rescale() {
    Drawn::Apply(Aspect::Left);
    Repaint();
}

void Drawn::SetFont() const {
    const HFONT font = Now().fonts.Get(Now().fit.Font());
    SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void Drawn::StartTimer(std::chrono::milliseconds pause) const {
    SetTimer(handle_, kTimer, static_cast<UINT>(pause.count()), nullptr);
}

LRESULT Drawn::OnMessage(UINT message, WPARAM first, LPARAM second) {
    return DefSubclassProc(handle_, message, first, second);
}

LRESULT CALLBACK Drawn::Receive(HWND handle, UINT message, WPARAM first, LPARAM second, UINT_PTR id,
                                DWORD_PTR self) {
    if (message == WM_NCDESTROY) RemoveWindowSubclass(handle, Receive, id);
    return reinterpret_cast<Drawn*>(self)->OnMessage(message, first, second);
}

LRESULT Painted::OnMessage(UINT message, WPARAM first, LPARAM second) {
    switch (message) {
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            PaintAll();
            return 0;
        case WM_PRINTCLIENT: {
            RECT inside{};
            GetClientRect(Handle(), &inside);
            Paint(reinterpret_cast<HDC>(first), inside);
            return 0;
        }
        default:
            return Drawn::OnMessage(message, first, second);
    }
}

// By way of a bitmap, so that nobody sees a text come and go.
void Painted::PaintAll() {
    PAINTSTRUCT paint{};
    const HDC screen = BeginPaint(Handle(), &paint);
    RECT inside{};
    GetClientRect(Handle(), &inside);
    const MemoryContext memory(CreateCompatibleDC(screen));
    const Gdi<HBITMAP> bitmap(CreateCompatibleBitmap(screen, inside.right, inside.bottom));
    {
        const Chosen chosen(memory.get(), bitmap.get());
        Paint(memory.get(), inside);
        BitBlt(screen, 0, 0, inside.right, inside.bottom, memory.get(), 0, 0, SRCCOPY);
    }
    EndPaint(Handle(), &paint);
}

COLORREF BackgroundIn(const Control* container) {
    if (const auto* frame = dynamic_cast<const Frame*>(container)) return ToRef(frame->Background);
    if (const auto* page = dynamic_cast<const Page*>(container)) return ToRef(page->Background);
    return GetSysColor(COLOR_BTNFACE);
}

}  // namespace keplin::win32
