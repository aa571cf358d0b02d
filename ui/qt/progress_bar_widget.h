// The progress bar, repainted a limited number of times a second however often its value changes.
#pragma once

#include <QElapsedTimer>
#include <QProgressBar>
#include <QTimer>

#include "ui/qt/drawn.h"

namespace keplin::qt {

class ProgressBarWidget final : public QProgressBar, public Drawn {
  public:
    ProgressBarWidget(const ProgressBar& bar, const Look& look, QWidget* parent);
    void Apply(Aspect aspect) override;

  private:
    // Shows how much is done: at once, or when the last time is long enough ago.
    void ShowSoon();
    void ShowNow();

    const ProgressBar& bar_;
    const Look& look_;
    QElapsedTimer sinceShown_;
    QTimer later_;
};

}  // namespace keplin::qt
