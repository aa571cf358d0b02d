// A rectangle: filled, or an outline one pixel wide in the window's text colour.
#pragma once

#include <QWidget>

#include "ui/qt/drawn.h"

namespace keplin::qt {

class ShapeWidget final : public QWidget, public Drawn {
  public:
    ShapeWidget(const Shape& shape, const Look& look, QWidget* parent);
    void Apply(Aspect aspect) override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Shape& shape_;
    const Look& look_;
};

}  // namespace keplin::qt
