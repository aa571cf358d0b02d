// What the program asks of a desktop, on Windows.
#include "tests/support/win32_window.h"

namespace keplin::test {
namespace {

using Win32DesktopServices = Win32Window;

TEST_F(Win32DesktopServices, ASleepPaintsWhatWasSetAndHandlesNoEvent) {
    int ticks = 0;
    model.Timer1.OnTimer = [&] { ++ticks; };
    model.Timer1.Enabled = true;
    model.Label9.Caption = "Version 2.00";
    EXPECT_TRUE(GetUpdateRect(window.HandleOf(model.Label9), nullptr, FALSE));
    const auto start = std::chrono::steady_clock::now();
    desktop.Sleep(std::chrono::milliseconds(50));
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(50));
    EXPECT_FALSE(GetUpdateRect(window.HandleOf(model.Label9), nullptr, FALSE));
    EXPECT_EQ(ticks, 0);
    EXPECT_TRUE(Until([&] { return ticks > 0; }));
}

TEST_F(Win32DesktopServices, AYieldWaitsForTheLineWhenItIsToldTo) {
    EXPECT_GE(FiftyYields(true).shortest, std::chrono::milliseconds(1));
    EXPECT_LT(FiftyYields(false).shortest, std::chrono::milliseconds(1));
}

TEST_F(Win32DesktopServices, TellsAFilesDate) {
    EXPECT_NE(desktop.FileDateTime(desktop.CurrentDirectory()), "");
    EXPECT_THROW(desktop.FileDateTime("no such file"), std::runtime_error);
}

}  // namespace
}  // namespace keplin::test
