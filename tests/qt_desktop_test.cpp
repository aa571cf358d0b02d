#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileSystemWatcher>
#include <QLineEdit>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTimer>
#include <QTreeView>
#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "platform/posix/unique_fd.h"
#include "tests/support/qt_window.h"
#include "ui/qt/open_dialog.h"

namespace keplin::test {
namespace {

using namespace std::chrono_literals;
using DesktopServices = QtWindow;

TEST_F(DesktopServices, TheTimerTicksWhileItIsEnabled) {
    int ticks = 0;
    model.Timer1.OnTimer = [&] { ++ticks; };
    const auto start = desktop.Now();
    model.Timer1.Enabled = true;
    EXPECT_TRUE(Until([&] { return ticks == 3; }));
    EXPECT_GE(desktop.Now() - start, 5ms);
    model.Timer1.Enabled = false;
    EXPECT_FALSE(window.findChild<QTimer*>("Timer1")->isActive());
}

TEST_F(DesktopServices, AYieldWaitsForTheLineWhenItIsToldTo) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    line.OnLineChange(ends[0]);
    const auto silent = FiftyYields(true);
    EXPECT_GE(silent.all, 50ms);
    EXPECT_LT(silent.all, 3s);
    EXPECT_LT(FiftyYields(false).all, silent.all);
    ASSERT_EQ(write(ends[1], "x", 1), 1);
    EXPECT_LT(FiftyYields(true).shortest, 1ms) << "the byte ends no wait";
    line.OnLineChange(-1);
    for (const int end : ends)
        close(end);
}

TEST_F(DesktopServices, WhatWasSetIsPaintedAndHandedOverBeforeASleepWhichHandlesNoEvent) {
    std::vector<std::string> happened;
    const auto note = [&](const char* what) { happened.emplace_back(what); };
    const WhenPainted painted(*Find(model.Label9), [&] { note("painted"); });
    const auto* dispatcher = QAbstractEventDispatcher::instance();
    QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, &window,
                     [&] { note("handed over"); });
    QTimer::singleShot(0, &window, [&] { note("timer"); });
    QMetaObject::invokeMethod(
        &window, [&] { note("event"); }, Qt::QueuedConnection);
    model.Label9.Caption = "Version 2.00";
    const auto start = desktop.Now();
    desktop.Sleep(50ms);
    EXPECT_GE(desktop.Now() - start, 50ms);
    EXPECT_EQ(happened, (std::vector<std::string>{"painted", "handed over"}));
    const std::clock_t worked = std::clock();
    desktop.Sleep(500ms);
    EXPECT_LT(std::clock() - worked, CLOCKS_PER_SEC / 4) << "it works while it sleeps";
}

// A bus that takes questions and answers none, until `asked` is closed.
TEST_F(DesktopServices, ToStayAwakeIsAskedForWithoutWaitingForTheAnswer) {
    const QTemporaryDir folder;
    const QByteArray pipe = QFile::encodeName(folder.filePath("pipe"));
    ASSERT_EQ(mkfifo(pipe, 0600), 0);
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unixexec:path=cat,argv1=" + pipe);
    const auto start = desktop.Now();
    desktop.KeepAwake(true);
    UniqueFd asked;
    EXPECT_TRUE(Until([&] {
        asked = UniqueFd(open(pipe, O_WRONLY | O_NONBLOCK | O_CLOEXEC));
        return static_cast<bool>(asked);
    }));
    desktop.KeepAwake(false);
    EXPECT_LT(desktop.Now() - start, 15s);
}

// The open-file dialog, in a folder of its own.
class QtDialog : public QtWindow {
  protected:
    // What comes of the dialog when `act` is done in it; cancelled if it still stands then.
    template <typename Act>
    std::optional<std::string> Ask(Act&& act) {
        QTimer::singleShot(0, &window, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QApplication::setActiveWindow(dialog);
            act(*dialog);
            if (dialog->isVisible()) dialog->reject();
        });
        const OpenFileRequest request{"QDX-470 Files (*.HEX)|*.HEX", "Select", Path(""), true};
        return mounts.isEmpty() ? desktop.ShowOpen(request)
                                : qt::AskForFile(window, request, {mounts});
    }

    std::optional<std::string> Type(const std::string& text) {
        return Ask([&](QFileDialog& dialog) {
            auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
            EXPECT_EQ(name->completer(), nullptr);
            EXPECT_TRUE(Until([&] { return name->hasFocus() && NamesIn(dialog) == "a"; }));
            for (const char letter : text + "\r") {
                const int key = letter == '\r' ? Qt::Key_Return : Qt::Key_unknown;
                QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(letter));
                QCoreApplication::sendEvent(name, &event);
                desktop.YieldOnce();
            }
        });
    }

    static std::string NamesIn(const QFileDialog& dialog) {
        const auto* list = dialog.findChild<QTreeView*>("treeView");
        QStringList names;
        for (int i = 0; i < list->model()->rowCount(list->rootIndex()); ++i)
            names << list->model()->index(i, 0, list->rootIndex()).data().toString();
        return names.join(' ').toStdString();
    }

    [[nodiscard]] std::string Path(const std::string& name) const {
        return folder.filePath(QString::fromStdString(name)).toStdString();
    }

    void MakeFile(const std::string& name, int daysAgo) {
        QFile file(QString::fromStdString(Path(name)));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        const QDateTime date = QDateTime::currentDateTime().addDays(-daysAgo);
        ASSERT_TRUE(file.setFileTime(date, QFile::FileModificationTime));
    }

    const QTemporaryDir folder;
    QString mounts;  // where a desktop mounts what is plugged in, if not where each does
};

TEST_F(QtDialog, WhatIsTypedCountsWithOneReturnWhetherOrNotThereIsSuchAFile) {
    QDir(folder.path()).mkdir("a");
    MakeFile("a/there.HEX", 0);
    for (const char* name : {"missing.HEX", "a/missing.HEX", "a/there.HEX"}) {
        EXPECT_EQ(Type(name), Path(name));
        EXPECT_EQ(Type(Path(name)), Path(name));
    }
    EXPECT_EQ(Type(Path("a")), std::nullopt);
}

TEST_F(QtDialog, ShowsTheNewestFileFirstInCapitalsOrNot) {
    const QTemporaryDir home;
    QDir(home.path()).mkdir("Downloads");
    qputenv("HOME", QFile::encodeName(home.path()));
    mounts = home.path();
    const auto watchersOfPlaces = [&] { return window.findChildren<QFileSystemWatcher*>(); };
    int age = 0;
    for (const char* name :
         {"3.txt", "5.HEX", "2.hex", "6.HEX", "1.HEX", "7-seventh-file.hex", "4.HEX"})
        MakeFile(name, ++age);
    // As another program, or a technician, left it.
    QSettings(QSettings::UserScope, "QtProject").setValue("FileDialog/viewMode", "List");
    const auto chosen = Ask([&](QFileDialog& dialog) {
        const char* newestFirst = "5.HEX 2.hex 6.HEX 1.HEX 7-seventh-file.hex 4.HEX";
        EXPECT_TRUE(Until([&] { return NamesIn(dialog) == newestFirst; })) << NamesIn(dialog);
        EXPECT_EQ(dialog.selectedNameFilter(), "QDX-470 Files (*.HEX)");
        EXPECT_EQ(dialog.windowTitle(), "Select");
        const QList<QUrl> places = dialog.sidebarUrls();
        EXPECT_EQ(places.mid(0, 2), (QList{QUrl::fromLocalFile(home.filePath("Downloads")),
                                           QUrl::fromLocalFile(home.path())}));
        EXPECT_EQ(places.last(), QUrl("file:"));
        const QString user = home.filePath(QFileInfo(home.path()).owner());
        const QUrl stick = QUrl::fromLocalFile(user + "/STICK");
        QDir().mkdir(user);
        EXPECT_TRUE(Until([&] { return watchersOfPlaces().at(0)->directories().contains(user); }));
        QDir().mkdir(stick.toLocalFile());
        EXPECT_TRUE(Until([&] { return dialog.sidebarUrls().contains(stick); }));
        QAbstractItemView* list = nullptr;
        for (const auto& [view, column] : std::initializer_list<std::pair<const char*, int>>{
                 {"sidebar", 0}, {"treeView", 3}, {"treeView", 0}}) {
            list = dialog.findChild<QAbstractItemView*>(view);
            EXPECT_TRUE(list->isVisible());
            EXPECT_LE(list->sizeHintForColumn(column),
                      list->visualRect(list->model()->index(0, column, list->rootIndex())).width())
                << view << column;
        }
        list->setCurrentIndex(list->model()->index(1, 0, list->rootIndex()));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(chosen, Path("2.hex"));
    EXPECT_TRUE(Until([&] { return watchersOfPlaces().isEmpty(); })) << "the dialog is closed";
}

TEST_F(DesktopServices, WhereTheWorkingDirectoryWasDeletedHomeStandsInForIt) {
    const QString before = QDir::currentPath();
    EXPECT_EQ(desktop.CurrentDirectory(), before.toStdString());
    {
        const QTemporaryDir deleted;
        ASSERT_TRUE(QDir::setCurrent(deleted.path()));
    }
    EXPECT_EQ(desktop.CurrentDirectory(), QDir::homePath().toStdString());
    QDir::setCurrent(before);
}

TEST_F(DesktopServices, TheDesktopTellsFactsOfFilesAndAsksForOne) {
    TestLine<WatchedDescriptor> none;
    QtDesktop other(window, none,
                    {.openFile = [](const auto& request) { return request.title; },
                     .beforeEnd = [] { return 3; }});
    EXPECT_EQ(other.ShowOpen({"", "typed", "", false}), "typed");
    EXPECT_THROW(desktop.FileLength("/nowhere/to/be/found"), std::runtime_error);
    EXPECT_THROW(desktop.FileDateTime("/nowhere/to/be/found"), std::runtime_error);
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    for (const qint64 seconds : {0LL, -1LL, 4102444800LL}) {
        const QDateTime time = QDateTime::fromSecsSinceEpoch(seconds);
        ASSERT_TRUE(file.setFileTime(time, QFile::FileModificationTime));
        EXPECT_EQ(desktop.FileDateTime(file.fileName().toStdString()),
                  QLocale::system().toString(time, QLocale::ShortFormat).toStdString());
    }
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(other.End(), testing::ExitedWithCode(3), "");
}

// In a process in which nothing was drawn.
TEST(DrawingThreads, AreThereASecondAfterTheirMaking) {
    const auto watch = [] {
        const qt::DrawingThreads made;
        const auto before = QDir("/proc/self/task").count();
        QTimer::singleShot(1100ms,
                           [=] { std::_Exit(QDir("/proc/self/task").count() > before ? 3 : 1); });
        QCoreApplication::exec();
    };
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(watch(), testing::ExitedWithCode(3), "");
}

}  // namespace
}  // namespace keplin::test
