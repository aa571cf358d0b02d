#include "ui/form.h"

#include <utility>

#include "ui/controls.h"

namespace keplin {
namespace {

// What the frame of the design takes of the window's height: the title bar's 270 twips above the
// client area and a border of 45 below it.
constexpr float kFrameHeight = 270 + 45;

}  // namespace

Form::Form(std::string name, std::string title, float width, float height)
    : Control(*this, nullptr, std::move(name), {0, 0, width, height}),
      Caption(*this, Aspect::Caption, std::move(title)),
      WindowState(*this, Aspect::WindowState, State::Normal) {
    Visible = false;
}

void Form::Accept(ControlVisitor& visitor) const {
    visitor.Visit(*this);
}

float Form::ClientHeight() const {
    return Height - kFrameHeight;
}

void Form::RequestClose() const {
    if (OnCloseRequest) OnCloseRequest();
}

Observation::Observation(Form& form, Observer& observer) : form_(form), observer_(observer) {
    form_.observers_.push_back(&observer_);
}

Observation::~Observation() {
    std::erase(form_.observers_, &observer_);
}

}  // namespace keplin
