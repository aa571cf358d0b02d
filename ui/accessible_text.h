// What a screen reader is told of each control.
#pragma once

#include <chrono>
#include <string>

#include "ui/controls.h"

namespace keplin {

struct AccessibleText {
    std::string name;         // never empty for what a technician can see
    std::string description;  // what the name tells, where that comes and goes
    std::string value;        // of a progress bar: how far it is, in words
};

// As the control stands now; to be asked again when its Caption, Text or Value changes. A button
// has no description but that which Drawing::Describe gives it. The window, whose title says what
// it is, pages, shapes, bars around panels and timers have nothing.
AccessibleText AccessibleTextOf(const Control& control);

// A step of a progress bar that comes sooner after the one told last is not worth a word.
inline constexpr std::chrono::milliseconds kBetweenSpokenSteps{1000};

}  // namespace keplin
