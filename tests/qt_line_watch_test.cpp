// The open serial line on the window's event loop.
#include <gtest/gtest.h>

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTimer>
#include <optional>

#include "tests/support/pseudo_terminal.h"
#include "tests/support/qt_window.h"

namespace keplin::test {
namespace {

using LineWatch = QtWindow;

// A click may open a dialog in the midst of a wait, which then waits itself.
TEST_F(LineWatch, AByteThatNobodyReadsKeepsNoLoopInsideAWaitBusy) {
    const PseudoTerminal far;
    const UniqueFd line = OpenLine(far.Path());
    far.Send("U\n");
    QtDesktop waiting(window, {.awaitsByte = [] { return true; }});
    waiting.WatchLine(line.Get());
    int rounds = 0;
    QTimer::singleShot(0, &window, [&] {
        QEventLoop dialog;
        QTimer::singleShot(50, &dialog, &QEventLoop::quit);
        const auto* dispatcher = QAbstractEventDispatcher::instance();
        QObject::connect(dispatcher, &QAbstractEventDispatcher::awake, &dialog, [&] { ++rounds; });
        dialog.exec();
    });
    waiting.YieldOnce();
    EXPECT_GT(rounds, 0);
    EXPECT_LT(rounds, 50);
}

TEST_F(LineWatch, AHangUpIsToldOnceByTheEventLoopAloneAndNoUnreadByteIsTakenForOne) {
    PseudoTerminal far;
    UniqueFd line = OpenLine(far.Path());
    int told = 0;
    std::optional<QtDesktop> atRest;
    const auto hungUp = [&] {
        ++told;
        atRest->WatchLine(-1);
        line.Reset();
    };
    atRest.emplace(window, QtDesktop::Hooks{.hungUp = hungUp});
    atRest->WatchLine(line.Get());
    far.Send("noise\n");
    ASSERT_TRUE(IsReadable(line.Get()));
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 0);
    far.HangUp();
    EXPECT_TRUE(Until([&] { return told > 0; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace keplin::test
