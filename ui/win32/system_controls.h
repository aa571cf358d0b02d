// The controls that the system paints: one class for each kind of the model's.
#pragma once

#include <windows.h>
// Behind it.
#include <commctrl.h>
#include <oleacc.h>

#include <algorithm>

#include "ui/status_panels.h"
#include "ui/throttle.h"
#include "ui/win32/drawn.h"
#include "ui/win32/utf16.h"

namespace keplin::win32 {

// Takes no press that was not meant for it. A press becomes a message of its own: whoever made it,
// a screen reader for instance, need not wait for what it does.
class ButtonControl final : public Drawn {
  public:
    ButtonControl(const Button& button, const Look& look, HWND container)
        : Drawn(button, look, container, L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP), button_(button) {}

  protected:
    // To the system a single ampersand would be the mark of a shortcut.
    [[nodiscard]] std::string Text() const override {
        std::string text;
        for (const char letter : button_.Caption.Get())
            text.append(letter == '&' ? 2 : 1, letter);
        return text;
    }

    LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override {
        switch (message) {
            case WM_LBUTTONDOWN:
            case WM_LBUTTONDBLCLK:
                if (!look_.follower.MouseDown(button_)) return 0;
                break;
            case WM_KEYDOWN:
                if (TakeKey(first, second)) return 0;
                break;
            case WM_SETFOCUS:
                look_.focused = &button_;
                look_.follower.FocusCame(button_);
                break;
            case kPress:
                if (look_.mayAct()) look_.follower.Press(button_);
                return 0;
            default:
                break;
        }
        return Drawn::OnMessage(message, first, second);
    }

  private:
    // True when the key is used up.
    bool TakeKey(WPARAM key, LPARAM details) {
        if (key == VK_TAB) SendMessageW(GetAncestor(Handle(), GA_ROOT), WM_KEYDOWN, key, details);
        if (key != VK_RETURN && key != VK_SPACE) return key == VK_TAB;
        const PressKey pressing = key == VK_RETURN ? PressKey::Enter : PressKey::Space;
        const bool repeated = (HIWORD(details) & KF_REPEAT) != 0;
        const KeyEffect effect = look_.follower.KeyDown(button_, pressing, repeated);
        if (effect == KeyEffect::Press) PostMessageW(Handle(), kPress, 0, 0);
        return effect != KeyEffect::PassOn;
    }

    const Button& button_;
};

// Shown a limited number of times a second however often its value changes.
class ProgressBarControl final : public Drawn {
  public:
    ProgressBarControl(const ProgressBar& bar, const Look& look, HWND container)
        : Drawn(bar, look, container, PROGRESS_CLASSW, PBS_SMOOTH), bar_(bar) {
        ShowSteps(StepsDone(bar));
    }

    void Apply(Aspect aspect) override {
        Drawn::Apply(aspect);
        if (aspect == Aspect::Visible) OnTimer();
        if (aspect == Aspect::Max) StartTimer(Throttle::kBar);  // the value that goes with it first
        if (aspect != Aspect::Value) return;
        const auto pause = throttle_.Changed();
        if (pause) pause->count() == 0 ? OnTimer() : StartTimer(*pause);
    }

  protected:
    void OnTimer() override {
        StopTimer();
        throttle_.WasShown();
        const PixelSize size = InsideOf(Handle());
        const int steps = StepsDone(bar_);
        if (CanBeSeen(steps, shown_, size.width)) ShowSteps(steps);
        const std::string done = bar_.DoneText();
        if (done == std::exchange(told_, done)) return;
        SetToolTip(0, ToRect(size), done);
        Annotate(Handle(), PROPID_ACC_VALUE, done);
    }

  private:
    // The system lets the bar glide to a larger value, which lags behind; back to a smaller one it
    // jumps.
    void ShowSteps(int steps) {
        SendMessageW(Handle(), PBM_SETRANGE32, 0, kBarSteps + 1);
        for (const int shown : {steps + 1, steps})
            SendMessageW(Handle(), PBM_SETPOS, static_cast<WPARAM>(shown), 0);
        SendMessageW(Handle(), PBM_SETRANGE32, 0, kBarSteps);
        shown_ = steps;
    }

    const ProgressBar& bar_;
    Throttle throttle_{Throttle::kBar};
    int shown_ = 0;
    std::string told_ = bar_.DoneText();
};

// With its panels.
class StatusBarControl final : public Drawn {
  public:
    StatusBarControl(const StatusBar& bar, const Look& look, HWND container)
        : Drawn(bar, look, container, STATUSCLASSNAMEW, CCS_NORESIZE | CCS_NOPARENTALIGN),
          bar_(bar) {}

    void Apply(Aspect aspect) override {
        Drawn::Apply(aspect);
        if (aspect == Aspect::Caption || aspect == Aspect::Text) Arrange();
    }

  protected:
    [[nodiscard]] PixelRect PlaceNow() const override {
        return Now().scale.PlaceAtBottom(bar_, look_.model);
    }

  private:
    // Shares the width among the panels by what they show now. A tabulator centres the text behind
    // it.
    void Arrange() {
        constexpr int kBevel = 1;  // pixels
        const auto width = [this](const std::string& text) {
            return Now().fonts.LineSize(text, Now().fit.Font()).width;
        };
        const PixelRect place = PlaceNow();
        const auto panels =
            ArrangePanels(bar_, {place.width, place.height}, Now().scale, kBevel, width);
        std::vector<int> ends(panels.size());
        std::transform(panels.begin(), panels.end(), ends.begin(),
                       [](const PanelView& panel) { return panel.place.Right(); });
        SendMessageW(Handle(), SB_SETPARTS, ends.size(), reinterpret_cast<LPARAM>(ends.data()));
        for (std::size_t i = 0; i < panels.size(); ++i) {
            const bool centred = bar_.Panels(i + 1).TextAlignment == Alignment::Centre;
            const std::wstring text = (centred ? L"\t" : L"") + ToWide(panels[i].text);
            SendMessageW(Handle(), SB_SETTEXTW, i, reinterpret_cast<LPARAM>(text.c_str()));
            SetToolTip(i, ToRect(panels[i].place), panels[i].toolTip);
        }
    }

    const StatusBar& bar_;
};

// A tick that falls due while the system has the thread is left out.
class TimerControl final : public Drawn {
  public:
    TimerControl(const Timer& timer, const Look& look, HWND window)
        : Drawn(timer, look, window, L"STATIC", 0), timer_(timer) {}

    void Apply(Aspect) override {
        timer_.Enabled ? StartTimer(std::chrono::milliseconds(timer_.Interval)) : StopTimer();
    }

  protected:
    void OnTimer() override {
        if (look_.mayAct()) timer_.Tick();
    }

  private:
    const Timer& timer_;
};

}  // namespace keplin::win32
