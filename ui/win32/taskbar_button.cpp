#include "ui/win32/taskbar_button.h"

#include <shobjidl.h>

#include "ui/win32/com.h"

namespace keplin::win32 {
namespace {

constexpr ULONGLONG kWhole = 100;  // percent

TBPFLAG FlagOf(RunProgress::State state) {
    switch (state) {
        case RunProgress::State::UnderWay:
            return TBPF_NORMAL;
        case RunProgress::State::Stopped:
            return TBPF_ERROR;
        default:
            return TBPF_NOPROGRESS;
    }
}

}  // namespace

void TaskbarButton::Show(HWND window, const RunProgress& progress) {
    if (progress == shown_) return;
    static const auto taskbar = Com<ITaskbarList3>::Make(CLSID_TaskbarList, IID_ITaskbarList3);
    if (!taskbar) return;
    shown_ = progress;
    if (progress.state != RunProgress::State::None) {
        taskbar->SetProgressValue(window, static_cast<ULONGLONG>(progress.percent), kWhole);
    }
    taskbar->SetProgressState(window, FlagOf(progress.state));
}

void TaskbarButton::CallForAttention(HWND window) {
    if (GetForegroundWindow() == window) return;
    FLASHWINFO flash{};
    flash.cbSize = sizeof flash;
    flash.hwnd = window;
    flash.dwFlags = FLASHW_ALL | FLASHW_TIMERNOFG;
    FlashWindowEx(&flash);
}

}  // namespace keplin::win32
