#include "ui/qt/progress_bar_widget.h"

#include <QHelpEvent>
#include <QToolTip>

namespace keplin::qt {

ProgressBarWidget::ProgressBarWidget(const ProgressBar& bar, const Look& look, QWidget* parent)
    : QProgressBar(parent),
      bar_(bar),
      look_(look),
      showTimer_(Throttle::kBar, [this] { ShowDone(); }) {
    setTextVisible(false);
    setRange(0, kBarSteps);
    SetUp(*this, bar, look.scale);
    showTimer_.ShowNow();
}

void ProgressBarWidget::Apply(Aspect aspect) {
    if (aspect == Aspect::Value) {
        showTimer_.ShowSoon();
    } else {
        if (aspect == Aspect::Visible) showTimer_.ShowNow();
        ApplyCommon(*this, bar_, look_.scale, aspect);
    }
}

bool ProgressBarWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QProgressBar::event(event);
    tipPlace_ = static_cast<QHelpEvent*>(event)->globalPos();
    QToolTip::showText(tipPlace_, DoneText(), this);
    return true;
}

// Qt itself would paint only once the bar gained nine pixels; a label that overlaps it and is
// painted before then would show a part of the new bar on the old one.
void ProgressBarWidget::ShowDone() {
    if (underMouse() && QToolTip::isVisible()) QToolTip::showText(tipPlace_, DoneText(), this);
    const int steps = StepsDone(bar_);
    if (!CanBeSeen(steps, value(), width())) return;
    setValue(steps);
    update();
}

}  // namespace keplin::qt
