#include "ui/qt/accessibility_bus.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <algorithm>
#include <thread>

namespace {

// An object on the accessibility bus.
struct Reference {
    QString owner;
    QDBusObjectPath path;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Reference& reference) {
    argument.beginStructure();
    argument << reference.owner << reference.path;
    argument.endStructure();
    return argument;
}

// Needed to send one, too.
const QDBusArgument& operator>>(const QDBusArgument& argument, Reference&) {
    return argument;
}

}  // namespace

Q_DECLARE_METATYPE(Reference)

namespace keplin::qt {
namespace {

// How long a question waits during a pause of the program.
constexpr std::chrono::milliseconds kAnswerWithin{2};

const QString kObjects = "/org/a11y/atspi/accessible";

// Qt's own, under the name that Qt gives it.
QDBusConnection Bus() {
    return QDBusConnection("a11y");
}

}  // namespace

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
void Announce(QWidget& widget, const QString& text) {
    QAccessibleAnnouncementEvent event(&widget, text);
    QAccessible::updateAccessibility(&event);
}
#else
// The bridge tells of a new description without its text, and without that nothing is spoken.
void Announce(QWidget& widget, const QString& text) {
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&widget);
    if (accessible == nullptr || !Bus().isConnected()) return;
    qDBusRegisterMetaType<Reference>();
    const QString path = kObjects + '/' + QString::number(QAccessible::uniqueId(accessible));
    const Reference program{Bus().baseService(), QDBusObjectPath(kObjects + "/root")};
    QDBusMessage signal =
        QDBusMessage::createSignal(path, "org.a11y.atspi.Event.Object", "PropertyChange");
    signal << "accessible-description" << 0 << 0 << QVariant::fromValue(QDBusVariant(text))
           << QVariant::fromValue(program);
    Bus().send(signal);
}
#endif

// Qt posts each question to the object that answers for all widgets.
void AnswerScreenReaderUntil(std::chrono::steady_clock::time_point end) {
    using std::chrono::steady_clock;
    if (!QAccessible::isActive() || !Bus().isConnected()) return;
    QObject* answerer = Bus().objectRegisteredAt(kObjects);
    while (answerer != nullptr && steady_clock::now() < end) {
        QCoreApplication::sendPostedEvents(answerer, QEvent::MetaCall);
        std::this_thread::sleep_until(std::min(end, steady_clock::now() + kAnswerWithin));
    }
}

}  // namespace keplin::qt
