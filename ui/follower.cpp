#include "ui/follower.h"

#include <utility>

namespace keplin {

Follower::Follower(ISPMain& model, Drawing& drawing, PressGuard::Clock clock)
    : model_(model),
      drawing_(drawing),
      focus_(model.Controls(), drawing),
      guard_(model, std::move(clock)),
      speaker_(model, drawing) {
    for (const Button* button : focus_.TabOrder())
        guard_.Add(*button);
}

void Follower::Start() {
    for (const Aspect aspect : {Aspect::Caption, Aspect::Height})
        Draw(model_, aspect);
    observation_.emplace(model_, *this);
}

void Follower::Changed(const Control& control, const PropertyBase& property) {
    const Aspect aspect = property.Which;
    const bool reach = aspect == Aspect::Visible || aspect == Aspect::Enabled;
    if (reach) focus_.BeforeChange();
    Draw(control, aspect);
    if (reach) {
        focus_.AfterChange();
        guard_.AfterChange();
        if (EndsAWait(model_, control, aspect)) drawing_.CallForAttention();
    }
    speaker_.Changed(control, aspect);
}

void Follower::Draw(const Control& control, Aspect aspect) {
    drawing_.Apply(control, aspect);
    if (&control == &model_) {
        if (aspect == Aspect::Height) MoveStatusBars();
    } else if (aspect == Aspect::Visible) {
        RefitBeside(control);
    }
}

// The status bars follow the bottom edge.
void Follower::MoveStatusBars() {
    for (const Control* control : model_.Controls()) {
        if (dynamic_cast<const StatusBar*>(control)) drawing_.Apply(*control, Aspect::Top);
    }
}

void Follower::RefitBeside(const Control& control) {
    for (const Control* other : model_.Controls()) {
        const auto* label = dynamic_cast<const Label*>(other);
        if (label && label->Container == control.Container) drawing_.Refit(*label);
    }
}

// A key that is held down presses once.
KeyEffect Follower::KeyDown(const Button& button, PressKey key, bool repeated) const {
    if (repeated || !guard_.Takes(button)) return KeyEffect::None;
    return key == PressKey::Enter ? KeyEffect::Press : KeyEffect::PassOn;
}

// A request that waited for a pause to end, or came just after it, is passed over like a press of
// Close. Some desktops that log out ask the same way; they are not held up, and end the program by
// themselves where the model does not.
void Follower::CloseAsked() {
    if (guard_.Takes(model_.cmdExit)) model_.RequestClose();
}

}  // namespace keplin
