// One control of the model as it is drawn.
#pragma once

#include <QColor>
#include <QPainter>
#include <QWidget>

#include "ui/qt/look.h"

namespace keplin::qt {

class Drawn {
  public:
    virtual ~Drawn() = default;

    // Takes over from the model what the aspect names.
    virtual void Apply(Aspect aspect) = 0;

    // A neighbour came or went, which may leave the control more room or less.
    virtual void Refit() {}
};

// Takes over what every control has: visible, enabled, place, and with its caption what a screen
// reader is told of it. Other aspects are passed over.
void ApplyCommon(QWidget& widget, const Control& control, const Scale& scale, Aspect aspect);

// Gives a new widget all that every control has.
void SetUp(QWidget& widget, const Control& control, const Scale& scale);

// Tells a screen reader what the control is now.
void TellWhatItIs(QWidget& widget, const Control& control);

// Draws the rectangle's outline along its inside, one pixel of the screen wide.
void DrawOutline(QPainter& painter, const QRectF& rectangle, const QColor& colour);

}  // namespace keplin::qt
