// How often a drawing shows what changes all the time: the first change at once, those that follow
// together when the interval is over. And which steps of a progress bar can be seen at all.
#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include "ui/controls.h"

namespace keplin {

class Throttle {
  public:
    using Moment = std::chrono::steady_clock::time_point;
    using Interval = std::chrono::milliseconds;

    // Between two repaints of a progress bar, and two steps sideways of a shape.
    static constexpr Interval kBar{1000 / 30 + 1};
    static constexpr Interval kShape{1000 / 60 + 1};

    explicit Throttle(Interval interval,
                      std::function<Moment()> clock = std::chrono::steady_clock::now);

    // Something changed. 0: to be shown now. Otherwise the drawing lets so many milliseconds pass
    // and shows then what is there by then. Nothing: it waits already.
    std::optional<Interval> Changed();

    // It was shown just now, whether it was due or not; whoever waits for it need not any more.
    void WasShown();

  private:
    const Interval interval_;
    const std::function<Moment()> clock_;
    std::optional<Moment> shown_;
    bool waiting_ = false;
};

// The steps in which a drawing shows a progress bar, from 0 to kBarSteps: finer than a pixel. The
// range of the model's bar itself may be empty, which some systems show as busy.
inline constexpr int kBarSteps = 10000;
int StepsDone(const ProgressBar& bar);

// A bar so many pixels wide that shows `shown` steps would look another way with `steps`: it gained
// or lost a pixel, or is at one of its ends.
bool CanBeSeen(int steps, int shown, int width);

}  // namespace keplin
