#include "ui/qt/drawn.h"

#include "ui/accessible_text.h"

namespace keplin::qt {

void ApplyCommon(QWidget& widget, const Control& control, const Scale& scale, Aspect aspect) {
    if (aspect == Aspect::Visible) widget.setVisible(control.Visible);
    if (aspect == Aspect::Enabled) widget.setEnabled(control.Enabled);
    if (aspect == Aspect::Left || aspect == Aspect::Top || aspect == Aspect::Height)
        widget.setGeometry(ToQt(scale.PlaceOf(control)));
    if (aspect == Aspect::Caption) TellWhatItIs(widget, control);
}

void SetUp(QWidget& widget, const Control& control, const Scale& scale) {
    widget.setObjectName(ToQt(control.Name));
    for (const Aspect aspect : {Aspect::Left, Aspect::Enabled, Aspect::Visible, Aspect::Caption}) {
        ApplyCommon(widget, control, scale, aspect);
    }
}

// A description that is not the control's own stays.
void TellWhatItIs(QWidget& widget, const Control& control) {
    const AccessibleText text = AccessibleTextOf(control);
    const QString name = ToQt(text.name);
    const QString description = ToQt(text.description);
    if (widget.accessibleName() != name) widget.setAccessibleName(name);
    if (!description.isEmpty()) widget.setAccessibleDescription(description);
}

// Filled, not drawn with a pen: where the desktop magnifies by one and a half, a pen's line may
// come to lie beside the widget.
void DrawOutline(QPainter& painter, const QRectF& rectangle, const QColor& colour) {
    const double pixel = 1 / painter.device()->devicePixelRatioF();
    const QSizeF across(rectangle.width(), pixel);
    const QSizeF down(pixel, rectangle.height());
    painter.fillRect({rectangle.topLeft(), across}, colour);
    painter.fillRect({rectangle.bottomLeft() - QPointF(0, pixel), across}, colour);
    painter.fillRect({rectangle.topLeft(), down}, colour);
    painter.fillRect({rectangle.topRight() - QPointF(pixel, 0), down}, colour);
}

}  // namespace keplin::qt
