// A property of a control: remembers what was set, tells when that changes, and describes itself.
#pragma once

#include <string>
#include <utility>

namespace keplin {

class Control;
class PropertyBase;

// Which property of a control.
enum class Aspect {
    Visible,
    Enabled,
    Left,
    Top,
    Height,
    Caption,
    Text,
    Bold,
    Min,
    Max,
    Value,
    WindowState,
};

// Its name, "Caption".
const char* NameOf(Aspect aspect);

// Told once for each change, after it happened. Must not set properties itself.
class Observer {
  public:
    virtual ~Observer() = default;
    virtual void Changed(const Control& control, const PropertyBase& property) = 0;
};

// What a property is, as a trace writes it: "a text" in quotes, True or False, and a number, which
// in this window is a whole one.
std::string Written(const std::string& text);
std::string Written(bool value);
std::string Written(float value);

// A property of any type.
class PropertyBase {
  public:
    virtual ~PropertyBase() = default;
    PropertyBase(const PropertyBase&) = delete;
    PropertyBase& operator=(const PropertyBase&) = delete;

    // Whose it is, its name and what it is now: lblPrgm.Caption = "All Blocks Erased".
    [[nodiscard]] std::string Line() const;

    const Aspect Which;

  protected:
    PropertyBase(const Control& owner, Aspect aspect) : Which(aspect), owner_(owner) {}
    void TellObservers() const;

  private:
    [[nodiscard]] virtual std::string WrittenValue() const = 0;

    const Control& owner_;
};

template <typename T>
class Property final : public PropertyBase {
  public:
    Property(const Control& owner, Aspect aspect, T initial)
        : PropertyBase(owner, aspect), value_(std::move(initial)) {}

    // Setting the value that already stands is no change and tells nobody.
    Property& operator=(T value) {
        if (value == value_) return *this;
        value_ = std::move(value);
        TellObservers();
        return *this;
    }

    operator const T&() const { return value_; }
    [[nodiscard]] const T& Get() const { return value_; }

  private:
    [[nodiscard]] std::string WrittenValue() const override { return Written(value_); }

    T value_;
};

}  // namespace keplin
