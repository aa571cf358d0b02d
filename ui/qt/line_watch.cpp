#include "ui/qt/line_watch.h"

#include <QCoreApplication>
#include <utility>

namespace keplin::qt {
namespace {

constexpr int kLimitMs = 2;

// A notifier may be at work as it is replaced: its own line hung up.
void Replace(std::unique_ptr<QSocketNotifier>& notifier, int descriptor,
             QSocketNotifier::Type type) {
    if (notifier) {
        notifier->setEnabled(false);
        notifier.release()->deleteLater();
    }
    if (descriptor >= 0) notifier = std::make_unique<QSocketNotifier>(descriptor, type);
}

}  // namespace

LineWatch::LineWatch(std::function<void()> hungUp) : hungUp_(std::move(hungUp)) {
    limit_.setSingleShot(true);
    limit_.setTimerType(Qt::PreciseTimer);
    limit_.setInterval(kLimitMs);
}

void LineWatch::Watch(int descriptor) {
    Replace(byte_, descriptor, QSocketNotifier::Read);
    Replace(loss_, descriptor, QSocketNotifier::Exception);
    if (descriptor < 0) return;
    byte_->setEnabled(false);
    QObject::connect(byte_.get(), &QSocketNotifier::activated, byte_.get(),
                     [byte = byte_.get()] { byte->setEnabled(false); });
    QObject::connect(loss_.get(), &QSocketNotifier::activated, loss_.get(), [this] {
        if (hungUp_) hungUp_();
    });
}

void LineWatch::ProcessEvents() {
    if (byte_) byte_->setEnabled(true);
    limit_.start();
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    limit_.stop();
    if (byte_) byte_->setEnabled(false);
}

}  // namespace keplin::qt
