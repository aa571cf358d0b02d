#include "ui/qt/throttle.h"

#include <utility>

namespace keplin::qt {

Throttle::Throttle(int pauseMs, std::function<void()> show)
    : pauseMs_(pauseMs), show_(std::move(show)) {
    later_.setSingleShot(true);
    later_.callOnTimeout([this] { ShowNow(); });
}

void Throttle::ShowSoon() {
    if (later_.isActive()) return;
    const auto passed = sinceShown_.isValid() ? sinceShown_.elapsed() : pauseMs_;
    if (passed >= pauseMs_) {
        ShowNow();
    } else {
        later_.start(pauseMs_ - static_cast<int>(passed));
    }
}

void Throttle::ShowNow() {
    later_.stop();
    show_();
    sinceShown_.start();
}

}  // namespace keplin::qt
