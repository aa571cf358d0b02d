// What the window's event loop does for the open serial line: it waits for a byte while the line is
// idle, and notices at any time that the line hung up.
#pragma once

#include <QSocketNotifier>
#include <QTimer>
#include <memory>

#include "platform/posix/watched_descriptor.h"

namespace keplin::qt {

class LineWatch {
  public:
    // `line` must outlive the watch, which is told of each change of it.
    explicit LineWatch(WatchedDescriptor& line);
    ~LineWatch() { line_.OnLineChange = nullptr; }
    LineWatch(const LineWatch&) = delete;
    LineWatch& operator=(const LineWatch&) = delete;

    // Processes the window events that are pending. On an idle line it first waits until there is
    // one, or a byte to read, 2 ms at most. Whatever the events run inside it, the byte ends one
    // wait only.
    void ProcessEvents();

  private:
    void Watch(int descriptor);
    void AwaitByteOrEvent();

    WatchedDescriptor& line_;
    QTimer limit_;
    std::unique_ptr<QSocketNotifier> byte_;  // awake from a wait's begin to the first byte
    std::unique_ptr<QSocketNotifier> loss_;
};

}  // namespace keplin::qt
