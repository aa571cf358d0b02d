#include "ui/throttle.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace keplin {

Throttle::Throttle(Interval interval, std::function<Moment()> clock)
    : interval_(interval), clock_(std::move(clock)) {}

std::optional<Throttle::Interval> Throttle::Changed() {
    if (waiting_) return std::nullopt;
    if (!shown_) return Interval::zero();
    const auto passed = std::chrono::duration_cast<Interval>(clock_() - *shown_);
    const Interval left = std::max(interval_ - passed, Interval::zero());
    waiting_ = left > Interval::zero();
    return left;
}

void Throttle::WasShown() {
    shown_ = clock_();
    waiting_ = false;
}

int StepsDone(const ProgressBar& bar) {
    return static_cast<int>(std::lround(bar.Done() * static_cast<float>(kBarSteps)));
}

bool CanBeSeen(int steps, int shown, int width) {
    const bool isEnd = steps == 0 || steps == kBarSteps;
    return isEnd || std::abs(steps - shown) * width >= kBarSteps;
}

}  // namespace keplin
