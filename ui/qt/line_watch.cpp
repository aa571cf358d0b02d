#include "ui/qt/line_watch.h"

#include <QCoreApplication>

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

LineWatch::LineWatch(WatchedDescriptor& line) : line_(line) {
    line.OnLineChange = [this](int descriptor) { Watch(descriptor); };
    limit_.setSingleShot(true);
    limit_.setInterval(kLimitMs);
}

void LineWatch::Watch(int descriptor) {
    Replace(byte_, descriptor, QSocketNotifier::Read);
    Replace(loss_, descriptor, QSocketNotifier::Exception);
    if (descriptor < 0) return;
    QObject::connect(byte_.get(), &QSocketNotifier::activated, byte_.get(),
                     [byte = byte_.get()] { byte->setEnabled(false); });
    QObject::connect(loss_.get(), &QSocketNotifier::activated, loss_.get(),
                     [this] { line_.CheckLine(); });
}

void LineWatch::ProcessEvents() {
    if (line_.TakeWait()) {
        AwaitByteOrEvent();
    } else {
        QCoreApplication::processEvents();
    }
}

void LineWatch::AwaitByteOrEvent() {
    if (byte_) byte_->setEnabled(true);
    limit_.start();
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace keplin::qt
