#include "ui/qt/keep_awake.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <array>

namespace keplin::qt {
namespace {

constexpr int kAnswerMs = 1000;

// The lock is held while the descriptor is open; an invalid one where it was not given.
QDBusUnixFileDescriptor Lock(const char* what) {
    QDBusMessage request =
        QDBusMessage::createMethodCall("org.freedesktop.login1", "/org/freedesktop/login1",
                                       "org.freedesktop.login1.Manager", "Inhibit");
    request << what << "Keplin"
            << "An update is being installed into a controller"
            << "block";
    const QDBusMessage answer = QDBusConnection::systemBus().call(request, QDBus::Block, kAnswerMs);
    return answer.arguments().value(0).value<QDBusUnixFileDescriptor>();
}

// Asked for one by one: a session that may not have one of them still gets the others.
std::array<QDBusUnixFileDescriptor, 3> Locks() {
    return {Lock("sleep"), Lock("idle"), Lock("handle-lid-switch")};
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

// The locks live as long as the wish for them.
void KeepAwake::Work(const std::stop_token& stop) {
    std::unique_lock lock(mutex_);
    while (changed_.wait(lock, stop, [this] { return wanted_; }) && !stop.stop_requested()) {
        lock.unlock();
        const auto locks = Locks();
        lock.lock();
        changed_.wait(lock, stop, [this] { return !wanted_; });
    }
}

}  // namespace keplin::qt
