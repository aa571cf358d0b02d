#include "ui/win32/win32_desktop.h"

#include <commdlg.h>
#include <mmsystem.h>

#include <algorithm>
#include <string>
#include <utility>

#include "platform/win32/object.h"

namespace keplin::win32 {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds kLateness{1};   // how late the system may wake a sleeper
constexpr DWORD kLongestWait = 2;      // milliseconds
constexpr DWORD kBetweenChecks = 500;  // milliseconds
constexpr DWORD kLongestPath = 32768;

// Whatever the program waits for from now on ends within a millisecond, until the process does.
void WakeInTime() {
    constexpr UINT kGrain = 1;  // milliseconds, of the system's clock
    static const auto begin =
        SystemCall<decltype(timeBeginPeriod)>(L"winmm.dll", "timeBeginPeriod");
    [[maybe_unused]] static const auto begun = begin(kGrain);
}

bool WaitForEvent(DWORD mostMilliseconds) {
    return MsgWaitForMultipleObjectsEx(0, nullptr, mostMilliseconds, QS_ALLINPUT,
                                       MWMO_INPUTAVAILABLE) != WAIT_TIMEOUT;
}

// A timer's message comes only when nothing else is there: with it all is processed that was.
void ProcessEvents() {
    MSG event{};
    while (PeekMessageW(&event, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&event);
        DispatchMessageW(&event);
        if (event.message == WM_TIMER) return;
    }
}

// A screen reader asks by messages that do not wait with the window's events; they alone are
// processed here.
void AnswerScreenReader(milliseconds duration) {
    MSG event{};
    MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(duration.count()), QS_SENDMESSAGE,
                                0);
    PeekMessageW(&event, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
}

// Each part of the filter is ended by a null character, and the whole by one more.
std::wstring FilterOf(const std::string& filter) {
    std::wstring parts = ToWide(filter) + L"||";
    std::replace(parts.begin(), parts.end(), L'|', L'\0');
    return parts;
}

}  // namespace

Win32Desktop::Win32Desktop(const MainWindow& window, WatchedLine& line, Hooks hooks)
    : StandardDesktop(std::move(hooks)), window_(window), line_(line) {}

void Win32Desktop::Run() {
    for (;;) {
        ProcessEvents();
        if (!WaitForEvent(kBetweenChecks)) line_.CheckLine();
    }
}

void Win32Desktop::YieldOnce() {
    WakeInTime();
    if (!line_.TakeWait() || WaitForEvent(kLongestWait)) ProcessEvents();
}

// An update sleeps once for each line of its file, so the lateness would add up: the end of a sleep
// is awaited awake.
void Win32Desktop::Sleep(milliseconds duration) {
    WakeInTime();
    const auto end = steady_clock::now() + duration;
    window_.PaintNow();
    const bool heard = window_.IsHeard();
    for (;;) {
        const auto left = std::chrono::ceil<milliseconds>(end - steady_clock::now()) - kLateness;
        if (left.count() <= 0) break;
        if (heard) {
            AnswerScreenReader(left);
        } else {
            ::Sleep(static_cast<DWORD>(left.count()));
        }
    }
    while (steady_clock::now() < end) {
    }
}

std::optional<std::string> Win32Desktop::AskForFile(const OpenFileRequest& request) {
    const std::wstring filter = FilterOf(request.filter);
    const std::wstring title = ToWide(request.title);
    const std::wstring folder = ToWide(request.initialDirectory);
    std::wstring path(kLongestPath, L'\0');
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = window_.Handle();
    dialog.lpstrFilter = filter.c_str();
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = kLongestPath;
    dialog.lpstrInitialDir = folder.c_str();
    dialog.lpstrTitle = title.c_str();
    dialog.Flags = OFN_EXPLORER | OFN_NOCHANGEDIR | OFN_DONTADDTORECENT;
    if (request.hideReadOnly) dialog.Flags |= OFN_HIDEREADONLY;
    static const auto ask =
        SystemCall<decltype(GetOpenFileNameW)>(L"comdlg32.dll", "GetOpenFileNameW");
    BeginObjects();
    if (!ask(&dialog)) return std::nullopt;
    return ToUtf8(path.c_str());
}

// A system that ends the session asks the window first, and shows this where it refuses.
void Win32Desktop::KeepAwake(bool awake) {
    SetThreadExecutionState(ES_CONTINUOUS | (awake ? ES_SYSTEM_REQUIRED | ES_DISPLAY_REQUIRED : 0));
    if (awake) {
        ShutdownBlockReasonCreate(window_.Handle(),
                                  L"An update is being installed into a controller");
    } else {
        ShutdownBlockReasonDestroy(window_.Handle());
    }
}

}  // namespace keplin::win32
