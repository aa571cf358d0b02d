// Follows the model for a drawing: at each change it does in their order what every drawing has to
// do, and it takes what the technician does. A drawing
//
//   1. makes its Follower, which calls nothing yet;
//   2. makes its controls as the model has them, focusable buttons in TabOrder;
//   3. calls Start;
//   4. hands back each event by the functions below.
#pragma once

#include "ui/focus_keeper.h"
#include "ui/isp_main.h"
#include "ui/press_guard.h"
#include "ui/speaker.h"

namespace keplin {

// The keys that press a button.
enum class PressKey { Enter, Space };

enum class KeyEffect {
    None,    // the key is used up and does nothing
    PassOn,  // the toolkit's button does with it what it always does: on Space it goes down, and is
             // pressed when the key comes up
    Press,   // the button is pressed now
};

class Follower : public Observer {
  public:
    // The model and the drawing must outlive it. `clock` tells since when a button can be pressed.
    Follower(ISPMain& model, Drawing& drawing,
             PressGuard::Clock clock = std::chrono::steady_clock::now);

    [[nodiscard]] const std::vector<const Button*>& TabOrder() const { return focus_.TabOrder(); }

    // Every control is made, and the model's window still hidden: gives the title and the size,
    // puts the status bars in their place, and follows the model from here on.
    void Start();

    void Changed(const Control& control, const PropertyBase& property) override;

    // The mouse goes down on the button. False: the press is not meant for it and does nothing,
    // also when the mouse comes up.
    [[nodiscard]] bool MouseDown(const Button& button) const { return guard_.Takes(button); }

    // A key goes down while the button has the focus. `repeated`: it has been down all the time.
    [[nodiscard]] KeyEffect KeyDown(const Button& button, PressKey key, bool repeated) const;

    // Tab goes down, or Shift and Tab, where the toolkit does not move the focus by itself.
    void MoveFocus(bool backwards) { focus_.Move(backwards); }

    // A press is complete: by the mouse, by a key, or by a screen reader. Returns when all that the
    // press does is done, which may be an update.
    void Press(const Button& button) { focus_.Press(button); }

    // The window is asked to close: by its title bar, the task bar, or a desktop that ends and asks
    // like them.
    // Whether it closes is the model's to decide; the drawing itself does not close it.
    void CloseAsked();

    // The focus has come to the button, by the technician or by Drawing::Focus. To be called before
    // a screen reader is told.
    void FocusCame(const Button& button) { speaker_.FocusCame(button); }

    // What Drawing::SpeakSoon asked for.
    void Speak() { speaker_.Speak(); }

  private:
    void Draw(const Control& control, Aspect aspect);
    void MoveStatusBars();
    void RefitBeside(const Control& control);

    ISPMain& model_;
    Drawing& drawing_;
    FocusKeeper focus_;
    PressGuard guard_;
    Speaker speaker_;
    std::optional<Observation> observation_;  // from Start on
};

}  // namespace keplin
