#include "ui/win32/main_window.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "ui/win32/utf16.h"

namespace keplin::win32 {
namespace {

constexpr const wchar_t* kClass = L"KeplinWindow";

// No maximise control: the size is fixed.
constexpr DWORD kFrame = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;

// Alt or F10 alone. There is no menu bar, but the system would wait in it for the next key.
bool OpensMenuBar(WPARAM command, LPARAM letter) {
    constexpr WPARAM kOwnBits = 0x000F;  // of the system
    return (command & ~kOwnBits) == SC_KEYMENU && letter == 0;
}

void RegisterOnce(WNDPROC receive) {
    WNDCLASSEXW kind{};
    kind.cbSize = sizeof kind;
    kind.lpfnWndProc = receive;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.hIcon = ProgramIcon(SM_CXICON);
    kind.hIconSm = ProgramIcon(SM_CXSMICON);
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    kind.lpszClassName = kClass;
    RegisterClassExW(&kind);
}

}  // namespace

MainWindow::MainWindow(ISPMain& model, PressGuard::Clock clock)
    : model_(model),
      follower_(model, *this, std::move(clock)),
      look_{model, follower_, focused_, [this] { return inSystem_ == 0; }, nullptr} {
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_BAR_CLASSES | ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&classes);
    RegisterOnce(Receive);
    handle_ = CreateWindowExW(0, kClass, nullptr, kFrame, CW_USEDEFAULT, CW_USEDEFAULT, 0, 0,
                              nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    screenDots_ = ScreenDots();
    Measure();
    drawn_ = MakeControls(handle_, look_);
    // The focus shows from the start, not only after the first use of the keyboard.
    SendMessageW(handle_, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
    follower_.Start();
}

MainWindow::~MainWindow() {
    SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
    DestroyWindow(handle_);
}

void MainWindow::PaintNow() const {
    RedrawWindow(handle_, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    GdiFlush();
}

LRESULT CALLBACK MainWindow::Receive(HWND handle, UINT message, WPARAM first, LPARAM second) {
    auto* window = reinterpret_cast<MainWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
    return window ? window->OnMessage(message, first, second)
                  : DefWindowProcW(handle, message, first, second);
}

LRESULT MainWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
    switch (message) {
        case WM_COMMAND:
            if (HIWORD(first) == BN_CLICKED && second != 0)
                PostMessageW(reinterpret_cast<HWND>(second), kPress, 0, 0);
            return 0;
        case WM_CLOSE:  // sent from within the system's own loop
            PostMessageW(handle_, kCloseAsked, 0, 0);
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
            if (first == VK_TAB) MoveFocus(GetKeyState(VK_SHIFT) < 0);
            break;
        case WM_HELP:
            if (OnHelp) OnHelp();
            return TRUE;
        case WM_DPICHANGED: {
            const auto* place = reinterpret_cast<const RECT*>(second);
            screenDots_ = HIWORD(first);
            Rescale();
            SetWindowPos(handle_, nullptr, place->left, place->top, 0, 0,
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
            if (OpensMenuBar(first, second)) return 0;
            return LeaveToSystem(message, first, second);
        case WM_NCLBUTTONDOWN:
        case WM_NCRBUTTONDOWN:
        case WM_NCRBUTTONUP:
        case WM_CONTEXTMENU:
            return LeaveToSystem(message, first, second);
        default:
            break;
    }
    return DefWindowProcW(handle_, message, first, second);
}

// While the technician holds the title bar, or a menu of it is open, the system processes the
// window's events by itself. What yields stands still meanwhile, so nothing else of the program may
// begin from there.
LRESULT MainWindow::LeaveToSystem(UINT message, WPARAM first, LPARAM second) {
    ++inSystem_;
    const LRESULT result = DefWindowProcW(handle_, message, first, second);
    --inSystem_;
    return result;
}

// A panel has no window of its own: what changes in it changes in its bar.
void MainWindow::Apply(const Control& control, Aspect aspect) {
    const auto found = drawn_.find(&control);
    if (&control == &model_) {
        ApplyToWindow(aspect);
    } else {
        (found == drawn_.end() ? drawn_.at(control.Container) : found->second)->Apply(aspect);
    }
    ShowInTaskbar(control);
}

// To a window that is not the active one the focus comes as soon as it is.
void MainWindow::Focus(const Button* button) {
    focused_ = button;
    if (GetActiveWindow() == handle_) SetFocus(button ? HandleOf(*button) : handle_);
}

void MainWindow::MoveFocus(bool backwards) {
    std::vector<const Button*> order = follower_.TabOrder();
    if (backwards) std::reverse(order.begin(), order.end());
    const auto next = std::find(order.begin(), order.end(), focused_);
    if (next != order.end()) std::rotate(order.begin(), next + 1, order.end());
    const auto found = std::find_if(order.begin(), order.end(),
                                    [](const Button* button) { return button->CanBePressed(); });
    if (found != order.end()) Focus(*found);
}

void MainWindow::Measure() {
    look_.measures = std::make_unique<const Measures>(model_, DotsPerInch());
}

// The fonts before it live on until every control has a new one.
void MainWindow::Rescale() {
    const auto before = std::exchange(look_.measures, nullptr);
    Measure();
    for (const auto& [control, drawn] : drawn_)
        drawn->Rescale();
    ApplySize();
    RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void MainWindow::ApplyToWindow(Aspect aspect) {
    const Form& form = model_;
    if (aspect == Aspect::Caption) SetWindowTextW(handle_, ToWide(form.Caption.Get()).c_str());
    if (aspect == Aspect::Height) ApplySize();
    if (aspect == Aspect::Visible && form.Visible) ShowCentred();
    if (aspect == Aspect::Visible && !form.Visible) ShowWindow(handle_, SW_HIDE);
    if (aspect == Aspect::WindowState && form.WindowState.Get() == Form::State::Minimised) {
        ShowWindow(handle_, SW_MINIMIZE);
    }
}

}  // namespace keplin::win32
