#include "ui/speaker.h"

#include <utility>

namespace keplin {

void Speaker::Changed(const Control& control, Aspect aspect) {
    if (!texts_.Changed(control, aspect)) return;
    if (!drawing_.IsHeard()) return texts_.Drop();
    if (std::exchange(due_, true)) return;
    drawing_.SpeakSoon();
}

// What comes while the focused button is out of sight waits for the focus.
void Speaker::Speak() {
    due_ = false;
    if (focused_ == nullptr || !focused_->Shown() || !drawing_.IsHeard()) return;
    const std::string news = texts_.Take();
    if (news.empty()) return;
    drawing_.Describe(*focused_, news);
    drawing_.Announce(*focused_, news);
}

void Speaker::FocusCame(const Button& button) {
    if (&button == focused_) return;
    const Button* before = std::exchange(focused_, &button);
    if (before == nullptr && !texts_.IsAnyNew()) return;
    if (!drawing_.IsHeard()) return;
    if (before != nullptr) drawing_.Describe(*before, "");
    const std::string news = texts_.Take();
    drawing_.Describe(button, news.empty() ? texts_.Latest() : news);
}

}  // namespace keplin
