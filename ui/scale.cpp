#include "ui/scale.h"

#include <algorithm>
#include <cmath>

#include "ui/isp_main.h"

namespace keplin {
namespace {

constexpr double kTwipsPerInch = 1440;

// Pixels that the desktop's frame may take of the screen: its sides together, its title bar.
constexpr PixelSize kFrameRoom{4, 40};

// The largest dots per inch at which `twips` are at most `pixels`.
double Fitting(float twips, int pixels) {
    return pixels * kTwipsPerInch / static_cast<double>(twips);
}

}  // namespace

int Scale::Pixels(float twips) const {
    return static_cast<int>(std::lround(static_cast<double>(twips) * dpi_ / kTwipsPerInch));
}

PixelRect Scale::Pixels(const Place& place) const {
    const int left = Pixels(place.left);
    const int top = Pixels(place.top);
    return {left, top, Pixels(place.left + place.width) - left,
            Pixels(place.top + place.height) - top};
}

PixelRect Scale::PlaceOf(const Control& control) const {
    return Pixels(Place{control.Left, control.Top, control.Width, control.Height});
}

PixelRect Scale::PlaceAtBottom(const StatusBar& bar, const Form& window) const {
    const float top = window.ClientHeight() - bar.AboveBottom;
    return Pixels(Place{0, top, window.Width, bar.Height});
}

PixelSize Scale::ClientSize(const Form& window) const {
    return {Pixels(window.Width), Pixels(window.ClientHeight())};
}

double FittingDotsPerInch(double desktop, PixelSize screen, const Form& window) {
    const PixelSize room{screen.width - kFrameRoom.width, screen.height - kFrameRoom.height};
    if (room.width <= 0 || room.height <= 0) return desktop;
    const float height = window.ClientHeight() - window.Height + kShownHeight;
    return std::min({desktop, Fitting(window.Width, room.width), Fitting(height, room.height)});
}

PixelRect Centred(PixelSize window, const PixelRect& screen) {
    const auto middle = [](int from, int room, int size) {
        return from + (room - 1) / 2 - (size - 1) / 2;
    };
    return {middle(screen.left, screen.width, window.width),
            middle(screen.top, screen.height, window.height), window.width, window.height};
}

}  // namespace keplin
