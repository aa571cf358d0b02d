// What every control of the window has, and the window itself.
#pragma once

#include <cstdint>
#include <string>

#include "ui/property.h"

namespace keplin {

class ControlVisitor;
class Form;

// Twips: 1440 to the inch, 15 to a pixel at 96 dpi. Measured from the top-left corner of the
// control's container: the window's client area, a page, or a frame.
struct Place {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
};

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    friend bool operator==(const Colour&, const Colour&) = default;
};

class Control {
  public:
    // The form keeps the control, unless it is itself, and must outlive it. `container` is nullptr
    // for a control that stands directly on the form.
    Control(Form& form, const Control* container, std::string name, Place place);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    virtual void Accept(ControlVisitor& visitor) const = 0;

    // Visible itself and with it every container around it.
    [[nodiscard]] bool Shown() const;

    const std::string Name;          // under which the design knows it, "lblPrg(0)"
    const Control* const Container;  // nullptr: the window's client area
    const float Width;               // twips

    Property<bool> Visible;
    Property<bool> Enabled;
    Property<float> Left;    // twips
    Property<float> Top;     // twips
    Property<float> Height;  // twips

  private:
    friend void TellObserver(const Control& owner, Aspect aspect);
    Form& form_;
};

}  // namespace keplin
