// Keeps alive the threads that Qt draws with.
#pragma once

#include <QTimer>

namespace keplin::qt {

// Qt shares out what fills many rows of pixels among threads that it starts when it needs them and
// ends half a minute later. Where the system has no thread left by then it waits for ever for the
// drawing to be done. As long as this exists they are there, from a second after its making on, or
// from when the system has some. Needs a QGuiApplication and its event loop.
class DrawingThreads {
  public:
    DrawingThreads();

  private:
    void Keep();

    QTimer timer_;
    bool there_ = false;
};

}  // namespace keplin::qt
