#include "ui/qt/frame_widget.h"

namespace keplin::qt {
namespace {

constexpr float kCaptionLeft = 120;  // twips
constexpr float kCaptionGap = 30;    // twips, between the caption and the outline on either side
constexpr int kOutlineDarker = 160;  // percent of the background's darkness

}  // namespace

PageWidget::PageWidget(const Page& page, const Look& look, QWidget* parent)
    : QWidget(parent), page_(page), look_(look) {
    ApplyCommon(*this, page, look.scale);
}

void PageWidget::Apply(Aspect aspect) {
    ApplyCommon(*this, page_, look_.scale, aspect);
}

void PageWidget::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), ToQt(page_.Background));
}

FrameWidget::FrameWidget(const Frame& frame, const Look& look, QWidget* parent)
    : QGroupBox(parent), frame_(frame), look_(look) {
    ApplyCommon(*this, frame, look.scale);
    Apply(Aspect::Caption);
}

// The accessible name is the caption as it stands: a title would lose an ampersand.
void FrameWidget::Apply(Aspect aspect) {
    ApplyCommon(*this, frame_, look_.scale, aspect);
    if (aspect != Aspect::Caption) return;
    setAccessibleName(ToQt(frame_.Caption));
    update();
}

void FrameWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor background = ToQt(frame_.Background);
    const QString caption = ToQt(frame_.Caption);
    const QFontMetrics metrics = painter.fontMetrics();
    const int gap = look_.scale.Pixels(kCaptionGap);
    const QRect text(look_.scale.Pixels(kCaptionLeft), 0, metrics.horizontalAdvance(caption),
                     metrics.height());
    painter.fillRect(rect(), background);
    DrawOutline(painter, rect().adjusted(0, text.height() / 2, 0, 0),
                background.darker(kOutlineDarker));
    if (caption.isEmpty()) return;
    painter.fillRect(text.adjusted(-gap, 0, gap, 0), background);
    painter.setPen(Qt::black);
    painter.drawText(text.left(), metrics.ascent(), caption);
}

}  // namespace keplin::qt
