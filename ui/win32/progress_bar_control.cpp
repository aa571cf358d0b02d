#include <windows.h>
// Behind it.
#include <commctrl.h>

#include "ui/accessible_text.h"
#include "ui/throttle.h"
#include "ui/win32/drawn.h"

namespace keplin::win32 {
namespace {

// Shown a limited number of times a second however often its value changes.
class ProgressBarControl final : public Drawn {
  public:
    ProgressBarControl(const ProgressBar& bar, const Look& look, HWND container)
        : Drawn(bar, look), bar_(bar) {
        Create(container, PROGRESS_CLASSW, PBS_SMOOTH);
        SetText(AccessibleTextOf(bar).name);
        ShowSteps(StepsDone(bar));
    }

    void Apply(Aspect aspect) override {
        if (aspect == Aspect::Value) {
            const auto pause = throttle_.Changed();
            if (pause) pause->count() == 0 ? ShowDone() : StartTimer(*pause);
        } else {
            if (aspect == Aspect::Visible) ShowDone();
            Drawn::Apply(aspect);
        }
    }

  protected:
    LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override {
        // The system's bar has timers of its own.
        if (message != WM_TIMER || first != kTimer) return Drawn::OnMessage(message, first, second);
        ShowDone();
        return 0;
    }

  private:
    void ShowDone() {
        StopTimer();
        throttle_.WasShown();
        const int steps = StepsDone(bar_);
        if (CanBeSeen(steps, shown_, InsideOf(Handle()).width)) ShowSteps(steps);
    }

    // The system lets the bar glide to a larger value, which lags behind; back to a smaller one it
    // jumps.
    void ShowSteps(int steps) {
        SendMessageW(Handle(), PBM_SETRANGE32, 0, kBarSteps + 1);
        SendMessageW(Handle(), PBM_SETPOS, static_cast<WPARAM>(steps) + 1, 0);
        SendMessageW(Handle(), PBM_SETPOS, static_cast<WPARAM>(steps), 0);
        SendMessageW(Handle(), PBM_SETRANGE32, 0, kBarSteps);
        shown_ = steps;
    }

    const ProgressBar& bar_;
    Throttle throttle_{Throttle::kBar};
    int shown_ = 0;
};

}  // namespace

std::unique_ptr<Drawn> Make(const ProgressBar& bar, const Look& look, HWND container) {
    return std::make_unique<ProgressBarControl>(bar, look, container);
}

}  // namespace keplin::win32
