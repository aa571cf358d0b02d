// The progress bar, repainted a limited number of times a second however often its value changes.
#pragma once

#include <QProgressBar>

#include "ui/qt/drawn.h"
#include "ui/qt/show_timer.h"

namespace keplin::qt {

class ProgressBarWidget final : public QProgressBar, public Drawn {
  public:
    ProgressBarWidget(const ProgressBar& bar, const Look& look, QWidget* parent);
    void Apply(Aspect aspect) override;

    [[nodiscard]] const ProgressBar& Model() const { return bar_; }
    [[nodiscard]] QString DoneText() const { return ToQt(bar_.DoneText()); }

  protected:
    bool event(QEvent* event) override;

  private:
    void ShowDone();

    const ProgressBar& bar_;
    const Look& look_;
    ShowTimer showTimer_;
    QPoint tipPlace_;
};

}  // namespace keplin::qt
