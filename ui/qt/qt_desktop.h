// The services of the desktop that the program really runs on.
#pragma once

#include <QWidget>

#include "platform/standard_desktop.h"
#include "ui/qt/drawing_threads.h"
#include "ui/qt/keep_awake.h"
#include "ui/qt/line_watch.h"

namespace keplin::qt {

class QtDesktop : public StandardDesktop {
  public:
    // `window` is the one that dialogs stand over; it and the line must outlive the desktop.
    QtDesktop(QWidget& window, WatchedDescriptor& line, Hooks hooks);

    void YieldOnce() override;
    void Sleep(std::chrono::milliseconds duration) override;
    std::string FileDateTime(const std::string& path) override;
    void KeepAwake(bool awake) override;

  private:
    std::optional<std::string> AskForFile(const OpenFileRequest& request) override;

    QWidget& window_;
    LineWatch line_;
    DrawingThreads threads_;
    qt::KeepAwake keepAwake_;
};

}  // namespace keplin::qt
