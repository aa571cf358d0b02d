// What Qt's own bridge to the accessibility bus leaves out.
#pragma once

#include <QString>
#include <QWidget>
#include <chrono>

namespace keplin::qt {

// Has a screen reader speak the text now. It came into the widget's accessible description, and the
// widget has the keyboard focus.
void Announce(QWidget& widget, const QString& text);

// Blocks until then, and meanwhile answers what a screen reader asks about the window: one that
// gets no answer for a second passes over what it was to speak. No event is processed. Returns at
// once when no screen reader is there.
void AnswerScreenReaderUntil(std::chrono::steady_clock::time_point end);

}  // namespace keplin::qt
