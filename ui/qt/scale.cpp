#include "ui/qt/scale.h"

#include <cmath>

namespace keplin::qt {
namespace {

constexpr double kTwipsPerInch = 1440;

}  // namespace

double Scale::Fitting(float twips, int pixels) {
    return pixels * kTwipsPerInch / static_cast<double>(twips);
}

int Scale::Pixels(float twips) const {
    return static_cast<int>(std::lround(static_cast<double>(twips) * dpi_ / kTwipsPerInch));
}

QRect Scale::Pixels(const Place& place) const {
    const int left = Pixels(place.left);
    const int top = Pixels(place.top);
    return {left, top, Pixels(place.left + place.width) - left,
            Pixels(place.top + place.height) - top};
}

QRect Scale::PlaceOf(const Control& control) const {
    return Pixels(Place{control.Left, control.Top, control.Width, control.Height});
}

}  // namespace keplin::qt
