// The open serial line on the window's event loop.
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
    const UniqueFd opened = OpenLine(far.Path());
    far.Send("U\n");
    line.OnLineChange(opened.Get());
    line.MayWait = true;
    int rounds = 0;
    QTimer::singleShot(0, &window, [&] {
        QEventLoop dialog;
        QTimer::singleShot(50, &dialog, &QEventLoop::quit);
        const auto* dispatcher = QAbstractEventDispatcher::instance();
        QObject::connect(dispatcher, &QAbstractEventDispatcher::awake, &dialog, [&] { ++rounds; });
        dialog.exec();
    });
    desktop.YieldOnce();
    line.OnLineChange(-1);
    EXPECT_GT(rounds, 0);
    EXPECT_LT(rounds, 20);
}

TEST_F(LineWatch, AHangUpIsToldOnceByTheEventLoopAloneAndNoUnreadByteIsTakenForOne) {
    PseudoTerminal far;
    const UniqueFd opened = OpenLine(far.Path());
    int told = 0;
    line.OnCheck = [&] {
        ++told;
        line.OnLineChange(-1);
    };
    line.OnLineChange(opened.Get());
    far.Send("noise\n");
    ASSERT_TRUE(IsReadable(opened.Get()));
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 0);
    far.HangUp();
    EXPECT_TRUE(Until([&] { return told > 0; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace keplin::test
