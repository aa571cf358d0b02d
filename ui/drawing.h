// What a drawing has to be: the window's model drawn with one toolkit. This header and the rules
// beside it say how another one is written; what its toolkit makes of the desktop (yield, sleep,
// file dialog) is platform/desktop.h, and app/program.h puts the two together.
//
// A drawing has one object for each control of the model, made in the model's order: a later
// control lies above an earlier one and stands inside its container; a status bar may draw its
// panels itself. It measures texts, paints, and hands back what the technician and the timers do.
// It decides nothing:
//
//   Follower            owns the procedure: calls the drawing at each change, takes what comes back
//   Scale               where everything stands; FittingDotsPerInch at how many dots per inch,
//                       Centred where on the screen
//   TextFit             which font a text is written in, and where in its label
//   ArrangePanels       what the panels of a status bar show, where, with which tool tip
//   Throttle            how often a changing bar or shape is shown
//   TextMeasure         what TextFit asks of the drawing: how large a text becomes
//   AccessibleTextOf    what a screen reader is told of each control, and kBetweenSpokenSteps how
//                       often of a bar's steps
//   ProgressAfter       how an update stands, for what shows it outside the window
//   ui/page_look.h      colours and insets of what is painted on a page
//
// The model outlives its drawing. Everything happens on one thread. Texts are UTF-8, but a file's
// name may hold bytes that are none: such a byte is shown as a replacement character, and nothing
// fails over it.
//
// Re-entrancy: a press runs the program, which sets properties and now and then yields, and a yield
// processes the window's events once. So every function of Drawing may be called while a press or a
// tick is at work further down the stack, and another press or tick may begin there. The drawing
// calls the Follower only where the toolkit hands it an event, never from within Apply or Refit;
// the one exception is FocusCame, which may come from within Focus and Apply.
#pragma once

#include <string>

#include "ui/controls.h"

namespace keplin {

class Drawing {
  public:
    virtual ~Drawing() = default;

    // Takes over from the model what the aspect names, whether the control is in sight or not.
    // What stands in the model may have changed further by then. Must not wait for anything.
    //
    // For the window itself: Caption is its title; Height its outer height, so that the client area
    // becomes Scale::ClientSize; Visible shows it in the middle of the screen or hides it;
    // WindowState minimises it. For a status bar Top means that the bottom edge has moved. A timer
    // runs while it is Enabled, and what it calls is Timer::Tick. A shape whose Left changes is
    // only moved: a width that changed with the rounding would shimmer.
    //
    // For a progress bar Min and Max show nothing at once, but together with the Value that is set
    // next: a new range around an old value is no progress. Where that Value is the old one no call
    // comes: the bar is right a moment later, or when it is shown next. Visible shows at once where
    // it stands. Its tool tip is DoneText.
    virtual void Apply(const Control& control, Aspect aspect) = 0;

    // A neighbour of the label came or went: its TextFit::FontOf may be another one now. Apply does
    // the same for the label that it is called for.
    virtual void Refit(const Label& label) = 0;

    // The button that has the keyboard focus, or has it as soon as the window is the active one;
    // nullptr where that is the window itself or nothing.
    [[nodiscard]] virtual const Button* Focused() const = 0;

    // Gives the focus to the button, or to the window itself (nullptr), where no key presses
    // anything. The button can be pressed. The window need not be active or shown.
    virtual void Focus(const Button* button) = 0;

    // The technician has waited for this moment: the desktop marks the window until they turn to
    // it. Does nothing where it is the active one.
    virtual void CallForAttention() = 0;

    // A screen reader is listening. While it is not, none of the three below is called.
    [[nodiscard]] virtual bool IsHeard() const = 0;

    // Follower::Speak is to be called once, when the toolkit processes events next.
    virtual void SpeakSoon() = 0;

    // From now on this is the button's accessible description; "" takes it away. It is not to be
    // announced as a change.
    virtual void Describe(const Button& button, const std::string& news) = 0;

    // The screen reader speaks the text now. Its focus is on the button, where it stays while the
    // window itself has the keyboard's: a drawing does not tell of the window's.
    virtual void Announce(const Button& button, const std::string& news) = 0;
};

}  // namespace keplin
