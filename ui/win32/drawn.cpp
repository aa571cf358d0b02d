#include "ui/win32/drawn.h"

#include <commctrl.h>
#include <uxtheme.h>

#include "platform/win32/utf16.h"
#include "ui/accessible_text.h"

namespace keplin::win32 {
namespace {

// By which others find the control, and which the system's control writes.
std::string TextOf(const Control& control) {
    const auto* button = dynamic_cast<const Button*>(&control);
    return button ? button->CaptionWithoutShortcut() : AccessibleTextOf(control).name;
}

DWORD StateOf(const Control& control) {
    return (control.Visible ? WS_VISIBLE : 0) | (control.Enabled ? 0 : WS_DISABLED);
}

}  // namespace

Drawn::Drawn(const Control& control, const Look& look, HWND container, const wchar_t* windowClass,
             DWORD style)
    : SystemWindow(windowClass, TextOf(control),
                   WS_CHILD | WS_CLIPSIBLINGS | StateOf(control) | style,
                   look.measures->scale.PlaceOf(control), container),
      control_(control),
      look_(look) {
    SetWindowPos(Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    TakeFont();
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
            SetText(TextOf(control_));
            Repaint();
            break;
        default:
            break;
    }
}

void Drawn::Rescale() {
    TakeFont();
    Apply(Aspect::Top);
}

void Drawn::TakeFont() const {
    const HFONT font = Now().fonts.Get(Now().fit.Font());
    SendMessageW(Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
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
    TTTOOLINFOW tool{sizeof tool, 0, Handle(), part, where, nullptr, wide.data(), 0, nullptr};
    const bool known = part < static_cast<std::size_t>(SendMessageW(tips_, TTM_GETTOOLCOUNT, 0, 0));
    for (const UINT message : {TTM_NEWTOOLRECTW, TTM_UPDATETIPTEXTW})
        SendMessageW(tips_, known ? message : TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void Drawn::StartTimer(std::chrono::milliseconds interval) const {
    SetTimer(Handle(), kTimer, static_cast<UINT>(interval.count()), nullptr);
}

void Drawn::ShowSoon(Throttle& throttle) {
    const auto wait = throttle.Changed();
    if (wait) wait->count() == 0 ? ShowNow() : StartTimer(*wait);
}

void Drawn::OnTimer() {
    StopTimer();
    ShowNow();
}

LRESULT Drawn::OnMessage(UINT message, WPARAM first, LPARAM second) {
    // Not by TTF_SUBCLASS, which asks the system at each message whose it is.
    if (tips_ && message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) {
        MSG event{Handle(), message, first, second, 0, {}};
        SendMessageW(tips_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&event));
    }
    if (message != WM_TIMER || first != kTimer)
        return SystemWindow::OnMessage(message, first, second);
    OnTimer();
    return 0;
}

LRESULT Painted::OnMessage(UINT message, WPARAM first, LPARAM second) {
    switch (message) {
        case WM_ERASEBKGND:
            return 1;
        case WM_NCPAINT:  // there is no frame
            return 0;
        case WM_PAINT:
            PaintAll();
            return 0;
        case WM_SETTEXT:  // upon which the system's control would paint it as well
            return DefWindowProcW(Handle(), message, first, second);
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
        IsPlain() ? nullptr
                  : BeginBufferedPaint(screen, &inside, BPBF_COMPATIBLEBITMAP, nullptr, &memory);
    Paint(buffer ? memory : screen, inside);
    EndBufferedPaint(buffer, TRUE);
    EndPaint(Handle(), &paint);
}

}  // namespace keplin::win32
