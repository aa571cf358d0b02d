#include "ui/controls.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace keplin {
namespace {

// What the frame of the design takes of the window's height: the title bar's 270 twips above the
// client area and a border of 45 below it.
constexpr float kFrameHeight = 270 + 45;

}  // namespace

Form::Form(ControlList& list, std::string name, std::string title, float width, float height)
    : Control(list, nullptr, std::move(name), {0, 0, width, height}),
      Caption(*this, Aspect::Caption, std::move(title)),
      WindowState(*this, Aspect::WindowState, State::Normal) {
    Visible = false;
}

float Form::ClientHeight() const {
    return Height - kFrameHeight;
}

void Form::RequestClose() const {
    if (OnCloseRequest) OnCloseRequest();
}

Page::Page(ControlList& list, std::string name, Place place, Colour background)
    : Control(list, nullptr, std::move(name), place), Background(background) {}

Frame::Frame(ControlList& list, const Control& page, std::string name, std::string caption,
             Place place, Colour background)
    : Control(list, &page, std::move(name), place),
      Background(background),
      Caption(*this, Aspect::Caption, std::move(caption)) {}

Label::Label(ControlList& list, const Control* container, std::string name, std::string caption,
             Place place, TextStyle style)
    : Control(list, container, std::move(name), place),
      Style(style),
      Caption(*this, Aspect::Caption, std::move(caption)),
      Bold(*this, Aspect::Bold, style.bold) {}

Button::Button(ControlList& list, const Control* container, std::string name, std::string caption,
               Place place, int tabIndex)
    : Control(list, container, std::move(name), place),
      TabIndex(tabIndex),
      Caption(*this, Aspect::Caption, std::move(caption)) {}

bool Button::CanBePressed() const {
    return Enabled && Shown();
}

void Button::Press() const {
    if (CanBePressed() && OnClick) OnClick();
}

Picture::Picture(ControlList& list, const Control* container, std::string name, Image image,
                 std::string description, Place place)
    : Control(list, container, std::move(name), place),
      Shows(image),
      Description(std::move(description)) {}

Shape::Shape(ControlList& list, std::string name, Place place, std::optional<Colour> fill)
    : Control(list, nullptr, std::move(name), place), Fill(fill) {}

ProgressBar::ProgressBar(ControlList& list, const Control* container, std::string name,
                         std::string description, Place place)
    : Control(list, container, std::move(name), place),
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

Panel::Panel(ControlList& list, const Control& bar, std::string name, std::string description,
             float minimumWidth, Alignment alignment, PanelSizing sizing)
    : Control(list, &bar, std::move(name), {0, 0, minimumWidth, bar.Height}),
      Description(std::move(description)),
      MinimumWidth(minimumWidth),
      TextAlignment(alignment),
      Sizing(sizing),
      Text(*this, Aspect::Caption, "") {}

StatusBar::StatusBar(ControlList& list, std::string name, Place place, float aboveBottom)
    : Control(list, nullptr, std::move(name), place), AboveBottom(aboveBottom) {}

void StatusBar::Add(std::unique_ptr<Panel> panel) {
    panels_.push_back(std::move(panel));
}

Panel& StatusBar::Panels(std::size_t number) const {
    return *panels_.at(number - 1);
}

Timer::Timer(ControlList& list, std::string name, int interval)
    : Control(list, nullptr, std::move(name), {}), Interval(interval) {
    Enabled = false;
}

void Timer::Tick() const {
    if (Enabled && OnTimer) OnTimer();
}

void Form::Accept(ControlVisitor& visitor) const {
    visitor.Visit(*this);
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
