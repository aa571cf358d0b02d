#include "ui/qt/idle_wait.h"

#include <QCoreApplication>

namespace keplin::qt {
namespace {

constexpr int kLimitMs = 2;

}  // namespace

IdleWait::IdleWait() {
    limit_.setSingleShot(true);
    limit_.setTimerType(Qt::PreciseTimer);
    limit_.setInterval(kLimitMs);
}

void IdleWait::ProcessEvents(int descriptor) {
    if (!byte_ || byte_->socket() != descriptor) {
        byte_ = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    }
    byte_->setEnabled(true);
    limit_.start();
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    limit_.stop();
    byte_->setEnabled(false);
}

}  // namespace keplin::qt
