#include "ui/speaker.h"

namespace keplin {

void Speaker::Changed(const Control& control, Aspect aspect) {
    if (!drawing_.IsHeard() || !texts_.Changed(control, aspect) || due_) return;
    due_ = true;
    drawing_.SpeakSoon();
}

// What comes while the focused button is out of sight waits for the focus.
void Speaker::Speak() {
    due_ = false;
    if (focused_ == nullptr || !focused_->Shown()) return;
    const std::string news = texts_.Take();
    if (news.empty()) return;
    drawing_.Describe(*focused_, news);
    drawing_.Announce(*focused_, news);
}

void Speaker::FocusCame(const Button& button) {
    if (&button == focused_) return;
    if (focused_ != nullptr) drawing_.Describe(*focused_, "");
    focused_ = &button;
    const std::string news = texts_.Take();
    drawing_.Describe(button, news.empty() ? texts_.Latest() : news);
}

}  // namespace keplin
