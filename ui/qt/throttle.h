// Limits how often a widget shows what changes: the first change at once, those that follow
// together when the pause is over.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <functional>

namespace keplin::qt {

class Throttle {
  public:
    // `show` is called at most once in `pauseMs` milliseconds.
    Throttle(int pauseMs, std::function<void()> show);

    // Something changed.
    void ShowSoon();
    // Shows all changes without waiting.
    void ShowNow();

  private:
    const int pauseMs_;
    const std::function<void()> show_;
    QElapsedTimer sinceShown_;
    QTimer later_;
};

}  // namespace keplin::qt
