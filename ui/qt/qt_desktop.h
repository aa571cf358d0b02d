// The services of the desktop that the program really runs on.
#pragma once

#include <QWidget>
#include <functional>

#include "platform/desktop.h"
#include "ui/qt/idle_wait.h"
#include "ui/qt/keep_awake.h"

namespace keplin::qt {

class QtDesktop : public Desktop {
  public:
    // What the program around it may want otherwise. An empty function changes nothing.
    struct Hooks {
        // The open line on which a byte is awaited, or -1 when this yield is not to wait. Asked at
        // each yield; having named the line once, it gives -1 until the line was read again.
        std::function<int()> idleDescriptor;
        // Answers in place of the open-file dialog.
        std::function<std::optional<std::string>(const OpenFileRequest&)> openFile;
        // Runs right before the program ends and gives its exit code, which is 0 without it.
        std::function<int()> beforeEnd;
    };

    // `window` is the one that dialogs stand over; it must outlive the desktop.
    QtDesktop(QWidget& window, Hooks hooks);

    void Yield() override;
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
    IdleWait idle_;
    qt::KeepAwake keepAwake_;
};

}  // namespace keplin::qt
