#include "ui/win32/drawn.h"

#include <commctrl.h>
#include <uxtheme.h>

#include "platform/win32/utf16.h"

namespace keplin::win32 {

Drawn::Drawn(const Control& control, const Look& look, HWND container, const wchar_t* windowClass,
             DWORD style)
    : SystemWindow(windowClass, WS_CHILD | WS_CLIPSIBLINGS | style,
                   look.measures->scale.PlaceOf(control), container),
      control_(control),
      look_(look) {
    SetWindowPos(Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void Drawn::Apply(Aspect aspect) {
    switch (aspect) {
        case Aspect::Visible:
            ShowWindow(Handle(), control_.Visible ? SW_SHOWNA : SW_HIDE);
            break;
        case Aspect::Enabled:
            EnableWindow(Handle(), control_.Enabled);
            break;
        case Aspect::Left:
        case Aspect::Top:
        case Aspect::Height:
            SetPlace(PlaceNow());
            break;
        case Aspect::Caption:
            SetText(Text());
            Repaint();
            break;
        default:
            break;
    }
}

void Drawn::Rescale() {
    const HFONT font = Now().fonts.Get(Now().fit.Font());
    SendMessageW(Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    for (const Aspect aspect : {Aspect::Top, Aspect::Enabled, Aspect::Caption, Aspect::Visible})
        Apply(aspect);
}

void Drawn::SetPlace(const PixelRect& place, UINT flags) const {
    SetWindowPos(Handle(), nullptr, place.left, place.top, place.width, place.height,
                 SWP_NOZORDER | SWP_NOACTIVATE | flags);
}

void Drawn::SetToolTip(std::size_t part, const RECT& where, const std::string& text) {
    constexpr int kWidest = 600;  // pixels, from which on a text wraps
    if (tips_ == nullptr) {
        if (text.empty()) return;
        tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX, 0,
                                0, 0, 0, Handle(), nullptr, GetModuleHandleW(nullptr), nullptr);
        SendMessageW(tips_, TTM_SETMAXTIPWIDTH, 0, kWidest);
    }
    std::wstring wide = ToWide(text);
    TTTOOLINFOW tool{sizeof tool, TTF_SUBCLASS, Handle(), part,   where,
                     nullptr,     wide.data(),  0,        nullptr};
    const bool known = part < static_cast<std::size_t>(SendMessageW(tips_, TTM_GETTOOLCOUNT, 0, 0));
    for (const UINT message : {TTM_NEWTOOLRECTW, TTM_UPDATETIPTEXTW})
        SendMessageW(tips_, known ? message : TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void Drawn::StartTimer(std::chrono::milliseconds pause) const {
    SetTimer(Handle(), kTimer, static_cast<UINT>(pause.count()), nullptr);
}

void Drawn::ShowSoon(Throttle& throttle) {
    const auto pause = throttle.Changed();
    if (pause) pause->count() == 0 ? OnTimer() : StartTimer(*pause);
}

LRESULT Drawn::OnMessage(UINT message, WPARAM first, LPARAM second) {
    if (message != WM_TIMER || first != kTimer)
        return SystemWindow::OnMessage(message, first, second);
    OnTimer();
    return 0;
}

LRESULT Painted::OnMessage(UINT message, WPARAM first, LPARAM second) {
    switch (message) {
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            PaintAll();
            return 0;
        case WM_PRINTCLIENT:
            Paint(reinterpret_cast<HDC>(first), ToRect(InsideOf(Handle())));
            return 0;
        default:
            return Drawn::OnMessage(message, first, second);
    }
}

// By way of a bitmap, so that nobody sees a text come and go.
void Painted::PaintAll() {
    PAINTSTRUCT paint{};
    const HDC screen = BeginPaint(Handle(), &paint);
    const RECT inside = ToRect(InsideOf(Handle()));
    HDC memory = nullptr;
    const HPAINTBUFFER buffer =
        BeginBufferedPaint(screen, &inside, BPBF_COMPATIBLEBITMAP, nullptr, &memory);
    Paint(buffer ? memory : screen, inside);
    EndBufferedPaint(buffer, TRUE);
    EndPaint(Handle(), &paint);
}

}  // namespace keplin::win32
