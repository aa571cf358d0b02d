// A rectangle: filled, or an outline one pixel wide in the window's text colour. It moves sideways
// a limited number of times a second however often its place changes.
#pragma once

#include <QWidget>

#include "ui/qt/drawn.h"
#include "ui/qt/show_timer.h"

namespace keplin::qt {

class ShapeWidget final : public QWidget, public Drawn {
  public:
    ShapeWidget(const Shape& shape, const Look& look, QWidget* parent);
    void Apply(Aspect aspect) override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void MoveSideways();

    const Shape& shape_;
    const Look& look_;
    ShowTimer showTimer_;
};

}  // namespace keplin::qt
