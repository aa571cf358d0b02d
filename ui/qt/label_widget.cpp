#include "ui/qt/label_widget.h"

#include "ui/qt/font_choice.h"
#include "ui/qt/text_room.h"

namespace keplin::qt {

LabelWidget::LabelWidget(const Label& label, const Look& look, QWidget* parent)
    : QLabel(parent), label_(label), look_(look) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    ApplyCommon(*this, label, look.scale);
    setAccessibleDescription(label.Style.description);
    ApplyCaption();
    Refit();
}

void LabelWidget::Apply(Aspect aspect) {
    ApplyCommon(*this, label_, look_.scale, aspect);
    if (aspect == Aspect::Caption) ApplyCaption();
    Refit();
}

void LabelWidget::Refit() {
    setFont(FontOf(label_, look_));
}

// A text that comes and goes has a name also while it is empty.
void LabelWidget::ApplyCaption() {
    setText(ToQt(label_.Caption));
    setAccessibleName(text().isEmpty() ? accessibleDescription() : text());
}

// A page keeps its colour in a dark theme, so the texts on it keep theirs.
QColor LabelWidget::TextColour() const {
    if (label_.Style.colour) return ToQt(*label_.Style.colour);
    return label_.Container != nullptr ? Qt::black : palette().color(QPalette::WindowText);
}

// Painted from the layout that the font was chosen by, not from the style's.
void LabelWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF area = RoomOf(label_, look_).area;
    if (label_.Style.background) painter.fillRect(rect(), ToQt(*label_.Style.background));
    if (label_.Style.border) DrawOutline(painter, rect(), Qt::black);
    painter.setPen(TextColour());
    DrawWrapped(painter, text(), label_.Style.alignment, area);
}

}  // namespace keplin::qt
