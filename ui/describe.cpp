#include "ui/describe.h"

#include <array>
#include <charconv>

#include "ui/controls.h"

namespace keplin {
namespace {

std::string Text(const std::string& text) {
    return '"' + text + '"';
}
std::string Text(bool value) {
    return value ? "True" : "False";
}

// The shortest text that gives the number back; whole numbers have no point.
std::string Text(float value) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return {digits.data(), end};
}

// The property's name and its value, for the aspects that only some kinds of control have.
class Describer : public ControlVisitor {
  public:
    explicit Describer(Aspect aspect) : aspect_(aspect) {}

    void Visit(const Form& form) override {
        if (aspect_ == Aspect::WindowState) {
            const bool minimised = form.WindowState.Get() == Form::State::Minimised;
            Line = minimised ? ".WindowState = Minimised" : ".WindowState = Normal";
        } else {
            Line = ".Caption = " + Text(form.Caption);
        }
    }
    void Visit(const Frame& frame) override { Line = ".Caption = " + Text(frame.Caption); }
    void Visit(const Label& label) override {
        Line = aspect_ == Aspect::Bold ? ".Bold = " + Text(label.Bold)
                                       : ".Caption = " + Text(label.Caption);
    }
    void Visit(const Button& button) override { Line = ".Caption = " + Text(button.Caption); }
    void Visit(const ProgressBar& bar) override {
        if (aspect_ == Aspect::Min) Line = ".Min = " + Text(bar.Min);
        if (aspect_ == Aspect::Max) Line = ".Max = " + Text(bar.Max);
        if (aspect_ == Aspect::Value) Line = ".Value = " + Text(bar.Value);
    }
    void Visit(const Panel& panel) override { Line = ".Text = " + Text(panel.Text); }
    void Visit(const Page&) override {}
    void Visit(const Picture&) override {}
    void Visit(const Shape&) override {}
    void Visit(const StatusBar&) override {}
    void Visit(const Timer&) override {}

    std::string Line;

  private:
    const Aspect aspect_;
};

std::string OwnProperty(const Control& control, Aspect aspect) {
    Describer describer(aspect);
    control.Accept(describer);
    return describer.Line;
}

}  // namespace

std::string Describe(const Control& control, Aspect aspect) {
    switch (aspect) {
        case Aspect::Visible:
            return control.Name + ".Visible = " + Text(control.Visible);
        case Aspect::Enabled:
            return control.Name + ".Enabled = " + Text(control.Enabled);
        case Aspect::Left:
            return control.Name + ".Left = " + Text(control.Left);
        case Aspect::Top:
            return control.Name + ".Top = " + Text(control.Top);
        case Aspect::Height:
            return control.Name + ".Height = " + Text(control.Height);
        default:
            return control.Name + OwnProperty(control, aspect);
    }
}

}  // namespace keplin
