#include "ui/qt/progress_bar_widget.h"

#include <QHelpEvent>
#include <QToolTip>
#include <cmath>
#include <cstdlib>

namespace keplin::qt {
namespace {

constexpr int kSteps = 10000;            // finer than a pixel
constexpr int kPauseMs = 1000 / 30 + 1;  // between two repaints

}  // namespace

// The range is never empty, which Qt would show as busy.
ProgressBarWidget::ProgressBarWidget(const ProgressBar& bar, const Look& look, QWidget* parent)
    : QProgressBar(parent), bar_(bar), look_(look), throttle_(kPauseMs, [this] { ShowDone(); }) {
    setTextVisible(false);
    setRange(0, kSteps);
    ApplyCommon(*this, bar, look.scale);
    setAccessibleName(ToQt(bar.Description));
    throttle_.ShowNow();
}

void ProgressBarWidget::Apply(Aspect aspect) {
    if (aspect == Aspect::Min || aspect == Aspect::Max || aspect == Aspect::Value) {
        throttle_.ShowSoon();
    } else {
        if (aspect == Aspect::Visible) throttle_.ShowNow();
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
    const int done = static_cast<int>(std::lround(bar_.Done() * static_cast<float>(kSteps)));
    const bool isEnd = done == 0 || done == kSteps;
    if (!isEnd && std::abs(done - value()) * width() < kSteps) return;  // less than a pixel
    setValue(done);
    update();
}

}  // namespace keplin::qt
