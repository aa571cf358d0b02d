#include "ui/qt/tick_timer.h"

namespace keplin::qt {

TickTimer::TickTimer(const Timer& timer, QObject* parent) : QTimer(parent), timer_(timer) {
    setObjectName(ToQt(timer.Name));
    setInterval(timer.Interval);
    callOnTimeout(this, [this] { timer_.Tick(); });
}

void TickTimer::Apply(Aspect) {
    if (timer_.Enabled) {
        start();
    } else {
        stop();
    }
}

}  // namespace keplin::qt
