// The window on the desktop: draws the model and hands back what the technician does.
#pragma once

#include "ui/run_progress.h"
#include "ui/win32/drawn.h"

namespace keplin::win32 {

// What the window sends itself beside kPress.
inline constexpr UINT kCloseAsked = kPress + 1;  // it is to close
inline constexpr UINT kSpeak = kPress + 2;       // there is news to speak

class MainWindow final : public Drawing, public SystemWindow {
  public:
    // Draws the model as it stands and follows it from here on; hidden until the model's window is
    // visible. The model must outlive it. `clock` tells since when a button can be pressed.
    explicit MainWindow(ISPMain& model, PressGuard::Clock clock = std::chrono::steady_clock::now);
    ~MainWindow() override;

    [[nodiscard]] HWND HandleOf(const Control& control) const {
        return drawn_.at(&control)->Handle();
    }
    [[nodiscard]] const Measures& Now() const { return *look_.measures; }

    // Puts something into the window that is not in its model, above all that is.
    template <typename Kind>
    Drawn& Add(const Control& place) {
        return *(drawn_[&place] = std::make_unique<Kind>(place, look_, Handle()));
    }

    // Brings to the screen what is not painted yet.
    void PaintNow() const;

    // Called when the technician presses F1.
    std::function<void()> OnHelp;

    void Apply(const Control& control, Aspect aspect) override;
    void Refit(const Label& label) override { drawn_.at(&label)->Refit(); }
    [[nodiscard]] const Button* Focused() const override { return focused_; }
    void Focus(const Button* button) override;
    void CallForAttention() override;
    [[nodiscard]] bool IsHeard() const override;
    void SpeakSoon() override { PostMessageW(Handle(), kSpeak, 0, 0); }
    void Describe(const Button& button, const std::string& news) override;
    void Announce(const Button& button, const std::string& news) override;

  private:
    LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;
    LRESULT LeaveToSystem(UINT message, WPARAM first, LPARAM second);
    void ShowInTaskbar(const Control& changed);

    [[nodiscard]] UINT ScreenDots() const;
    [[nodiscard]] double DotsPerInch() const;
    void Rescale();
    void ApplyToWindow(Aspect aspect);
    void ApplySize() const;
    void ShowCentred() const;

    ISPMain& model_;
    Follower follower_;
    Look look_;
    DrawnControls drawn_;
    const Button* focused_ = nullptr;
    RunProgress inTaskbar_;
    UINT screenDots_;   // per inch
    int inSystem_ = 0;  // the system's own loops that are at work
};

}  // namespace keplin::win32
