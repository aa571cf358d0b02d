// A timer of the model on the window's event loop. A tick that falls due while one is still at work
// is left out.
#pragma once

#include <QTimer>

#include "ui/qt/drawn.h"

namespace keplin::qt {

class TickTimer final : public QTimer, public Drawn {
  public:
    TickTimer(const Timer& timer, QObject* parent);
    void Apply(Aspect aspect) override;

  private:
    const Timer& timer_;
};

}  // namespace keplin::qt
