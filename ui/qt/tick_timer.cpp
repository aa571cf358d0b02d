#include "ui/qt/tick_timer.h"

namespace keplin::qt {

TickTimer::TickTimer(const Timer& timer, QObject* parent) : QTimer(parent), timer_(timer) {
    setObjectName(ToQt(timer.Name));
    setInterval(timer.Interval);
    callOnTimeout(this, [this] { timer_.Tick(); });
    Apply(Aspect::Enabled);
}

void TickTimer::Apply(Aspect aspect) {
    if (aspect != Aspect::Enabled) return;
    if (timer_.Enabled) {
        start();
    } else {
        stop();
    }
}

}  // namespace keplin::qt
