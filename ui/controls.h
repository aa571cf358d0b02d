// The kinds of control on the window, each as plain data with its events. A drawing shows each of
// them, calls Tick when a timer acts, and hands what the technician does to its
// Follower.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/form.h"

namespace keplin {

enum class Alignment { Left, Centre };

// How a text is to look; what is left out is the platform's default.
struct TextStyle {
    Alignment alignment = Alignment::Left;
    std::optional<Colour> colour = {};
    std::optional<Colour> background = {};  // none: transparent
    bool border = false;                    // a single line around it
    bool bold = false;
    float points = 0;  // size of the font; 0: the default dialog font

    // What the text tells, where the text itself comes and goes: its name to a screen reader while
    // it is empty.
    const char* description = "";
};

// A plain container; one of them is shown at a time.
class Page : public Control {
  public:
    Page(Form& form, std::string name, Place place, Colour background);
    void Accept(ControlVisitor& visitor) const override;

    const Colour Background;
};

// A container with a captioned outline.
class Frame : public Control {
  public:
    Frame(Form& form, const Control& page, std::string name, std::string caption, Place place,
          Colour background);
    void Accept(ControlVisitor& visitor) const override;
    [[nodiscard]] std::string_view TextToRead() const override { return Caption.Get(); }

    const Colour Background;
    Property<std::string> Caption;
};

// A text that wraps within its width.
class Label : public Control {
  public:
    Label(Form& form, const Control* container, std::string name, std::string caption, Place place,
          TextStyle style = {});
    void Accept(ControlVisitor& visitor) const override;
    [[nodiscard]] std::string_view TextToRead() const override { return Caption.Get(); }

    const TextStyle Style;
    Property<std::string> Caption;
    Property<bool> Bold;
};

class Button : public Control {
  public:
    // `tabIndex` is its place in the order in which the keyboard focus moves, from 0.
    Button(Form& form, const Control* container, std::string name, std::string caption, Place place,
           int tabIndex);
    void Accept(ControlVisitor& visitor) const override;

    // A technician can press it now: it is shown and enabled.
    [[nodiscard]] bool CanBePressed() const;

    // Its caption for a toolkit to which a single ampersand would be the mark of a shortcut.
    [[nodiscard]] std::string CaptionWithoutShortcut() const;

    // What a click does; nothing while it cannot be pressed.
    void Press() const;

    const int TabIndex;
    Property<std::string> Caption;
    std::function<void()> OnClick;
};

class Picture : public Control {
  public:
    enum class Image { Icon, GettingStarted };

    // `description` tells a screen reader what the picture shows.
    Picture(Form& form, const Control* container, std::string name, Image image,
            std::string description, Place place);
    void Accept(ControlVisitor& visitor) const override;

    const Image Shows;
    const std::string Description;
};

// A rectangle: filled with a colour, or an outline one pixel wide in the text colour.
class Shape : public Control {
  public:
    Shape(Form& form, std::string name, Place place, std::optional<Colour> fill);
    void Accept(ControlVisitor& visitor) const override;

    const std::optional<Colour> Fill;
};

// Min, Max and Value keep what was set, also when the value lies outside the range; a drawing
// shows the nearest it can, and an empty range as an empty bar.
class ProgressBar : public Control {
  public:
    // What the range counts: hundredths, or an update's lines from 0.
    enum class Unit { Percent, Lines };

    // `description` tells a screen reader what the bar measures.
    ProgressBar(Form& form, const Control* container, std::string name, std::string description,
                Place place);
    void Accept(ControlVisitor& visitor) const override;

    // The part of the range that is done, 0 to 1.
    [[nodiscard]] float Done() const;

    // How far that is, in words: "line 512 of 4,000" or "33 %".
    [[nodiscard]] std::string DoneText() const;

    const std::string Description;
    Unit Counts = Unit::Percent;
    Property<float> Min;
    Property<float> Max;
    Property<float> Value;
};

// How wide a panel of a status bar becomes.
enum class PanelSizing {
    Share,     // an equal share of what the panels sized by their text leave
    Contents,  // as wide as its text, at least its minimum
};

// One text panel of a status bar, with an inset bevel.
class Panel : public Control {
  public:
    Panel(Form& form, const Control& bar, std::string name, std::string description,
          float minimumWidth, Alignment alignment, PanelSizing sizing);
    void Accept(ControlVisitor& visitor) const override;
    [[nodiscard]] std::string_view TextToRead() const override { return Text.Get(); }

    const std::string Description;  // what its text tells, for a screen reader
    const float MinimumWidth;       // twips
    const Alignment TextAlignment;
    const PanelSizing Sizing;
    Property<std::string> Text;
};

// Stands along the bottom edge of the client area, across its whole width.
class StatusBar : public Control {
  public:
    // `aboveBottom`, as `height` in twips, is the distance from the client area's bottom edge to
    // the bar's top.
    StatusBar(Form& form, std::string name, float height, float aboveBottom);
    void Accept(ControlVisitor& visitor) const override;

    void Add(std::unique_ptr<Panel> panel);
    // `number` counts from 1, as the design does.
    [[nodiscard]] Panel& Panels(std::size_t number) { return *panels_.at(number - 1); }
    [[nodiscard]] const Panel& Panels(std::size_t number) const { return *panels_.at(number - 1); }
    [[nodiscard]] std::size_t PanelCount() const { return panels_.size(); }

    const float AboveBottom;

  private:
    std::vector<std::unique_ptr<Panel>> panels_;
};

class Timer : public Control {
  public:
    Timer(Form& form, std::string name, int interval);
    void Accept(ControlVisitor& visitor) const override;

    // What the drawing calls each time the interval has passed; nothing while disabled.
    void Tick() const;

    const int Interval;  // ms
    std::function<void()> OnTimer;
};

// One function for each kind of control.
class ControlVisitor {
  public:
    virtual ~ControlVisitor() = default;
    virtual void Visit(const Form& form) = 0;
    virtual void Visit(const Page& page) = 0;
    virtual void Visit(const Frame& frame) = 0;
    virtual void Visit(const Label& label) = 0;
    virtual void Visit(const Button& button) = 0;
    virtual void Visit(const Picture& picture) = 0;
    virtual void Visit(const Shape& shape) = 0;
    virtual void Visit(const ProgressBar& bar) = 0;
    virtual void Visit(const StatusBar& bar) = 0;
    virtual void Visit(const Panel& panel) = 0;
    virtual void Visit(const Timer& timer) = 0;
};

}  // namespace keplin
