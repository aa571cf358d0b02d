#include "ui/qt/qt_desktop.h"

#include <sys/stat.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>
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

QtDesktop::QtDesktop(QWidget& window, Hooks hooks)
    : window_(window), hooks_(std::move(hooks)), line_(hooks_.hungUp) {}

void QtDesktop::YieldOnce() {
    if (hooks_.awaitsByte && hooks_.awaitsByte()) {
        line_.ProcessEvents();
    } else {
        QCoreApplication::processEvents();
    }
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

std::chrono::milliseconds QtDesktop::Now() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now);
}

std::optional<std::string> QtDesktop::ShowOpen(const OpenFileRequest& request) {
    return hooks_.openFile ? hooks_.openFile(request) : AskForFile(window_, request);
}

std::string QtDesktop::CurrentDirectory() {
    std::error_code deleted;
    const auto path = std::filesystem::current_path(deleted);
    return deleted ? QFile::encodeName(QDir::homePath()).toStdString() : path.string();
}

std::uint64_t QtDesktop::FileLength(const std::string& path) {
    return std::filesystem::file_size(path);
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

// Output that is still in a buffer goes out first; nothing else of the program runs any more.
void QtDesktop::End() {
    const int exitCode = hooks_.beforeEnd ? hooks_.beforeEnd() : 0;
    std::fflush(nullptr);
    std::_Exit(exitCode);
}

}  // namespace keplin::qt
