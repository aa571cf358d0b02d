// Shows what changes all the time as often as the throttle allows.
#pragma once

#include <QTimer>
#include <functional>

#include "ui/throttle.h"

namespace keplin::qt {

class ShowTimer {
  public:
    // `show` is called at most once in that interval, but for ShowNow.
    ShowTimer(Throttle::Interval interval, std::function<void()> show);

    // Something changed.
    void ShowSoon();
    // Shows all changes without waiting.
    void ShowNow();

  private:
    Throttle throttle_;
    const std::function<void()> show_;
    QTimer later_;
};

}  // namespace keplin::qt
