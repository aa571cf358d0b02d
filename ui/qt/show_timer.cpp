#include "ui/qt/show_timer.h"

#include <utility>

namespace keplin::qt {

ShowTimer::ShowTimer(Throttle::Interval interval, std::function<void()> show)
    : throttle_(interval), show_(std::move(show)) {
    later_.callOnTimeout([this] { ShowNow(); });
}

void ShowTimer::ShowSoon() {
    const auto wait = throttle_.Changed();
    if (!wait) return;
    if (*wait == Throttle::Interval::zero()) {
        ShowNow();
    } else {
        later_.start(*wait);
    }
}

void ShowTimer::ShowNow() {
    later_.stop();
    show_();
    throttle_.WasShown();
}

}  // namespace keplin::qt
