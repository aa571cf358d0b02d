// The services of the desktop that the program really runs on.
#pragma once

#include <QWidget>
#include <functional>

#include "platform/desktop.h"
#include "ui/qt/drawing_threads.h"
#include "ui/qt/keep_awake.h"
#include "ui/qt/line_watch.h"

namespace keplin::qt {

class QtDesktop : public Desktop {
  public:
    // What the program around it may want otherwise. An empty function changes nothing.
    struct Hooks {
        // Whether a byte of the open line is awaited, so that this yield may wait for it. Asked at
        // each yield; having said so once, it does not again until the line was read.
        std::function<bool()> awaitsByte = {};
        // The open line hung up; it is to be closed.
        std::function<void()> hungUp = {};
        // Answers in place of the open-file dialog.
        std::function<std::optional<std::string>(const OpenFileRequest&)> openFile = {};
        // Runs right before the program ends and gives its exit code, which is 0 without it.
        std::function<int()> beforeEnd = {};
    };

    // `window` is the one that dialogs stand over; it must outlive the desktop.
    QtDesktop(QWidget& window, Hooks hooks);

    // The descriptor of the open serial line from now on, or -1. A line is to be taken away before
    // it is closed.
    void WatchLine(int descriptor) { line_.Watch(descriptor); }

    void YieldOnce() override;
    void Sleep(std::chrono::milliseconds duration) override;
    std::chrono::milliseconds Now() override;
    std::optional<std::string> ShowOpen(const OpenFileRequest& request) override;
    std::string CurrentDirectory() override;
    std::uint64_t FileLength(const std::string& path) override;
    std::string FileDateTime(const std::string& path) override;
    void KeepAwake(bool awake) override;
    [[noreturn]] void End() override;

  private:
    QWidget& window_;
    const Hooks hooks_;
    LineWatch line_;
    DrawingThreads threads_;
    qt::KeepAwake keepAwake_;
};

}  // namespace keplin::qt
