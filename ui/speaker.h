// Lets a screen reader speak what is new in the window. The news is the accessible description of
// the button with the keyboard focus: read when the focus comes to it, announced while it is there.
#pragma once

#include "ui/drawing.h"
#include "ui/spoken_texts.h"

namespace keplin {

class Speaker {
  public:
    // Both must outlive it.
    Speaker(const ISPMain& model, Drawing& drawing) : drawing_(drawing), texts_(model) {}

    // The drawing has followed a change of the model. It is announced at the next round of events,
    // together with what else changes until then.
    void Changed(const Control& control, Aspect aspect);

    // That round has come.
    void Speak();

    // The focus has come to the button, and the screen reader does not know yet.
    void FocusCame(const Button& button);

  private:
    Drawing& drawing_;
    SpokenTexts texts_;
    // Where a screen reader has the focus: it stays there while the window itself has it.
    const Button* focused_ = nullptr;
    bool due_ = false;
};

}  // namespace keplin
