#include "ui/qt/label_widget.h"

#include "ui/page_look.h"

namespace keplin::qt {

LabelWidget::LabelWidget(const Label& label, const Look& look, QWidget* parent)
    : QLabel(parent), label_(label), look_(look) {
    SetUp(*this, label, look.scale);
    setText(ToQt(label.Caption));
    Refit();
}

void LabelWidget::Apply(Aspect aspect) {
    ApplyCommon(*this, label_, look_.scale, aspect);
    if (aspect == Aspect::Caption) setText(ToQt(label_.Caption));
    Refit();
}

void LabelWidget::Refit() {
    setFont(ToQt(look_.fit.FontOf(label_)));
}

QColor LabelWidget::TextColour() const {
    const auto colour = TextColourOf(label_);
    return colour ? ToQt(*colour) : palette().color(QPalette::WindowText);
}

// Painted from the layout that the font was chosen by, not from the style's.
void LabelWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF area = ToQt(look_.fit.AreaOf(label_));
    if (label_.Style.background) painter.fillRect(rect(), ToQt(*label_.Style.background));
    if (label_.Style.border) DrawOutline(painter, rect(), ToQt(kBlack));
    painter.setPen(TextColour());
    DrawWrapped(painter, text(), label_.Style.alignment, area);
}

}  // namespace keplin::qt
