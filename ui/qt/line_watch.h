// A short wait that ends with the first window event or byte.
#pragma once

#include <QSocketNotifier>
#include <QTimer>
#include <memory>

namespace keplin::qt {

class IdleWait {
  public:
    IdleWait();

    // Waits until a window event is there, or a byte to read from the open descriptor, 2 ms at
    // most, and processes the window events that are pending then.
    void ProcessEvents(int descriptor);

  private:
    QTimer limit_;
    std::unique_ptr<QSocketNotifier> byte_;  // of the last descriptor, awake only while waiting
};

}  // namespace keplin::qt
