// Twips and pixels, at the logical dots per inch of the desktop.
#pragma once

#include "ui/controls.h"
#include "ui/rect.h"

namespace keplin {

class Scale {
  public:
    // `dpi`: logical dots per inch, 96 on a desktop that magnifies nothing.
    explicit Scale(double dpi) : dpi_(dpi) {}

    [[nodiscard]] double DotsPerInch() const { return dpi_; }

    // The pixel nearest to a distance in twips.
    [[nodiscard]] int Pixels(float twips) const;

    // A place with each edge at its nearest pixel, so that neighbours meet and never overlap.
    [[nodiscard]] PixelRect Pixels(const Place& place) const;

    // Where a control stands in its container. For all but status bars and their panels.
    [[nodiscard]] PixelRect PlaceOf(const Control& control) const;

    // Where a status bar stands in the window: it follows the bottom edge of the client area.
    [[nodiscard]] PixelRect PlaceAtBottom(const StatusBar& bar, const Form& window) const;

    // The window's client area.
    [[nodiscard]] PixelSize ClientSize(const Form& window) const;

  private:
    double dpi_;
};

// As many dots per inch as the desktop has, or fewer on a screen that could not show all buttons.
// `screen` is the part of it that windows may take, in pixels; one without a size stands for no
// screen at all: the desktop has them switched off.
double FittingDotsPerInch(double desktop, PixelSize screen, const Form& window);

// Where a window of that outer size stands in the middle of the screen.
PixelRect Centred(PixelSize window, const PixelRect& screen);

}  // namespace keplin
