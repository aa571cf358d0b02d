// What the window has to do with what is around it: the screen, the taskbar and a screen reader.
#include <initguid.h>
// In this order.
#include <oleacc.h>
#include <shobjidl.h>

#include <algorithm>
#include <array>

#include "platform/win32/object.h"
#include "platform/win32/utf16.h"
#include "ui/win32/main_window.h"

namespace keplin::win32 {
namespace {

constexpr const wchar_t* kAutomation = L"uiautomationcore.dll";

// False on a system that has no such notification.
bool Notify(HWND control, const std::string& text) {
    using Provider = IUnknown;  // what a control is told of by
    static const auto provide =
        SystemCall<HRESULT WINAPI(HWND, Provider**)>(kAutomation, "UiaHostProviderFromHwnd");
    static const auto raise = SystemCall<HRESULT WINAPI(Provider*, int, int, BSTR, BSTR)>(
        kAutomation, "UiaRaiseNotificationEvent");
    static const auto allocate =
        SystemCall<decltype(SysAllocString)>(L"oleaut32.dll", "SysAllocString");
    static const auto release =
        SystemCall<decltype(SysFreeString)>(L"oleaut32.dll", "SysFreeString");
    constexpr int kKindOther = 4;
    constexpr int kProcessAll = 2;  // none is left out over the next
    Object<Provider> provider;
    if (!provide || !raise || provide(control, &provider) != S_OK) return false;
    const std::unique_ptr<OLECHAR, decltype(release)> spoken(allocate(ToWide(text).c_str()),
                                                             release);
    const std::unique_ptr<OLECHAR, decltype(release)> activity(allocate(L"keplin.news"), release);
    return raise(provider.Get(), kKindOther, kProcessAll, spoken.get(), activity.get()) == S_OK;
}

PixelRect FromRect(const RECT& rect) {
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

PixelRect OuterPlaceOf(HWND window) {
    RECT outer{};
    GetWindowRect(window, &outer);
    return FromRect(outer);
}

// The part of the screen that windows may take.
PixelRect WorkAreaOf(HWND window) {
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &screen);
    return FromRect(screen.rcWork);
}

// How much larger than usual the technician has set texts; 1 is usual.
double TextSize() {
    constexpr DWORD kUsual = 100;  // percent
    DWORD percent = 0;
    DWORD size = sizeof percent;
    RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Accessibility", L"TextScaleFactor",
                 RRF_RT_REG_DWORD, nullptr, &percent, &size);
    return double(std::max(percent, kUsual)) / kUsual;
}

}  // namespace

// One for all screens where the system knows no other.
UINT MainWindow::ScreenDots() const {
    static const auto ask = SystemCall<UINT WINAPI(HWND)>(L"user32.dll", "GetDpiForWindow");
    if (ask) return ask(Handle());
    const MemoryContext screen(CreateCompatibleDC(nullptr));
    return static_cast<UINT>(GetDeviceCaps(screen.get(), LOGPIXELSY));
}

double MainWindow::DotsPerInch() const {
    const PixelRect screen = WorkAreaOf(Handle());
    return FittingDotsPerInch(screenDots_ * TextSize(), {screen.width, screen.height}, model_);
}

// What the frame takes is known from the window itself; once it is larger the frame may be another.
void MainWindow::ApplySize() const {
    const PixelSize wanted = Now().scale.ClientSize(model_);
    for (int pass = 0; pass < 2 && InsideOf(Handle()) != wanted; ++pass) {
        const PixelRect outer = OuterPlaceOf(Handle());
        const PixelSize inside = InsideOf(Handle());
        SetWindowPos(Handle(), nullptr, 0, 0, outer.width - inside.width + wanted.width,
                     outer.height - inside.height + wanted.height,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void MainWindow::ShowCentred() const {
    const PixelRect outer = OuterPlaceOf(Handle());
    const PixelRect place = Centred({outer.width, outer.height}, WorkAreaOf(Handle()));
    SetWindowPos(Handle(), nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ShowWindow(Handle(), SW_SHOWNORMAL);
    UpdateWindow(Handle());
}

// How an update stands, on the window's button; red where it stopped.
void MainWindow::ShowInTaskbar(const Control& changed) {
    const RunProgress progress = ProgressAfter(inTaskbar_, changed, model_);
    if (progress == inTaskbar_) return;
    static const auto taskbar = ObjectOf<ITaskbarList3>(CLSID_TaskbarList, IID_ITaskbarList3);
    if (!taskbar) return;
    inTaskbar_ = progress;
    if (progress.state != RunProgress::State::None)
        taskbar->SetProgressValue(Handle(), static_cast<ULONGLONG>(progress.percent), 100);
    constexpr std::array kFlags{TBPF_NOPROGRESS, TBPF_NORMAL, TBPF_ERROR};  // as State has them
    taskbar->SetProgressState(Handle(), kFlags.at(static_cast<std::size_t>(progress.state)));
}

void MainWindow::CallForAttention() {
    if (GetForegroundWindow() == Handle()) return;
    FLASHWINFO flash{sizeof flash, Handle(), FLASHW_ALL | FLASHW_TIMERNOFG, 0, 0};
    FlashWindowEx(&flash);
}

bool MainWindow::IsHeard() const {
    static const auto listening = SystemCall<BOOL WINAPI()>(kAutomation, "UiaClientsAreListening");
    BOOL reader = FALSE;
    SystemParametersInfoW(SPI_GETSCREENREADER, 0, &reader, 0);
    return reader || (listening && listening());
}

void Annotate(HWND control, const GUID& property, const std::string& text) {
    static const auto properties =
        ObjectOf<IAccPropServices>(CLSID_AccPropServices, IID_IAccPropServices);
    const auto object = static_cast<DWORD>(OBJID_CLIENT);
    if (!properties) return;
    properties->SetHwndPropStr(control, object, CHILDID_SELF, property, ToWide(text).c_str());
}

void MainWindow::Describe(const Button& button, const std::string& news) {
    Annotate(HandleOf(button), PROPID_ACC_DESCRIPTION, news);
}

// Where there are no notifications, a reader of those days reads the description again.
void MainWindow::Announce(const Button& button, const std::string& news) {
    const HWND control = HandleOf(button);
    if (Notify(control, news)) return;
    for (const DWORD event : {EVENT_OBJECT_DESCRIPTIONCHANGE, EVENT_OBJECT_LIVEREGIONCHANGED})
        NotifyWinEvent(event, control, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace keplin::win32
