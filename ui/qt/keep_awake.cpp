#include "ui/qt/keep_awake.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>

namespace keplin::qt {
namespace {

constexpr int kAnswerMs = 1000;

// The computer stays awake while the descriptor is open; an invalid one where nobody answers.
QDBusUnixFileDescriptor Inhibit() {
    QDBusMessage request =
        QDBusMessage::createMethodCall("org.freedesktop.login1", "/org/freedesktop/login1",
                                       "org.freedesktop.login1.Manager", "Inhibit");
    request << "sleep:idle:handle-lid-switch"
            << "Keplin"
            << "An update is being installed into a controller"
            << "block";
    const QDBusMessage answer = QDBusConnection::systemBus().call(request, QDBus::Block, kAnswerMs);
    return answer.arguments().value(0).value<QDBusUnixFileDescriptor>();
}

}  // namespace

void KeepAwake::Set(bool awake) {
    const std::lock_guard lock(mutex_);
    wanted_ = awake;
    if (awake && !worker_.joinable()) {
        worker_ = std::jthread([this](const std::stop_token& stop) { Work(stop); });
    }
    changed_.notify_one();
}

// The descriptor lives as long as the wish for it.
void KeepAwake::Work(const std::stop_token& stop) {
    std::unique_lock lock(mutex_);
    while (changed_.wait(lock, stop, [this] { return wanted_; }) && !stop.stop_requested()) {
        lock.unlock();
        const QDBusUnixFileDescriptor inhibitor = Inhibit();
        lock.lock();
        changed_.wait(lock, stop, [this] { return !wanted_; });
    }
}

}  // namespace keplin::qt
