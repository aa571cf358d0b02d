#include "app/qt/manual_key.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QShortcut>

#include "app/manual_due.h"

namespace keplin {
namespace {

// The installed programs and those of a build find the manual in the same place beside them.
QString ManualPath() {
    return QFileInfo(QCoreApplication::applicationDirPath() + "/../share/keplin/manual/manual.html")
        .canonicalFilePath();
}

// A process of its own: the key may be pressed while a record waits for its reply.
void OpenManual() {
    const QString manual = ManualPath();
    if (manual.isEmpty() || !IsManualDue()) return;
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
    QObject::connect(key, &QShortcut::activated, OpenManual);
}

}  // namespace keplin
