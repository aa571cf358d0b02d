#include "ui/qt/progress_bar_widget.h"

#include <QEvent>
#include <cmath>

namespace keplin::qt {
namespace {

constexpr int kSteps = 10000;            // finer than a pixel
constexpr int kPauseMs = 1000 / 30 + 1;  // between two repaints

}  // namespace

// The range is never empty, which Qt would show as busy.
ProgressBarWidget::ProgressBarWidget(const ProgressBar& bar, const Look& look, QWidget* parent)
    : QProgressBar(parent), bar_(bar), look_(look), pace_(kPauseMs, [this] { ShowDone(); }) {
    setTextVisible(false);
    setRange(0, kSteps);
    ApplyCommon(*this, bar, look.scale);
    setAccessibleName(ToQt(bar.Description));
    pace_.ShowNow();
}

void ProgressBarWidget::Apply(Aspect aspect) {
    if (aspect == Aspect::Min || aspect == Aspect::Max || aspect == Aspect::Value) {
        pace_.ShowSoon();
    } else {
        if (aspect == Aspect::Visible) pace_.ShowNow();
        ApplyCommon(*this, bar_, look_.scale, aspect);
    }
}

// The tool tip is put into words only when it is asked for.
bool ProgressBarWidget::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) setToolTip(DoneText());
    return QProgressBar::event(event);
}

void ProgressBarWidget::ShowDone() {
    setValue(static_cast<int>(std::lround(bar_.Done() * static_cast<float>(kSteps))));
}

}  // namespace keplin::qt
