// Twips and pixels, at the logical dots per inch of the desktop.
#pragma once

#include <QRect>

#include "ui/control.h"

namespace keplin::qt {

class Scale {
  public:
    // `dpi`: logical dots per inch, 96 on a desktop that magnifies nothing.
    explicit Scale(double dpi) : dpi_(dpi) {}

    // The pixel nearest to a distance in twips.
    [[nodiscard]] int Pixels(float twips) const;

    // A place with each edge at its nearest pixel, so that neighbours meet and never overlap.
    [[nodiscard]] QRect Pixels(const Place& place) const;

    // Where a control stands in its container.
    [[nodiscard]] QRect PlaceOf(const Control& control) const;

    // The largest dots per inch at which `twips` are at most `pixels`.
    static double Fitting(float twips, int pixels);

  private:
    double dpi_;
};

}  // namespace keplin::qt
