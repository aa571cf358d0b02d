#include "ui/qt/shape_widget.h"

namespace keplin::qt {

ShapeWidget::ShapeWidget(const Shape& shape, const Look& look, QWidget* parent)
    : QWidget(parent),
      shape_(shape),
      look_(look),
      showTimer_(Throttle::kShape, [this] { MoveSideways(); }) {
    setAttribute(Qt::WA_OpaquePaintEvent, shape.Fill.has_value());
    SetUp(*this, shape, look.scale);
}

void ShapeWidget::Apply(Aspect aspect) {
    if (aspect == Aspect::Left) {
        showTimer_.ShowSoon();
    } else {
        ApplyCommon(*this, shape_, look_.scale, aspect);
    }
}

// Only moves the widget: a width that changed with the rounding would shimmer.
void ShapeWidget::MoveSideways() {
    move(look_.scale.Pixels(shape_.Left), y());
}

void ShapeWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (shape_.Fill) {
        painter.fillRect(rect(), ToQt(*shape_.Fill));
    } else {
        DrawOutline(painter, rect(), palette().color(QPalette::WindowText));
    }
}

}  // namespace keplin::qt
