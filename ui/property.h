// A property of a control: remembers what was set and tells when that changes.
#pragma once

#include <utility>

namespace keplin {

class Control;

// Which property of a control changed.
enum class Aspect {
    Visible,
    Enabled,
    Left,
    Top,
    Height,
    Caption,
    Bold,
    Min,
    Max,
    Value,
    WindowState,
};

// Told once for each change, after it happened. Must not set properties itself.
class Observer {
  public:
    virtual ~Observer() = default;
    virtual void Changed(const Control& control, Aspect aspect) = 0;
};

// Hands a change of `owner` to the window's observers.
void TellObserver(const Control& owner, Aspect aspect);

template <typename T>
class Property {
  public:
    Property(const Control& owner, Aspect aspect, T initial)
        : owner_(owner), aspect_(aspect), value_(std::move(initial)) {}
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;

    // Setting the value that already stands is no change and tells nobody.
    Property& operator=(T value) {
        if (value == value_) return *this;
        value_ = std::move(value);
        TellObserver(owner_, aspect_);
        return *this;
    }

    operator const T&() const { return value_; }
    [[nodiscard]] const T& Get() const { return value_; }

  private:
    const Control& owner_;
    const Aspect aspect_;
    T value_;
};

}  // namespace keplin
