// What the window's event loop does for the open serial line: it waits for a byte while an exchange
// asks it to, and notices at any time that the line hung up.
#pragma once

#include <QSocketNotifier>
#include <QTimer>
#include <functional>
#include <memory>

namespace keplin::qt {

class LineWatch {
  public:
    // `hungUp` is called from the event loop; it is to close the line.
    explicit LineWatch(std::function<void()> hungUp);

    // The descriptor of the line from now on, or -1 for none. A line is to be taken away before it
    // is closed.
    void Watch(int descriptor);

    // Waits until a window event is there, or a byte to read from the line, 2 ms at most, and
    // processes the window events that are pending then. Whatever these run inside it, the byte
    // ends one wait only.
    void ProcessEvents();

  private:
    const std::function<void()> hungUp_;
    QTimer limit_;
    std::unique_ptr<QSocketNotifier> byte_;  // awake only while waiting
    std::unique_ptr<QSocketNotifier> loss_;
};

}  // namespace keplin::qt
