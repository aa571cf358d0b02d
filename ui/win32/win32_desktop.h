// The services of the desktop that the program really runs on.
#pragma once

#include "platform/standard_desktop.h"
#include "platform/watched_line.h"
#include "platform/win32/file_date.h"
#include "ui/win32/main_window.h"

namespace keplin::win32 {

class Win32Desktop : public StandardDesktop {
  public:
    // `window` is the one that dialogs stand over; it and the line must outlive the desktop.
    Win32Desktop(const MainWindow& window, WatchedLine& line, Hooks hooks);

    // Processes the window's events from now on, until the program ends.
    [[noreturn]] void Run();

    void YieldOnce() override;
    void Sleep(std::chrono::milliseconds duration) override;
    std::string FileDateTime(const std::string& path) override { return FileDate(path); }
    void KeepAwake(bool awake) override;

  private:
    std::optional<std::string> AskForFile(const OpenFileRequest& request) override;

    const MainWindow& window_;
    WatchedLine& line_;
};

}  // namespace keplin::win32
