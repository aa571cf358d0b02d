#include "ui/controls.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace keplin {

Page::Page(Form& form, std::string name, Place place, Colour background)
    : Control(form, nullptr, std::move(name), place), Background(background) {}

Frame::Frame(Form& form, const Control& page, std::string name, std::string caption, Place place,
             Colour background)
    : Control(form, &page, std::move(name), place),
      Background(background),
      Caption(*this, Aspect::Caption, std::move(caption)) {}

Label::Label(Form& form, const Control* container, std::string name, std::string caption,
             Place place, TextStyle style)
    : Control(form, container, std::move(name), place),
      Style(style),
      Caption(*this, Aspect::Caption, std::move(caption)),
      Bold(*this, Aspect::Bold, style.bold) {}

Button::Button(Form& form, const Control* container, std::string name, std::string caption,
               Place place, int tabIndex)
    : Control(form, container, std::move(name), place),
      TabIndex(tabIndex),
      Caption(*this, Aspect::Caption, std::move(caption)) {}

bool Button::CanBePressed() const {
    return Enabled && Shown();
}

std::string Button::CaptionWithoutShortcut() const {
    std::string text;
    for (const char letter : Caption.Get())
        text.append(letter == '&' ? 2 : 1, letter);
    return text;
}

void Button::Press() const {
    if (CanBePressed() && OnClick) OnClick();
}

Picture::Picture(Form& form, const Control* container, std::string name, Image image,
                 std::string description, Place place)
    : Control(form, container, std::move(name), place),
      Shows(image),
      Description(std::move(description)) {}

Shape::Shape(Form& form, std::string name, Place place, std::optional<Colour> fill)
    : Control(form, nullptr, std::move(name), place), Fill(fill) {}

ProgressBar::ProgressBar(Form& form, const Control* container, std::string name,
                         std::string description, Place place)
    : Control(form, container, std::move(name), place),
      Description(std::move(description)),
      Min(*this, Aspect::Min, 0),
      Max(*this, Aspect::Max, 100),
      Value(*this, Aspect::Value, 0) {}

float ProgressBar::Done() const {
    const float range = Max - Min;
    return range > 0 ? std::clamp((Value - Min) / range, 0.0F, 1.0F) : 0.0F;
}

std::string ProgressBar::DoneText() const {
    if (Counts == Unit::Percent) return std::to_string(std::lround(100 * Done())) + " %";
    const auto lines = [](float count) {
        std::string digits = std::to_string(std::lround(count));
        if (digits.size() > 3) digits.insert(digits.size() - 3, ",");
        return digits;
    };
    return "line " + lines(std::min(Value + 1, Max.Get())) + " of " + lines(Max);
}

Panel::Panel(Form& form, const Control& bar, std::string name, std::string description,
             float minimumWidth, Alignment alignment, PanelSizing sizing)
    : Control(form, &bar, std::move(name), {0, 0, minimumWidth, bar.Height}),
      Description(std::move(description)),
      MinimumWidth(minimumWidth),
      TextAlignment(alignment),
      Sizing(sizing),
      Text(*this, Aspect::Text, "") {}

StatusBar::StatusBar(Form& form, std::string name, float height, float aboveBottom)
    : Control(form, nullptr, std::move(name), {.height = height}), AboveBottom(aboveBottom) {}

void StatusBar::Add(std::unique_ptr<Panel> panel) {
    panels_.push_back(std::move(panel));
}

Timer::Timer(Form& form, std::string name, int interval)
    : Control(form, nullptr, std::move(name), {}), Interval(interval) {
    Enabled = false;
}

void Timer::Tick() const {
    if (Enabled && OnTimer) OnTimer();
}

void Page::Accept(ControlVisitor& visitor) const {
    visitor.Visit(*this);
}
void Frame::Accept(ControlVisitor& visitor) const {
    visitor.Visit(*this);
}
void Label::Accept(ControlVisitor& visitor) const {
    visitor.Visit(*this);
}
void Button::Accept(ControlVisitor& visitor) const {
    visitor.Visit(*this);
}
void Picture::Accept(ControlVisitor& visitor) const {
    visitor.Visit(*this);
}
void Shape::Accept(ControlVisitor& visitor) const {
    visitor.Visit(*this);
}
void ProgressBar::Accept(ControlVisitor& visitor) const {
    visitor.Visit(*this);
}
void StatusBar::Accept(ControlVisitor& visitor) const {
    visitor.Visit(*this);
}
void Panel::Accept(ControlVisitor& visitor) const {
    visitor.Visit(*this);
}
void Timer::Accept(ControlVisitor& visitor) const {
    visitor.Visit(*this);
}

}  // namespace keplin
