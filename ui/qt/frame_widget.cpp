#include "ui/qt/frame_widget.h"

#include "ui/page_look.h"

namespace keplin::qt {

PageWidget::PageWidget(const Page& page, const Look& look, QWidget* parent)
    : QWidget(parent), page_(page), look_(look) {
    SetUp(*this, page, look.scale);
}

void PageWidget::Apply(Aspect aspect) {
    ApplyCommon(*this, page_, look_.scale, aspect);
}

void PageWidget::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), ToQt(page_.Background));
}

FrameWidget::FrameWidget(const Frame& frame, const Look& look, QWidget* parent)
    : QGroupBox(parent), frame_(frame), look_(look) {
    SetUp(*this, frame, look.scale);
}

void FrameWidget::Apply(Aspect aspect) {
    ApplyCommon(*this, frame_, look_.scale, aspect);
    if (aspect == Aspect::Caption) update();
}

void FrameWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor background = ToQt(frame_.Background);
    const QString caption = ToQt(frame_.Caption);
    const QFontMetrics metrics = painter.fontMetrics();
    const FrameParts parts = PartsOfFrame(
        FromQt(size()), {metrics.horizontalAdvance(caption), metrics.height()}, look_.scale);
    painter.fillRect(rect(), background);
    DrawOutline(painter, ToQt(parts.outline), ToQt(OutlineOn(frame_.Background)));
    if (caption.isEmpty()) return;
    painter.fillRect(ToQt(parts.gap), background);
    painter.setPen(ToQt(kBlack));
    painter.drawText(parts.caption.left, metrics.ascent(), caption);
}

}  // namespace keplin::qt
