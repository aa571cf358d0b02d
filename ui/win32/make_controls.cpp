// The controls that the system paints, one class for each kind of the model's. Makes all of them.
#include <windows.h>
// Behind it.
#include <commctrl.h>
#include <oleacc.h>

#include <utility>

#include "platform/win32/utf16.h"
#include "ui/status_panels.h"
#include "ui/win32/painted_controls.h"

namespace keplin::win32 {
namespace {

// Takes no press that was not meant for it.
class ButtonControl final : public DrawnAs<Button> {
  public:
    ButtonControl(const Button& button, const Look& look, HWND container)
        : DrawnAs(button, look, container, L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP) {}

  protected:
    LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override {
        switch (message) {
            case WM_LBUTTONDOWN:
            case WM_LBUTTONDBLCLK:
                if (!look_.follower.MouseDown(model_)) return 0;
                break;
            case WM_KEYDOWN:
                if (TakeKey(first, second)) return 0;
                break;
            case WM_SETFOCUS:
                look_.focused = &model_;
                look_.follower.FocusCame(model_);
                break;
            case kPress:  // by its container: see SystemWindow
                if (look_.mayAct()) look_.follower.Press(model_);
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
        const KeyEffect effect = look_.follower.KeyDown(model_, pressing, repeated);
        if (effect == KeyEffect::Press) PostMessageW(Handle(), kPress, 0, 0);
        return effect != KeyEffect::PassOn;
    }
};

// Shown a limited number of times a second however often its value changes.
class ProgressBarControl final : public DrawnAs<ProgressBar> {
  public:
    ProgressBarControl(const ProgressBar& bar, const Look& look, HWND container)
        : DrawnAs(bar, look, container, PROGRESS_CLASSW, PBS_SMOOTH) {
        SendMessageW(Handle(), PBM_SETRANGE32, 0, kBarSteps);
        ShowSteps(StepsDone(bar));
    }

    void Apply(Aspect aspect) override {
        Drawn::Apply(aspect);
        if (aspect == Aspect::Visible || aspect == Aspect::Top) ShowNow();
        if (aspect == Aspect::Max) StartTimer(Throttle::kBar);  // the value that goes with it first
        if (aspect == Aspect::Value) ShowSoon(throttle_);
    }

  protected:
    void ShowNow() override {
        throttle_.WasShown();
        const PixelSize size = InsideOf(Handle());
        const int steps = StepsDone(model_);
        if (CanBeSeen(steps, shown_, size.width)) ShowSteps(steps);
        const std::string done = model_.DoneText();
        SetToolTip(0, ToRect(size), done);
        Annotate(Handle(), PROPID_ACC_VALUE, done);
    }

  private:
    // The system lets the bar glide to a larger value, which lags behind; back to a smaller one it
    // jumps. A full bar needs room for that.
    void ShowSteps(int steps) {
        const bool full = steps == kBarSteps;
        if (full) SendMessageW(Handle(), PBM_SETRANGE32, 0, kBarSteps + 1);
        for (const int shown : {steps + 1, steps})
            SendMessageW(Handle(), PBM_SETPOS, static_cast<WPARAM>(shown), 0);
        if (full) SendMessageW(Handle(), PBM_SETRANGE32, 0, kBarSteps);
        shown_ = steps;
    }

    Throttle throttle_{Throttle::kBar};
    int shown_ = 0;
};

// With its panels.
class StatusBarControl final : public DrawnAs<StatusBar> {
  public:
    StatusBarControl(const StatusBar& bar, const Look& look, HWND container)
        : DrawnAs(bar, look, container, STATUSCLASSNAMEW, CCS_NORESIZE | CCS_NOPARENTALIGN) {
        Apply(Aspect::Top);
    }

    void Apply(Aspect aspect) override {
        Drawn::Apply(aspect);
        Arrange();
    }

  protected:
    [[nodiscard]] PixelRect PlaceNow() const override {
        return Now().scale.PlaceAtBottom(model_, look_.model);
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
            ArrangePanels(model_, {place.width, place.height}, Now().scale, kBevel, width);
        std::vector<int> ends;
        ends.reserve(panels.size());
        for (const PanelView& panel : panels)
            ends.push_back(panel.place.Right());
        SendMessageW(Handle(), SB_SETPARTS, ends.size(), reinterpret_cast<LPARAM>(ends.data()));
        for (std::size_t i = 0; i < panels.size(); ++i) {
            const bool centred = model_.Panels(i + 1).TextAlignment == Alignment::Centre;
            const std::wstring text = (centred ? L"\t" : L"") + ToWide(panels[i].text);
            SendMessageW(Handle(), SB_SETTEXTW, i, reinterpret_cast<LPARAM>(text.c_str()));
            SetToolTip(i, ToRect(panels[i].place), panels[i].toolTip);
        }
    }
};

// A tick that falls due while the system has the thread is left out.
class TimerControl final : public DrawnAs<Timer> {
  public:
    TimerControl(const Timer& timer, const Look& look, HWND) : DrawnAs(timer, look, HWND_MESSAGE) {
        Apply(Aspect::Enabled);
    }

    void Apply(Aspect) override {
        model_.Enabled ? StartTimer(std::chrono::milliseconds(model_.Interval)) : StopTimer();
    }

  protected:
    void OnTimer() override {
        if (look_.mayAct()) model_.Tick();
    }
};

class Factory : public ControlVisitor {
  public:
    Factory(HWND window, const Look& look) : window_(window), look_(look) {}

    void Visit(const Form&) override {}
    void Visit(const Page& page) override { Add<Container<Page>>(page); }
    void Visit(const Frame& frame) override { Add<FrameControl>(frame); }
    void Visit(const Label& label) override { Add<LabelControl>(label); }
    void Visit(const Button& button) override { Add<ButtonControl>(button); }
    void Visit(const Picture& picture) override { Add<PictureControl>(picture); }
    void Visit(const Shape& shape) override { Add<ShapeControl>(shape); }
    void Visit(const ProgressBar& bar) override { Add<ProgressBarControl>(bar); }
    void Visit(const StatusBar& bar) override { Add<StatusBarControl>(bar); }
    void Visit(const Panel&) override {}
    void Visit(const Timer& timer) override { Add<TimerControl>(timer); }

    DrawnControls Made;

  private:
    template <typename Drawing, typename Kind>
    void Add(const Kind& control) {
        const HWND in = control.Container ? Made.at(control.Container)->Handle() : window_;
        Made[&control] = std::make_unique<Drawing>(control, look_, in);
    }

    const HWND window_;
    const Look& look_;
};

}  // namespace

DrawnControls MakeControls(HWND window, const Look& look) {
    Factory factory(window, look);
    for (const Control* control : look.model.Controls())
        control->Accept(factory);
    return std::move(factory.Made);
}

}  // namespace keplin::win32
