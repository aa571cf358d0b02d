#include "ui/qt/qt_desktop.h"

#include <sys/stat.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>

#include "ui/qt/accessibility_bus.h"
#include "ui/qt/open_dialog.h"

namespace keplin::qt {
namespace {

// How late the system may wake a sleeper.
constexpr std::chrono::microseconds kLateness{250};

// Brings to the screen what the window has not painted yet, or has painted and not handed over: Qt
// does that when its event loop comes to rest, and a compositor may have put it off till then.
// Handles no event of the technician and no timer.
void ShowAllThatWasSet(QWidget& window) {
    QEvent update(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &update);
    emit QAbstractEventDispatcher::instance()->aboutToBlock();
}

}  // namespace

QtDesktop::QtDesktop(QWidget& window, WatchedDescriptor& line, Hooks hooks)
    : StandardDesktop(std::move(hooks)), window_(window), line_(line) {}

void QtDesktop::YieldOnce() {
    line_.ProcessEvents();
}

// An update sleeps once for each line of its file, so the lateness would add up: the end of a sleep
// is awaited awake.
void QtDesktop::Sleep(std::chrono::milliseconds duration) {
    using std::chrono::steady_clock;
    const auto end = steady_clock::now() + duration;
    ShowAllThatWasSet(window_);
    AnswerScreenReaderUntil(end - kLateness);
    std::this_thread::sleep_until(end - kLateness);
    while (steady_clock::now() < end) {
    }
}

std::optional<std::string> QtDesktop::AskForFile(const OpenFileRequest& request) {
    return qt::AskForFile(window_, request);
}

std::string QtDesktop::FileDateTime(const std::string& path) {
    struct stat facts {};
    if (stat(path.c_str(), &facts) != 0) throw std::runtime_error("no date of " + path);
    const QDateTime time = QDateTime::fromSecsSinceEpoch(facts.st_mtim.tv_sec);
    if (!time.isValid()) return "@" + std::to_string(facts.st_mtim.tv_sec);  // past Qt's calendar
    return QLocale::system().toString(time, QLocale::ShortFormat).toStdString();
}

void QtDesktop::KeepAwake(bool awake) {
    keepAwake_.Set(awake);
}

}  // namespace keplin::qt
