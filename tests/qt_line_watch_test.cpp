// The open serial line on the window's event loop.
#include <fcntl.h>
#include <gtest/gtest.h>

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTimer>

#include "tests/support/pseudo_terminal.h"
#include "tests/support/qt_window.h"

namespace keplin::test {
namespace {

using LineWatch = QtWindow;

// A click may open a dialog in the midst of a wait, which then waits itself.
TEST_F(LineWatch, AByteThatNobodyReadsKeepsNoLoopInsideAWaitBusy) {
    const PseudoTerminal far;
    const UniqueFd line(open(far.Path().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK));
    far.Send("U\n");
    QtDesktop waiting(
        window, {.awaitsByte = [] { return true; }, .hungUp = {}, .openFile = {}, .beforeEnd = {}});
    waiting.WatchLine(line.Get());
    int rounds = 0;
    QTimer::singleShot(0, &window, [&] {
        QEventLoop dialog;
        QTimer::singleShot(50, &dialog, &QEventLoop::quit);
        const auto* dispatcher = QAbstractEventDispatcher::instance();
        QObject::connect(dispatcher, &QAbstractEventDispatcher::awake, &dialog, [&] { ++rounds; });
        dialog.exec();
    });
    waiting.Yield();
    EXPECT_GT(rounds, 0);
    EXPECT_LT(rounds, 50);
}

TEST_F(LineWatch, AHangUpIsToldOnceByTheEventLoopAloneAndNoUnreadByteIsTakenForOne) {
    PseudoTerminal far;
    UniqueFd line(open(far.Path().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK));
    int told = 0;
    QtDesktop* watching = nullptr;
    QtDesktop atRest(window, {.awaitsByte = {},
                              .hungUp =
                                  [&] {
                                      ++told;
                                      watching->WatchLine(-1);
                                      line.Reset();
                                  },
                              .openFile = {},
                              .beforeEnd = {}});
    watching = &atRest;
    atRest.WatchLine(line.Get());
    far.Send("noise\n");
    ASSERT_TRUE(PseudoTerminal::IsReadable(line.Get()));
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 0);
    far.HangUp();
    EXPECT_TRUE(Until([&] { return told > 0; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace keplin::test
