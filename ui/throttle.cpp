#include "ui/throttle.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace keplin {

Throttle::Throttle(Pause pause, std::function<Moment()> clock)
    : pause_(pause), clock_(std::move(clock)) {}

std::optional<Throttle::Pause> Throttle::Changed() {
    if (waiting_) return std::nullopt;
    if (!shown_) return Pause::zero();
    const auto passed = std::chrono::duration_cast<Pause>(clock_() - *shown_);
    const Pause left = std::max(pause_ - passed, Pause::zero());
    waiting_ = left > Pause::zero();
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
