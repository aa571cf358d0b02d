#include "ui/qt/progress_bar_widget.h"

#include <cmath>

namespace keplin::qt {
namespace {

constexpr int kSteps = 10000;            // finer than a pixel
constexpr int kPauseMs = 1000 / 30 + 1;  // between two repaints

}  // namespace

// The range is never empty, which Qt would show as busy.
ProgressBarWidget::ProgressBarWidget(const ProgressBar& bar, const Look& look, QWidget* parent)
    : QProgressBar(parent), bar_(bar), look_(look) {
    setTextVisible(false);
    setRange(0, kSteps);
    ApplyCommon(*this, bar, look.scale);
    setAccessibleName(ToQt(bar.Description));
    later_.setSingleShot(true);
    later_.callOnTimeout(this, [this] { ShowNow(); });
    ShowNow();
}

void ProgressBarWidget::Apply(Aspect aspect) {
    if (aspect == Aspect::Min || aspect == Aspect::Max || aspect == Aspect::Value) {
        ShowSoon();
    } else {
        if (aspect == Aspect::Visible) ShowNow();
        ApplyCommon(*this, bar_, look_.scale, aspect);
    }
}

void ProgressBarWidget::ShowSoon() {
    if (later_.isActive()) return;
    const auto passed = sinceShown_.elapsed();
    if (passed >= kPauseMs) {
        ShowNow();
    } else {
        later_.start(kPauseMs - static_cast<int>(passed));
    }
}

void ProgressBarWidget::ShowNow() {
    later_.stop();
    setValue(static_cast<int>(std::lround(bar_.Done() * static_cast<float>(kSteps))));
    sinceShown_.start();
}

}  // namespace keplin::qt
