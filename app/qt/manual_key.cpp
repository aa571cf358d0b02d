#include "app/qt/manual_key.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QShortcut>

namespace keplin {
namespace {

// A browser takes its time to come, and the key is pressed again: one manual is enough.
constexpr int kPatience = 3000;  // milliseconds

// The installed programs and those of a build find the manual in the same place beside them.
QString ManualPath() {
    return QFileInfo(QCoreApplication::applicationDirPath() + "/../share/keplin/manual/manual.html")
        .canonicalFilePath();
}

// A process of its own: the key may be pressed while a record waits for its reply.
void OpenManual() {
    const QString manual = ManualPath();
    if (manual.isEmpty()) return;
    QProcess opener;
    opener.setProgram("xdg-open");
    opener.setArguments({manual});
    opener.setStandardInputFile(QProcess::nullDevice());
    opener.setStandardOutputFile(QProcess::nullDevice());
    opener.setStandardErrorFile(QProcess::nullDevice());
    opener.startDetached();
}

}  // namespace

void OpenManualOnF1(QWidget& window) {
    auto* key = new QShortcut(QKeySequence::HelpContents, &window);
    key->setAutoRepeat(false);
    QObject::connect(key, &QShortcut::activated, [last = QElapsedTimer()]() mutable {
        if (last.isValid() && !last.hasExpired(kPatience)) return;
        last.start();
        OpenManual();
    });
}

}  // namespace keplin
