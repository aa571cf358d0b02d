#include "ui/control.h"

#include <utility>

#include "ui/form.h"

namespace keplin {

Control::Control(Form& form, const Control* container, std::string name, Place place)
    : Name(std::move(name)),
      Container(container),
      Width(place.width),
      Visible(*this, Aspect::Visible, true),
      Enabled(*this, Aspect::Enabled, true),
      Left(*this, Aspect::Left, place.left),
      Top(*this, Aspect::Top, place.top),
      Height(*this, Aspect::Height, place.height),
      form_(form) {
    if (this != &form) form.controls_.push_back(this);
}

bool Control::Shown() const {
    return Visible && (Container == nullptr || Container->Shown());
}

void TellObserver(const Control& owner, Aspect aspect) {
    for (Observer* observer : owner.form_.observers_)
        observer->Changed(owner, aspect);
}

}  // namespace keplin
