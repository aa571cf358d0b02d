#include "ui/qt/drawn.h"

namespace keplin::qt {

void ApplyCommon(QWidget& widget, const Control& control, const Scale& scale, Aspect aspect) {
    switch (aspect) {
        case Aspect::Visible:
            widget.setVisible(control.Visible);
            break;
        case Aspect::Enabled:
            widget.setEnabled(control.Enabled);
            break;
        case Aspect::Left:
        case Aspect::Top:
        case Aspect::Height:
            widget.setGeometry(scale.PlaceOf(control));
            break;
        default:
            break;
    }
}

void ApplyCommon(QWidget& widget, const Control& control, const Scale& scale) {
    widget.setObjectName(ToQt(control.Name));
    for (const Aspect aspect : {Aspect::Left, Aspect::Enabled, Aspect::Visible}) {
        ApplyCommon(widget, control, scale, aspect);
    }
}

void DrawOutline(QPainter& painter, const QRectF& rectangle, const QColor& colour) {
    const double pixel = 1 / painter.device()->devicePixelRatio();
    painter.setPen(QPen(colour, 0));
    painter.drawRect(rectangle.adjusted(0, 0, -pixel, -pixel));
}

}  // namespace keplin::qt
