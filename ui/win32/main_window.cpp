#include "ui/win32/main_window.h"

#include <commctrl.h>

#include <utility>

#include "platform/win32/utf16.h"

namespace keplin::win32 {
namespace {

// No maximise control: the size is fixed.
constexpr DWORD kFrame = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;

// Registers it, with the classes of the controls, where that is not done yet.
const wchar_t* WindowClass() {
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_BAR_CLASSES | ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&controls);
    WNDCLASSEXW kind{};
    kind.cbSize = sizeof kind;
    kind.lpfnWndProc = DefWindowProcW;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.hIcon = ProgramIcon(SM_CXICON);
    kind.hIconSm = ProgramIcon(SM_CXSMICON);
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    kind.lpszClassName = L"KeplinWindow";
    RegisterClassExW(&kind);
    return kind.lpszClassName;
}

}  // namespace

MainWindow::MainWindow(ISPMain& model, PressGuard::Clock clock)
    : SystemWindow(WindowClass(), "", kFrame, {CW_USEDEFAULT, CW_USEDEFAULT, 0, 0}, nullptr),
      model_(model),
      follower_(model, *this, std::move(clock)),
      look_{model, follower_, focused_, [this] { return inSystem_ == 0; }, nullptr},
      screenDots_(ScreenDots()) {
    Rescale();
    drawn_ = MakeControls(Handle(), look_);
    // The focus shows from the start, not only after the first use of the keyboard.
    SendMessageW(Handle(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
    follower_.Start();
}

// As its controls go, what the system tells of that is no more for this.
MainWindow::~MainWindow() {
    SetWindowLongPtrW(Handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(DefWindowProcW));
}

void MainWindow::PaintNow() const {
    RedrawWindow(Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    GdiFlush();
}

LRESULT MainWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
    switch (message) {
        case WM_CLOSE:  // sent from within the system's own loop
            PostMessageW(Handle(), kCloseAsked, 0, 0);
            return 0;
        case kCloseAsked:
            if (inSystem_ == 0) follower_.CloseAsked();
            return 0;
        case WM_QUERYENDSESSION:
            return model_.UnderWay() != ISPMain::Job::Update;
        case kSpeak:
            follower_.Speak();
            return 0;
        case WM_ACTIVATE:
            if (LOWORD(first) != WA_INACTIVE && HIWORD(first) == 0) Focus(focused_);
            return 0;
        case WM_SETFOCUS:  // it comes back from the taskbar, say
            if (focused_) SetFocus(HandleOf(*focused_));
            return 0;
        case WM_KEYDOWN:
            if (first == VK_TAB) follower_.MoveFocus(GetKeyState(VK_SHIFT) < 0);
            break;
        case WM_HELP:
            if (OnHelp) OnHelp();
            return TRUE;
        case WM_DPICHANGED: {
            const auto* place = reinterpret_cast<const RECT*>(second);
            screenDots_ = HIWORD(first);
            Rescale();
            SetWindowPos(Handle(), nullptr, place->left, place->top, 0, 0,
                         SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
            return 0;
        }
        case WM_SETTINGCHANGE:
        case WM_DISPLAYCHANGE:
            if (first == SPI_SETNONCLIENTMETRICS || DotsPerInch() != Now().scale.DotsPerInch())
                Rescale();
            break;
        case WM_SYSCOLORCHANGE:
            for (const auto& [control, drawn] : drawn_)
                SendMessageW(drawn->Handle(), message, first, second);
            break;
        case WM_SYSCOMMAND:
            // Alt or F10 alone, upon which the system would wait; the last four bits are its own.
            if ((first & ~WPARAM{0xF}) == SC_KEYMENU && second == 0) return 0;
            return LeaveToSystem(message, first, second);
        case WM_NCLBUTTONDOWN:
        case WM_NCRBUTTONDOWN:
        case WM_NCRBUTTONUP:
        case WM_CONTEXTMENU:
            return LeaveToSystem(message, first, second);
        default:
            break;
    }
    return SystemWindow::OnMessage(message, first, second);
}

// While the technician holds the title bar, or a menu of it is open, the system processes the
// window's events by itself. What yields stands still meanwhile, so nothing else of the program may
// begin from there.
LRESULT MainWindow::LeaveToSystem(UINT message, WPARAM first, LPARAM second) {
    ++inSystem_;
    const LRESULT result = SystemWindow::OnMessage(message, first, second);
    --inSystem_;
    return result;
}

// A panel has no window of its own: what changes in it changes in its bar.
void MainWindow::Apply(const Control& control, Aspect aspect) {
    const bool isPanel = dynamic_cast<const Panel*>(&control);
    if (&control == &model_) {
        ApplyToWindow(aspect);
    } else {
        drawn_.at(isPanel ? control.Container : &control)->Apply(aspect);
    }
    ShowInTaskbar(control);
}

// To a window that is not the active one the focus comes as soon as it is.
void MainWindow::Focus(const Button* button) {
    focused_ = button;
    if (GetActiveWindow() == Handle()) SetFocus(button ? HandleOf(*button) : Handle());
}

// The fonts before it live on until every control has a new one.
void MainWindow::Rescale() {
    const auto before =
        std::exchange(look_.measures, std::make_unique<const Measures>(model_, DotsPerInch()));
    for (const auto& [control, drawn] : drawn_)
        drawn->Rescale();
    ApplySize();
    RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void MainWindow::ApplyToWindow(Aspect aspect) {
    const Form& form = model_;
    if (aspect == Aspect::Caption) SetText(form.Caption);
    if (aspect == Aspect::Height) ApplySize();
    if (aspect == Aspect::Visible && form.Visible) ShowCentred();
    if (aspect == Aspect::Visible && !form.Visible) ShowWindow(Handle(), SW_HIDE);
    if (aspect == Aspect::WindowState && form.WindowState.Get() == Form::State::Minimised) {
        ShowWindow(Handle(), SW_MINIMIZE);
    }
}

}  // namespace keplin::win32
